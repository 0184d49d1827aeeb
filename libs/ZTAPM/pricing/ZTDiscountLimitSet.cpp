#include "ZTDiscountLimitSet.h"

#include <algorithm>

ZTDiscountLimitSet::ZTDiscountLimitSet() = default;

ZTDiscountLimitSet::ZTDiscountLimitSet(const QSet<ZTDiscountLimit>& theLimits)
    : QSet<ZTDiscountLimit>(theLimits)
{}

void ZTDiscountLimitSet::removeZeroLimits()
{
    QSet<ZTDiscountLimit> openEnded;
    for (const ZTDiscountLimit& limit : std::as_const(*this)) {
        if (limit.upperLimit() == -1)
            openEnded.insert(limit);
    }
    for (const ZTDiscountLimit& limit : std::as_const(openEnded)) {
        // Sees earlier removals: of several open-ended twins without a bounded one, one stays.
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
