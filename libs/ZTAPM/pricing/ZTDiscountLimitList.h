#ifndef ZTDISCOUNTLIMITLIST_H
#define ZTDISCOUNTLIMITLIST_H

#include "ZTDiscountLimit.h"
#include "ztapm_export.h"

#include <QList>

// The steps of a ladder in a fixed order.
class ZTAPM_EXPORT ZTDiscountLimitList : public QList<ZTDiscountLimit>
{
public:
    ZTDiscountLimitList();
    ZTDiscountLimitList(const QList<ZTDiscountLimit>& theLimits);

    // Model, then level, then lower limit, then upper limit, an open end (-1) first, then a
    // converted "y" row behind a native one: a total order, so that a sort is the same for any
    // order the limits came in.
    static bool lessThan(const ZTDiscountLimit& theFirst, const ZTDiscountLimit& theSecond);
    void sort();

    bool containsDiscountModel(const ZTDiscountModel& theModel) const;
    // Upper limit of the first photo base package; 0 without one.
    int maxFotosInBasepackage() const;
    // All limits but those of inherited rows, in order.
    ZTDiscountLimitList filterInherited() const;
};

#endif // ZTDISCOUNTLIMITLIST_H
