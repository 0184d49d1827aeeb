#include "ZTOCRBillHash.h"

#include <algorithm>

ZTExpressTypeList ZTOCRBillHash::possibleExpressTypes(const ZTShippingGroupId& theShippingGroupId) const
{
    const ZTOCRBill bill = value(theShippingGroupId);
    return bill.isValid() ? bill.possibleExpressTypes() : ZTExpressTypeList();
}

void ZTOCRBillHash::markCouponAsDefective(const QString& theCode)
{
    for (auto it = begin(); it != end(); ++it) {
        ZTOCRBill bill = it.value();
        bill.markCouponAsDefective(theCode);
        it.value() = bill;
    }
}

QList<ZTShippingGroupId> ZTOCRBillHash::sortedKeys() const
{
    QList<ZTShippingGroupId> result = keys();
    std::sort(result.begin(), result.end());
    return result;
}

ZTOCRBillList ZTOCRBillHash::sortedValues() const
{
    ZTOCRBillList result;
    for (const ZTShippingGroupId& id : sortedKeys())
        result.append(value(id));
    return result;
}
