#include "ZTAPMBillPositionAbstract.h"

#include "ZTProductAbstract.h"
#include "ZTStringHelper.h"

#include <functional>

ZTAPMBillPositionAbstract::ZTAPMBillPositionAbstract(ZTProductAbstract* theProduct) : myProduct(theProduct)
{}

ZTAPMBillPositionAbstract::ZTAPMBillPositionAbstract(const ZTAPMBillPositionAbstract& theOther) = default;
ZTAPMBillPositionAbstract&
ZTAPMBillPositionAbstract::operator=(const ZTAPMBillPositionAbstract& theOther) = default;
ZTAPMBillPositionAbstract::~ZTAPMBillPositionAbstract() = default;

ZTMoney ZTAPMBillPositionAbstract::positionPrice() const
{
    ZTMoney result = unitPrice();
    result *= unitCount();
    return result;
}

ZTDiscountModel ZTAPMBillPositionAbstract::discountModel() const
{
    return discountLimit().discountModel();
}

int ZTAPMBillPositionAbstract::discountLevel() const
{
    return discountLimit().discountLevel();
}

QString ZTAPMBillPositionAbstract::productName() const
{
    return myProduct ? myProduct->editorName() : QString();
}

bool ZTAPMBillPositionAbstract::lessThan(const ZTAPMBillPositionAbstract* theFirst,
                                         const ZTAPMBillPositionAbstract* theSecond)
{
    const QString first = theFirst->productName();
    const QString second = theSecond->productName();
    if (first == second)
        return std::less<const ZTAPMBillPositionAbstract*>()(theFirst, theSecond);
    return ZTStringHelper::numberAwareProductNameLessThan(first, second);
}
