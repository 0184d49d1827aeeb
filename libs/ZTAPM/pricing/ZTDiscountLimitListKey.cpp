#include "ZTDiscountLimitListKey.h"

ZTDiscountLimitListKey::ZTDiscountLimitListKey() = default;

ZTDiscountLimitListKey::ZTDiscountLimitListKey(const ZTShippingGroupId& theShippingGroupId,
                                               const ZTAPMPriceKey& thePriceKey,
                                               bool theShowAllDiscountLimits)
    : myShippingGroupId(theShippingGroupId)
    , myPriceKey(thePriceKey)
    , myShowAllDiscountLimits(theShowAllDiscountLimits)
{}

ZTDiscountLimitListKey::ZTDiscountLimitListKey(const ZTDiscountLimitListKey& theOther) = default;
ZTDiscountLimitListKey& ZTDiscountLimitListKey::operator=(const ZTDiscountLimitListKey& theOther) = default;
ZTDiscountLimitListKey::~ZTDiscountLimitListKey() = default;

bool ZTDiscountLimitListKey::operator==(const ZTDiscountLimitListKey& theOther) const
{
    return myShippingGroupId == theOther.myShippingGroupId && myPriceKey == theOther.myPriceKey &&
           myShowAllDiscountLimits == theOther.myShowAllDiscountLimits;
}

bool ZTDiscountLimitListKey::operator!=(const ZTDiscountLimitListKey& theOther) const
{
    return !(*this == theOther);
}

bool ZTDiscountLimitListKey::operator<(const ZTDiscountLimitListKey& theOther) const
{
    return myShippingGroupId < theOther.myShippingGroupId && myPriceKey < theOther.myPriceKey &&
           myShowAllDiscountLimits < theOther.myShowAllDiscountLimits;
}

uint ZTDiscountLimitListKey::hashValue() const
{
    // Unsigned, so that large group ids wrap instead of overflowing.
    const quint32 base =
        quint32(myShippingGroupId.id()) * 100000000u + (myShowAllDiscountLimits ? 2u : 10000000u);
    return base + myPriceKey.hashValue();
}
