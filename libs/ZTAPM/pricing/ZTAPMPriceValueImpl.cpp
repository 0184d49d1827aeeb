#include "ZTAPMPriceValueImpl.h"

ZTAPMPriceValueImpl::ZTAPMPriceValueImpl() = default;
ZTAPMPriceValueImpl::ZTAPMPriceValueImpl(const ZTAPMPriceValueImpl& theOther) = default;
ZTAPMPriceValueImpl::~ZTAPMPriceValueImpl() = default;
