#include "ZTDiscountLimitSet.h"

#include "ZTDiscountLimitList.h"

#include <algorithm>

ZTDiscountLimitSet::ZTDiscountLimitSet() = default;

ZTDiscountLimitSet::ZTDiscountLimitSet(const QSet<ZTDiscountLimit>& theLimits)
    : QSet<ZTDiscountLimit>(theLimits)
{}

void ZTDiscountLimitSet::removeZeroLimits()
{
    ZTDiscountLimitList openEnded;
    for (const ZTDiscountLimit& limit : std::as_const(*this)) {
        if (limit.upperLimit() == -1)
            openEnded.append(limit);
    }
    // Last first: each removal is seen by the next test, so the first twin stays.
    openEnded.sort();
    for (auto it = openEnded.crbegin(); it != openEnded.crend(); ++it) {
        const ZTDiscountLimit& limit = *it;
        const bool hasTwin = std::any_of(cbegin(), cend(), [&limit](const ZTDiscountLimit& other) {
            return other.discountModel() == limit.discountModel() &&
                   other.lowerLimit() == limit.lowerLimit() && other != limit;
        });
        if (hasTwin)
            remove(limit);
    }
}

void ZTDiscountLimitSet::removeAllNoneLevelZeroLimits()
{
    QSet<ZTDiscountLimit> higher;
    for (const ZTDiscountLimit& limit : std::as_const(*this)) {
        if (limit.discountLevel() != 0)
            higher.insert(limit);
    }
    for (const ZTDiscountLimit& limit : std::as_const(higher))
        remove(limit);
}
