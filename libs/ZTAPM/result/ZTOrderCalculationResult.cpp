#include "ZTOrderCalculationResult.h"

#include "ZTOrderCalculationResultImpl.h"
#include "ZTXMLParser.h"

#include <QDomElement>
#include <QSet>
#include <QXmlStreamWriter>

ZTOrderCalculationResult::ZTOrderCalculationResult() : d(new ZTOrderCalculationResultImpl)
{}

ZTOrderCalculationResult::ZTOrderCalculationResult(const ZTAPMStatus& theStatus,
                                                   const QDomElement& theElement)
    : d(new ZTOrderCalculationResultImpl)
{
    d->myApmStatus = theStatus;
    d->myNumOfProducts = ZTXMLParser::intText(theElement, QStringLiteral("total_products_quantity"), 0);
    d->myTotalBillSum = ZTMoney::fromXmlTag(theElement, QStringLiteral("total_bill_sum"), 0);
    d->myTotalCouponSum = ZTMoney::fromXmlTag(theElement, QStringLiteral("total_coupon_sum"), 0);
    d->myTotalProductsSum = ZTMoney::fromXmlTag(theElement, QStringLiteral("total_products_sum"), 0);
    d->myTotalTransfer = ZTMoney::fromXmlTag(theElement, QStringLiteral("total_transfer"), 0);
    d->myAvailablePayMethods = ZTPermittedPayMethodList(theElement);
    readBills(theElement);
    if (ZTXMLParser::intText(theElement, QStringLiteral("total_parts"), 0) != d->myBills.size()) {
        // Bills lost to the reading or to a group given twice: the rest is no whole order.
        qWarning("Number of bills dosn't match total_parts");
        d->myBills.clear();
    }
}

ZTOrderCalculationResult::ZTOrderCalculationResult(const ZTOrderCalculationResult& theOther) = default;
ZTOrderCalculationResult::ZTOrderCalculationResult(ZTOrderCalculationResult&& theOther) noexcept = default;
ZTOrderCalculationResult&
ZTOrderCalculationResult::operator=(const ZTOrderCalculationResult& theOther) = default;
ZTOrderCalculationResult&
ZTOrderCalculationResult::operator=(ZTOrderCalculationResult&& theOther) noexcept = default;
ZTOrderCalculationResult::~ZTOrderCalculationResult() = default;

void ZTOrderCalculationResult::readBills(const QDomElement& theElement)
{
    const QString name = QStringLiteral("order");
    for (QDomElement order = theElement.firstChildElement(name); !order.isNull();
         order = order.nextSiblingElement(name)) {
        const ZTOCRBill bill(order);
        if (!bill.isValid())
            continue;
        d->myBillDeclarationOrder.append(bill.shippingGroupId());
        d->myBills.insert(bill.shippingGroupId(), bill);
    }
}

bool ZTOrderCalculationResult::operator==(const ZTOrderCalculationResult& theOther) const
{
    return d == theOther.d || (d->myBills == theOther.d->myBills &&
                               d->myBillDeclarationOrder == theOther.d->myBillDeclarationOrder &&
                               d->myNumOfProducts == theOther.d->myNumOfProducts &&
                               d->myTotalBillSum == theOther.d->myTotalBillSum &&
                               d->myTotalCouponSum == theOther.d->myTotalCouponSum &&
                               d->myTotalProductsSum == theOther.d->myTotalProductsSum &&
                               d->myTotalTransfer == theOther.d->myTotalTransfer &&
                               d->myAvailablePayMethods == theOther.d->myAvailablePayMethods);
}

void ZTOrderCalculationResult::clear()
{
    d->myBills.clear();
    d->myBillDeclarationOrder.clear();
    d->myAvailablePayMethods.clear();
    d->myNumOfProducts = 0;
    d->myTotalBillSum = ZTMoney(0);
    d->myTotalCouponSum = ZTMoney(0);
    d->myTotalProductsSum = ZTMoney(0);
    d->myTotalTransfer = ZTMoney(0);
}

bool ZTOrderCalculationResult::isValid() const
{
    if (d->myBills.isEmpty())
        return false;
    for (const ZTOCRBill& bill : d->myBills) {
        if (!bill.isValid())
            return false;
    }
    return true;
}

int ZTOrderCalculationResult::numOfBills() const
{
    return int(d->myBills.size());
}

int ZTOrderCalculationResult::numOfProducts() const
{
    return d->myNumOfProducts;
}

ZTMoney ZTOrderCalculationResult::totalBillSum() const
{
    return d->myTotalBillSum;
}

ZTMoney ZTOrderCalculationResult::totalCouponSum() const
{
    return d->myTotalCouponSum;
}

ZTMoney ZTOrderCalculationResult::totalProductsSum() const
{
    return d->myTotalProductsSum;
}

ZTMoney ZTOrderCalculationResult::totalTransfer() const
{
    return d->myTotalTransfer;
}

ZTAPMStatus ZTOrderCalculationResult::apmStatus() const
{
    return d->myApmStatus;
}

ZTOCRBill ZTOrderCalculationResult::bill(const ZTShippingGroupId& theShippingGroupId) const
{
    return d->myBills.value(theShippingGroupId);
}

ZTOCRBillList ZTOrderCalculationResult::bills() const
{
    return d->myBills.sortedValues();
}

ZTShippingGroupIdList ZTOrderCalculationResult::billDeclarationOrder() const
{
    return d->myBillDeclarationOrder;
}

ZTOCRBillList ZTOrderCalculationResult::billsInDeclarationOrder() const
{
    ZTOCRBillList result;
    for (const ZTShippingGroupId& id : d->myBillDeclarationOrder)
        result.append(bill(id));
    return result;
}

ZTOCRBillCouponList ZTOrderCalculationResult::coupons() const
{
    ZTOCRBillCouponList result;
    for (const ZTOCRBill& bill : bills())
        result.unite(bill.coupons());
    return result;
}

void ZTOrderCalculationResult::markCouponAsDefective(const QString& theCode)
{
    d->myBills.markCouponAsDefective(theCode);
}

ZTExpressTypeList
ZTOrderCalculationResult::possibleExpressTypes(const ZTShippingGroupId& theShippingGroupId) const
{
    return d->myBills.possibleExpressTypes(theShippingGroupId);
}

ZTExpressTypeList ZTOrderCalculationResult::possibleExpressTypes() const
{
    const ZTOCRBillList all = bills();
    if (all.isEmpty())
        return ZTExpressTypeList();
    ZTExpressTypeList result = all.first().possibleExpressTypes();
    for (qsizetype i = 1; i < all.size(); ++i) {
        const ZTExpressTypeList offered = all.at(i).possibleExpressTypes();
        ZTExpressTypeList kept;
        for (const ZTExpressType& type : result) {
            if (offered.contains(type) && !kept.contains(type))
                kept.append(type);
        }
        result = kept;
    }
    return result;
}

ZTExpressType ZTOrderCalculationResult::expressType(const ZTShippingGroupId& theShippingGroupId) const
{
    return bill(theShippingGroupId).expressType();
}

ZTAPMShippingDate ZTOrderCalculationResult::shippingDate(const ZTExpressKey& theExpressKey) const
{
    return bill(theExpressKey.shippingGroupId()).shippingDate(theExpressKey.expressType());
}

ZTPaymentMethodList ZTOrderCalculationResult::availablePayMethods() const
{
    return d->myAvailablePayMethods.toPaymentMethodList();
}

ZTPermittedPayMethodList ZTOrderCalculationResult::permittedPayMethods() const
{
    return d->myAvailablePayMethods;
}

ZTPermittedShipmentMethodList
ZTOrderCalculationResult::availableShipmentMethods(const ZTPaymentMethod& theMethod) const
{
    return d->myAvailablePayMethods.value(theMethod.paymentId()).availableShipmentMethods();
}

void ZTOrderCalculationResult::buildOrderDeclarationTransferElement(
    QDomElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationTransferElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationPaymentElement(
    QDomElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationPaymentElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationShipmentElement(
    QDomElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationShipmentElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationExpressElement(
    QDomElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationExpressElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationSalesTaxElement(
    QDomElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationSalesTaxElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationTransferElement(
    ZTXMLOrderedElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationTransferElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationPaymentElement(
    ZTXMLOrderedElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationPaymentElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationShipmentElement(
    ZTXMLOrderedElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationShipmentElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationExpressElement(
    ZTXMLOrderedElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationExpressElement(theParent);
}

void ZTOrderCalculationResult::buildOrderDeclarationSalesTaxElement(
    ZTXMLOrderedElement& theParent, const ZTShippingGroupId& theShippingGroupId) const
{
    bill(theShippingGroupId).buildOrderDeclarationSalesTaxElement(theParent);
}

ZTXMLOrderedElement ZTOrderCalculationResult::orderDeclarationElement() const
{
    ZTXMLOrderedElement declaration(QStringLiteral("order_declaration"));
    QSet<ZTShippingGroupId> written;
    for (const ZTShippingGroupId& id : d->myBillDeclarationOrder) {
        if (written.contains(id) || !d->myBills.contains(id))
            continue;
        written.insert(id);
        declaration.appendChild(d->myBills.value(id).orderDeclarationElement());
    }
    return declaration;
}

QByteArray ZTOrderCalculationResult::orderDeclaration() const
{
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(2);
    writer.writeStartDocument();
    orderDeclarationElement().write(writer);
    writer.writeEndDocument();
    return document;
}

void ZTOrderCalculationResult::initForXTCI() const
{
    for (const ZTOCRBill& bill : d->myBills)
        bill.initForXTCI();
}
