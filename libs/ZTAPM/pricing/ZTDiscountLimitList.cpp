#include "ZTDiscountLimitList.h"

#include <algorithm>

ZTDiscountLimitList::ZTDiscountLimitList() = default;

ZTDiscountLimitList::ZTDiscountLimitList(const QList<ZTDiscountLimit>& theLimits)
    : QList<ZTDiscountLimit>(theLimits)
{}

bool ZTDiscountLimitList::lessThan(const ZTDiscountLimit& theFirst, const ZTDiscountLimit& theSecond)
{
    if (theFirst.discountModel() != theSecond.discountModel())
        return theFirst.discountModel() < theSecond.discountModel();
    if (theFirst.discountLevel() != theSecond.discountLevel())
        return theFirst.discountLevel() < theSecond.discountLevel();
    if (theFirst.lowerLimit() != theSecond.lowerLimit())
        return theFirst.lowerLimit() < theSecond.lowerLimit();
    if (theFirst.upperLimit() != theSecond.upperLimit())
        return theFirst.upperLimit() < theSecond.upperLimit();
    return !theFirst.wasBulkModel() && theSecond.wasBulkModel();
}

void ZTDiscountLimitList::sort()
{
    std::sort(begin(), end(), &ZTDiscountLimitList::lessThan);
}

bool ZTDiscountLimitList::containsDiscountModel(const ZTDiscountModel& theModel) const
{
    return std::any_of(cbegin(), cend(), [&theModel](const ZTDiscountLimit& limit) {
        return limit.discountModel() == theModel;
    });
}

int ZTDiscountLimitList::maxFotosInBasepackage() const
{
    for (const ZTDiscountLimit& limit : *this) {
        if (limit.isFotoBasePackageLimit())
            return limit.upperLimit();
    }
    return 0;
}

ZTDiscountLimitList ZTDiscountLimitList::filterInherited() const
{
    ZTDiscountLimitList result;
    for (const ZTDiscountLimit& limit : *this) {
        if (limit.discountModel() != ZTDiscountModelInherited)
            result.append(limit);
    }
    return result;
}
