#ifndef ZTDISCOUNTLIMITSET_H
#define ZTDISCOUNTLIMITSET_H

#include "ZTDiscountLimit.h"
#include "ztapm_export.h"

#include <QSet>

// The steps of one or many articles' ladders, without order.
class ZTAPM_EXPORT ZTDiscountLimitSet : public QSet<ZTDiscountLimit>
{
public:
    ZTDiscountLimitSet();
    ZTDiscountLimitSet(const QSet<ZTDiscountLimit>& theLimits);

    // An article's highest step is open-ended while another article may bound the same step:
    // drops each open-ended limit for which a different limit of the same model and lower limit
    // exists. Of several open-ended twins without a bounded one, the first in the limit list's
    // order (the lowest level) stays.
    void removeZeroLimits();
    // Keeps only the limits of level 0.
    void removeAllNoneLevelZeroLimits();
};

#endif // ZTDISCOUNTLIMITSET_H
