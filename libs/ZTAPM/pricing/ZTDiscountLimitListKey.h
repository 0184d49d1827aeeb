#ifndef ZTDISCOUNTLIMITLISTKEY_H
#define ZTDISCOUNTLIMITLISTKEY_H

#include "ZTAPMPriceKey.h"
#include "ZTShippingGroupId.h"
#include "ztapm_export.h"

// What a finished ladder is cached under: the shipping group, the price key and whether all
// limits are shown.
class ZTAPM_EXPORT ZTDiscountLimitListKey
{
public:
    ZTDiscountLimitListKey();
    ZTDiscountLimitListKey(const ZTShippingGroupId& theShippingGroupId, const ZTAPMPriceKey& thePriceKey,
                           bool theShowAllDiscountLimits);
    ZTDiscountLimitListKey(const ZTDiscountLimitListKey& theOther);
    ZTDiscountLimitListKey& operator=(const ZTDiscountLimitListKey& theOther);
    virtual ~ZTDiscountLimitListKey();

    const ZTShippingGroupId& shippingGroupId() const { return myShippingGroupId; }
    const ZTAPMPriceKey& priceKey() const { return myPriceKey; }
    bool showAllDiscountLimits() const { return myShowAllDiscountLimits; }

    bool operator==(const ZTDiscountLimitListKey& theOther) const;
    bool operator!=(const ZTDiscountLimitListKey& theOther) const;
    // True only if all three parts are less at once: no ordering of all keys, which are hashed,
    // never sorted.
    bool operator<(const ZTDiscountLimitListKey& theOther) const;

    uint hashValue() const;

private:
    ZTShippingGroupId myShippingGroupId;
    ZTAPMPriceKey myPriceKey;
    bool myShowAllDiscountLimits = false;
};

inline size_t qHash(const ZTDiscountLimitListKey& theKey, size_t theSeed = 0) noexcept
{
    return qHash(theKey.hashValue(), theSeed);
}

#endif // ZTDISCOUNTLIMITLISTKEY_H
