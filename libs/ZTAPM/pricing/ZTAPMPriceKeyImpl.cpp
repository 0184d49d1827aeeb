#include "ZTAPMPriceKeyImpl.h"

ZTAPMPriceKeyImpl::ZTAPMPriceKeyImpl() = default;
ZTAPMPriceKeyImpl::ZTAPMPriceKeyImpl(const ZTAPMPriceKeyImpl& theOther) = default;
ZTAPMPriceKeyImpl::~ZTAPMPriceKeyImpl() = default;
