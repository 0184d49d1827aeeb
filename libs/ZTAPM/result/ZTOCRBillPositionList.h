#ifndef ZTOCRBILLPOSITIONLIST_H
#define ZTOCRBILLPOSITIONLIST_H

#include "ZTOCRBillPosition.h"
#include "ztapm_export.h"

#include <QList>

// The positions of one bill of the server's order calculation.
class ZTAPM_EXPORT ZTOCRBillPositionList : public QList<ZTOCRBillPosition>
{
public:
    using QList<ZTOCRBillPosition>::QList;

    // The sum of the positions' price fields, parts left aside.
    ZTMoney subTotal() const;
    // The positions whose product belongs to the group, in order.
    ZTOCRBillPositionList filter(const ZTShippingGroupId& theShippingGroupId) const;
    // A copy in the order of ZTOCRBillPosition::lessThan; equal positions keep their order.
    ZTOCRBillPositionList sorted() const;
};

#endif // ZTOCRBILLPOSITIONLIST_H
