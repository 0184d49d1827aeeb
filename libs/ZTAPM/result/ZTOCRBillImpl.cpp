#include "ZTOCRBillImpl.h"

#include "ZTXMLParser.h"

#include <QDomElement>

ZTOCRBillImpl::ZTOCRBillImpl() = default;

ZTOCRBillImpl::ZTOCRBillImpl(const QDomElement& theElement)
{
    myShippingGroupId =
        ZTShippingGroupId::createFrom(ZTXMLParser::text(theElement, QStringLiteral("group_id")));
    myBillSum = ZTMoney::fromXmlTag(theElement, QStringLiteral("bill_sum"), 0);
    mySalesTax = ZTMoney::fromXmlTag(theElement, QStringLiteral("sales_tax"), -1);
    myProvincialSalesTax = ZTMoney::fromXmlTag(theElement, QStringLiteral("provincial_sales_tax"), -1);
    myTransfer = ZTOCRBillTransfer(theElement.firstChildElement(QStringLiteral("transfer")));
    myExpressFee = ZTOCRBillExpressFee(theElement.firstChildElement(QStringLiteral("express_fee")));
    myPaymentFee = ZTOCRBillPaymentFee(theElement.firstChildElement(QStringLiteral("paymethod_fee")));
    myShipmentFee = ZTOCRBillShipmentFee(theElement.firstChildElement(QStringLiteral("shipment_method_fee")));

    const QString positionName = QStringLiteral("orderposition");
    for (QDomElement position = theElement.firstChildElement(positionName); !position.isNull();
         position = position.nextSiblingElement(positionName))
        myPositions.append(ZTOCRBillPosition(position));
    myPositions = myPositions.sorted();

    myCoupons.readCoupons(theElement);
    readShippingTimes(theElement.firstChildElement(QStringLiteral("shipping_times")));
}

ZTOCRBillImpl::ZTOCRBillImpl(const ZTOCRBillImpl& theOther) = default;
ZTOCRBillImpl::~ZTOCRBillImpl() = default;

void ZTOCRBillImpl::readShippingTimes(const QDomElement& theElement)
{
    const QString name = QStringLiteral("shipping_time");
    for (QDomElement time = theElement.firstChildElement(name); !time.isNull();
         time = time.nextSiblingElement(name)) {
        const ZTExpressType type(ZTXMLParser::attribute(time, QStringLiteral("express")));
        const ZTAPMShippingDate date(time);
        // An unknown code decodes to no type: a date that no express type could ask for.
        if (type.isNull() || !date.isValid())
            continue;
        myShippingDates.insert(type, date);
    }
}

bool ZTOCRBillImpl::operator==(const ZTOCRBillImpl& theOther) const
{
    return myShippingGroupId == theOther.myShippingGroupId && myBillSum == theOther.myBillSum &&
           mySalesTax == theOther.mySalesTax && myProvincialSalesTax == theOther.myProvincialSalesTax &&
           myExpressFee == theOther.myExpressFee && myPaymentFee == theOther.myPaymentFee &&
           myShipmentFee == theOther.myShipmentFee && myTransfer == theOther.myTransfer &&
           myPositions == theOther.myPositions && myCoupons == theOther.myCoupons &&
           myShippingDates == theOther.myShippingDates;
}

ZTMoney ZTOCRBillImpl::checkIntegrity() const
{
    ZTMoney sum = myTransfer.price();
    sum += myExpressFee.price();
    sum += myPaymentFee.price();
    sum += myShipmentFee.price();
    if (mySalesTax.value() != ZTMoney::noPrice)
        sum += mySalesTax;
    if (myProvincialSalesTax.value() != ZTMoney::noPrice)
        sum += myProvincialSalesTax;
    for (const ZTOCRBillPosition& position : myPositions)
        sum += position.totalPrice();
    sum -= myCoupons.totalValue();
    return sum;
}

void ZTOCRBillImpl::clear()
{
    myShippingGroupId = ZTShippingGroupId();
    myBillSum = ZTMoney(0);
    mySalesTax = ZTMoney(-1);
    myProvincialSalesTax = ZTMoney(-1);
    myExpressFee = ZTOCRBillExpressFee();
    myPaymentFee = ZTOCRBillPaymentFee();
    myShipmentFee = ZTOCRBillShipmentFee();
    myTransfer = ZTOCRBillTransfer();
    myPositions.clear();
    myCoupons.clear();
}
