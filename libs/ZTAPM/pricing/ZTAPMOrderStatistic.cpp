#include "ZTAPMOrderStatistic.h"

#include "ZTAPMDataBase.h"
#include "ZTProductAbstract.h"

#include <algorithm>
#include <climits>

ZTAPMOrderStatistic::ZTAPMOrderStatistic() = default;
ZTAPMOrderStatistic::ZTAPMOrderStatistic(const ZTAPMOrderStatistic& theOther) = default;
ZTAPMOrderStatistic& ZTAPMOrderStatistic::operator=(const ZTAPMOrderStatistic& theOther) = default;
ZTAPMOrderStatistic::~ZTAPMOrderStatistic() = default;

namespace {
// Counts stop at the ends of the integers instead of wrapping; such a count has no price anyway.
int saturated(qint64 theCount)
{
    return int(qBound(qint64(INT_MIN), theCount, qint64(INT_MAX)));
}
} // namespace

void ZTAPMOrderStatistic::add(ZTProductAbstract* theProduct, int theCount)
{
    int& count = myItems[theProduct];
    count = saturated(qint64(count) + theCount);
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
        add(it.key(), saturated(qint64(it.value()) * theFactor));
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
    // Exact in 64 bits: a sum that leaves an amount's range is no price, however it continues.
    qint64 result = 0;
    for (auto it = myItems.cbegin(); it != myItems.cend(); ++it) {
        const qint64 price = it.key()->price(theKey, 1, ZTMoney(1)).value();
        if (__builtin_add_overflow(result, price * it.value(), &result))
            return ZTMoney(ZTMoney::noPrice);
    }
    return ZTMoney::fromAmount(result);
}
