#ifndef ZTOCRBILLHASH_H
#define ZTOCRBILLHASH_H

#include "ZTOCRBill.h"
#include "ZTOCRBillList.h"
#include "ztapm_export.h"

#include <QHash>

// The bills of the server's order calculation by shipping group. Walks that decide or write
// something go by ascending group id, never in the hash's own order.
class ZTAPM_EXPORT ZTOCRBillHash : public QHash<ZTShippingGroupId, ZTOCRBill>
{
public:
    using QHash<ZTShippingGroupId, ZTOCRBill>::QHash;

    // The bill's express types if the bill is valid, otherwise none.
    ZTExpressTypeList possibleExpressTypes(const ZTShippingGroupId& theShippingGroupId) const;
    // Marks the coupons of the code in every bill.
    void markCouponAsDefective(const QString& theCode);
    // The group ids, ascending.
    QList<ZTShippingGroupId> sortedKeys() const;
    // The bills by ascending group id.
    ZTOCRBillList sortedValues() const;
};

#endif // ZTOCRBILLHASH_H
