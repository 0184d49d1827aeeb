#include "ZTProductTransferFee.h"

ZTProductTransferFee::ZTProductTransferFee(const QDomElement& theElement) : ZTProductAbstract(theElement)
{}

ZTProductTransferFee::~ZTProductTransferFee() = default;
