#include "ZTAPMOrderStatistic.h"

#include "ZTAPMDataBase.h"
#include "ZTProductAbstract.h"

#include <algorithm>

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

QList<ZTAPMOrderStatistic::Item> ZTAPMOrderStatistic::itemsByArticleId() const
{
    QList<Item> result;
    result.reserve(myItems.size());
    for (auto it = myItems.cbegin(); it != myItems.cend(); ++it)
        result.append({it.key(), it.value()});
    std::sort(result.begin(), result.end(), [](const Item& theFirst, const Item& theSecond) {
        if (!theFirst.first || !theSecond.first)
            return !theFirst.first && theSecond.first;
        return theFirst.first->articleId().id() < theSecond.first->articleId().id();
    });
    return result;
}

ZTProductList ZTAPMOrderStatistic::products() const
{
    ZTProductList result;
    for (const Item& item : itemsByArticleId())
        result.append(item.first);
    return result;
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
