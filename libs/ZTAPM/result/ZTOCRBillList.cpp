#include "ZTOCRBillList.h"

#include <algorithm>

bool ZTOCRBillList::lessThan(const ZTOCRBill& theLeft, const ZTOCRBill& theRight)
{
    return theLeft.shippingGroupId() < theRight.shippingGroupId();
}

ZTOCRBillList ZTOCRBillList::sortedByShippingGroupId() const
{
    ZTOCRBillList result = *this;
    std::stable_sort(result.begin(), result.end(), lessThan);
    return result;
}
