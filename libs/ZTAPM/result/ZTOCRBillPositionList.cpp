#include "ZTOCRBillPositionList.h"

#include <algorithm>

ZTMoney ZTOCRBillPositionList::subTotal() const
{
    ZTMoney total(0);
    for (const ZTOCRBillPosition& position : *this)
        total += position.price();
    return total;
}

ZTOCRBillPositionList ZTOCRBillPositionList::filter(const ZTShippingGroupId& theShippingGroupId) const
{
    ZTOCRBillPositionList result;
    for (const ZTOCRBillPosition& position : *this) {
        if (position.shippingGroupId() == theShippingGroupId)
            result.append(position);
    }
    return result;
}

ZTOCRBillPositionList ZTOCRBillPositionList::sorted() const
{
    ZTOCRBillPositionList result = *this;
    std::stable_sort(result.begin(), result.end(), &ZTOCRBillPosition::lessThan);
    return result;
}
