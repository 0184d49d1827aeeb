#include "ZTDiscountLimitCache.h"

#include "ZTAPMDataBase.h"

ZTDiscountLimitCache::ZTDiscountLimitCache()
{
    connect(ZTSingleton<ZTAPMDataBase>::instance(), &ZTAPMDataBase::priceListUpdated, this,
            &ZTDiscountLimitCache::clear, Qt::QueuedConnection);
}

ZTDiscountLimitCache::~ZTDiscountLimitCache() = default;

ZTDiscountLimitList ZTDiscountLimitCache::discountLimits(const ZTDiscountLimitListKey& theKey)
{
    auto it = myLists.constFind(theKey);
    if (it == myLists.cend())
        it = myLists.insert(theKey, calculateList(theKey));
    return it.value();
}

ZTDiscountLimitList ZTDiscountLimitCache::calculateList(const ZTDiscountLimitListKey& theKey) const
{
    ZTDiscountLimitList result(ZTSingleton<ZTAPMDataBase>::instance()->discountLimits(theKey).values());
    result.sort();
    return result;
}

void ZTDiscountLimitCache::clear()
{
    myLists.clear();
}
