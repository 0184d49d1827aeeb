#include "ZTAPMOrderStatistic.h"

#include "ZTAPMDataBase.h"
#include "ZTProductAbstract.h"

ZTAPMOrderStatistic::ZTAPMOrderStatistic() = default;
ZTAPMOrderStatistic::ZTAPMOrderStatistic(const ZTAPMOrderStatistic& theOther) = default;
ZTAPMOrderStatistic& ZTAPMOrderStatistic::operator=(const ZTAPMOrderStatistic& theOther) = default;
ZTAPMOrderStatistic::~ZTAPMOrderStatistic() = default;

void ZTAPMOrderStatistic::add(ZTProductAbstract* theProduct, int theCount)
{
    myItems[theProduct] += theCount;
}

void ZTAPMOrderStatistic::add(const ZTArticleId& theId, int theCount)
{
    add(ZTAPMDataBase::instance()->productAbstract(theId), theCount);
}

void ZTAPMOrderStatistic::add(const ZTAPMOrderStatistic& theOther, int theFactor)
{
    // A copy, so that adding a basket to itself does not walk a hash that is being written.
    const Items other = theOther.myItems;
    for (auto it = other.cbegin(); it != other.cend(); ++it)
        add(it.key(), it.value() * theFactor);
}

int ZTAPMOrderStatistic::countItems(const ZTProductAbstract* theProduct, int theDefault) const
{
    return myItems.value(const_cast<ZTProductAbstract*>(theProduct), theDefault);
}

ZTProductList ZTAPMOrderStatistic::products() const
{
    return ZTProductList(myItems.keys());
}

ZTMoney ZTAPMOrderStatistic::totalPrice(const ZTAPMPriceKey& theKey) const
{
    ZTMoney result(0);
    for (auto it = myItems.cbegin(); it != myItems.cend(); ++it) {
        ZTMoney price = it.key()->price(theKey, 1, ZTMoney(1));
        price *= it.value();
        result += price;
    }
    return result;
}
