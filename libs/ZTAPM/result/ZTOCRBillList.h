#ifndef ZTOCRBILLLIST_H
#define ZTOCRBILLLIST_H

#include "ZTOCRBill.h"
#include "ztapm_export.h"

#include <QList>

// Bills of the server's order calculation.
class ZTAPM_EXPORT ZTOCRBillList : public QList<ZTOCRBill>
{
public:
    using QList<ZTOCRBill>::QList;

    // By shipping group id.
    static bool lessThan(const ZTOCRBill& theLeft, const ZTOCRBill& theRight);
    // A copy sorted by shipping group id; bills of one group keep their order.
    ZTOCRBillList sortedByShippingGroupId() const;
};

#endif // ZTOCRBILLLIST_H
