#include "ZTOCRBill.h"

#include "ZTAPMDataBase.h"
#include "ZTAPMOrderStatistic.h"
#include "ZTOCRBillImpl.h"
#include "ZTProductAbstract.h"
#include "ZTXMLBuilder.h"

#include <QDomElement>
#include <QSet>

#include <algorithm>
#include <limits>

namespace {
void appendTaxElement(QDomElement& theParent, const QString& theName, const ZTMoney& theTax)
{
    if (theTax.value() == ZTMoney::noPrice)
        return;
    QDomElement element = ZTXMLBuilder::buildDomElement(theParent, theName);
    ZTXMLBuilder::addAttribute(element, QStringLiteral("price"), theTax.value());
}

void appendTaxElement(ZTXMLOrderedElement& theParent, const QString& theName, const ZTMoney& theTax)
{
    if (theTax.value() == ZTMoney::noPrice)
        return;
    theParent.appendChild(ZTXMLOrderedElement(theName).addAttribute(QStringLiteral("price"), theTax.value()));
}

ZTXMLOrderedElement positionDeclaration(const ZTOCRBillPosition& thePosition)
{
    ZTXMLOrderedElement element(QStringLiteral("orderposition"));
    element.addAttribute(QStringLiteral("pos"), thePosition.orderPositionId());
    const ZTArticleId articleId = thePosition.articleId();
    element.addAttributesFrom(
        [&articleId](QDomElement& theScratch) { articleId.toArtIdAttribute(theScratch); });
    element.addAttribute(QStringLiteral("quantity"), thePosition.quantity());
    element.addAttribute(QStringLiteral("price"), thePosition.price().value());
    for (const ZTOCRBillPositionPart& part : thePosition.orderParts()) {
        ZTXMLOrderedElement partElement(QStringLiteral("part"));
        // A claim of nothing: the declaration shows the prices, the order's items claim them.
        part.buildPriceInformation(partElement, 0);
        partElement.addAttribute(QStringLiteral("quantity"), part.quantity());
        element.appendChild(partElement);
    }
    return element;
}
} // namespace

ZTOCRBill::ZTOCRBill() : d(new ZTOCRBillImpl)
{}

ZTOCRBill::ZTOCRBill(const QDomElement& theElement) : d(new ZTOCRBillImpl(theElement))
{}

ZTOCRBill::ZTOCRBill(const ZTOCRBill& theOther) = default;
ZTOCRBill::ZTOCRBill(ZTOCRBill&& theOther) noexcept = default;
ZTOCRBill& ZTOCRBill::operator=(const ZTOCRBill& theOther) = default;
ZTOCRBill& ZTOCRBill::operator=(ZTOCRBill&& theOther) noexcept = default;
ZTOCRBill::~ZTOCRBill() = default;

bool ZTOCRBill::operator==(const ZTOCRBill& theOther) const
{
    return d == theOther.d || *d == *theOther.d;
}

bool ZTOCRBill::isValid() const
{
    return d->myShippingGroupId.isValid() && !d->myPositions.isEmpty();
}

ZTShippingGroupId ZTOCRBill::shippingGroupId() const
{
    return d->myShippingGroupId;
}

ZTShippingGroupIdList ZTOCRBill::shippingGroupIds() const
{
    if (d->myShippingGroupId != ZTShippingGroupId(0))
        return ZTShippingGroupIdList{d->myShippingGroupId};
    QSet<ZTShippingGroupId> groups;
    for (const ZTOCRBillPosition& position : d->myPositions)
        groups.insert(position.shippingGroupId());
    ZTShippingGroupIdList result(QList<ZTShippingGroupId>(groups.cbegin(), groups.cend()));
    std::sort(result.begin(), result.end());
    return result;
}

ZTOCRBillPositionList ZTOCRBill::positions() const
{
    return d->myPositions;
}

ZTOCRBillCouponList ZTOCRBill::coupons() const
{
    return d->myCoupons;
}

ZTOCRBillPosition ZTOCRBill::positionByArticleId(const ZTArticleId& theArticleId) const
{
    for (const ZTOCRBillPosition& position : d->myPositions) {
        if (position.articleId() == theArticleId && position.freeQuantity() > 0)
            return position;
    }
    return ZTOCRBillPosition();
}

ZTOCRBillPosition ZTOCRBill::positionByStatistic(const ZTAPMOrderStatistic& theStatistic) const
{
    const ZTProductList products = theStatistic.products();
    for (const ZTOCRBillPosition& position : d->myPositions) {
        for (ZTProductAbstract* product : products) {
            if (product && product->articleId() == position.articleId() &&
                position.freeQuantity() >= theStatistic.countItems(product, 0) &&
                checkOrderedAddOns(position, theStatistic, product))
                return position;
        }
    }
    return ZTOCRBillPosition();
}

bool ZTOCRBill::checkOrderedAddOns(const ZTOCRBillPosition& thePosition,
                                   const ZTAPMOrderStatistic& theStatistic, ZTProductAbstract* theProduct)
{
    ZTAPMOrderStatistic::Items counts = theStatistic.items();
    counts.remove(theProduct);
    for (const ZTOCRBillPositionPart& part : thePosition.orderParts()) {
        ZTProductAbstract* product = part.findProduct();
        // A part without an add-on of the item starts below 0 and cannot come out at 0. The
        // server's quantities are anybody's numbers: a claim beyond any count matches nothing.
        const qint64 left =
            qint64(counts.value(product, -1)) - qint64(part.quantity()) * thePosition.quantity();
        if (left < std::numeric_limits<int>::min() || left > std::numeric_limits<int>::max())
            return false;
        counts.insert(product, int(left));
    }
    return std::all_of(counts.cbegin(), counts.cend(), [](int theCount) { return theCount == 0; });
}

ZTMoney ZTOCRBill::totalSumValue() const
{
    return d->myBillSum;
}

ZTMoney ZTOCRBill::subTotalValue() const
{
    ZTMoney result = d->myBillSum;
    if (salesTaxIsValid())
        result -= d->mySalesTax;
    if (provincialSalesTaxIsValid())
        result -= d->myProvincialSalesTax;
    return result;
}

ZTMoney ZTOCRBill::paymentFee() const
{
    return d->myPaymentFee.price();
}

ZTMoney ZTOCRBill::shipmentFee() const
{
    return d->myShipmentFee.price();
}

ZTMoney ZTOCRBill::transferFee() const
{
    return d->myTransfer.price();
}

ZTMoney ZTOCRBill::expressFee() const
{
    return d->myExpressFee.price();
}

ZTOCRBillPaymentFee ZTOCRBill::paymentFeeItem() const
{
    return d->myPaymentFee;
}

ZTOCRBillShipmentFee ZTOCRBill::shipmentFeeItem() const
{
    return d->myShipmentFee;
}

ZTOCRBillTransfer ZTOCRBill::transfer() const
{
    return d->myTransfer;
}

ZTOCRBillExpressFee ZTOCRBill::expressFeeItem() const
{
    return d->myExpressFee;
}

ZTExpressType ZTOCRBill::expressType() const
{
    return ZTAPMDataBase::instance()->expressType(d->myExpressFee.articleId());
}

ZTMoney ZTOCRBill::salesTaxValue() const
{
    return d->mySalesTax;
}

bool ZTOCRBill::salesTaxIsValid() const
{
    return d->mySalesTax.value() != ZTMoney::noPrice;
}

ZTMoney ZTOCRBill::provincialSalesTax() const
{
    return d->myProvincialSalesTax;
}

bool ZTOCRBill::provincialSalesTaxIsValid() const
{
    return d->myProvincialSalesTax.value() != ZTMoney::noPrice;
}

ZTExpressTypeList ZTOCRBill::possibleExpressTypes() const
{
    ZTExpressTypeList result(d->myShippingDates.keys());
    std::sort(result.begin(), result.end(),
              [](const ZTExpressType& theLeft, const ZTExpressType& theRight) { return theLeft < theRight; });
    return result;
}

ZTAPMShippingDate ZTOCRBill::shippingDate(const ZTExpressType& theExpressType) const
{
    return d->myShippingDates.value(theExpressType);
}

void ZTOCRBill::initForXTCI() const
{
    for (const ZTOCRBillPosition& position : d->myPositions)
        position.initForXTCI();
}

void ZTOCRBill::checkIntegrityPostOrder() const
{
    for (const ZTOCRBillPosition& position : d->myPositions)
        position.checkIntegrityPostOrder();
}

void ZTOCRBill::markCouponAsDefective(const QString& theCode)
{
    d->myCoupons.markCouponAsDefective(theCode);
}

void ZTOCRBill::buildOrderDeclarationTransferElement(QDomElement& theParent) const
{
    d->myTransfer.buildOrderDeclarationElement(theParent);
}

void ZTOCRBill::buildOrderDeclarationPaymentElement(QDomElement& theParent) const
{
    d->myPaymentFee.buildOrderDeclarationElement(theParent);
}

void ZTOCRBill::buildOrderDeclarationShipmentElement(QDomElement& theParent) const
{
    d->myShipmentFee.buildOrderDeclarationElement(theParent);
}

void ZTOCRBill::buildOrderDeclarationExpressElement(QDomElement& theParent) const
{
    d->myExpressFee.buildOrderDeclarationElement(theParent);
}

void ZTOCRBill::buildOrderDeclarationSalesTaxElement(QDomElement& theParent) const
{
    appendTaxElement(theParent, QStringLiteral("sales_tax"), d->mySalesTax);
    appendTaxElement(theParent, QStringLiteral("provincial_sales_tax"), d->myProvincialSalesTax);
}

void ZTOCRBill::buildOrderDeclarationTransferElement(ZTXMLOrderedElement& theParent) const
{
    theParent.appendChild(d->myTransfer.orderDeclarationElement());
}

void ZTOCRBill::buildOrderDeclarationPaymentElement(ZTXMLOrderedElement& theParent) const
{
    theParent.appendChild(d->myPaymentFee.orderDeclarationElement());
}

void ZTOCRBill::buildOrderDeclarationShipmentElement(ZTXMLOrderedElement& theParent) const
{
    theParent.appendChild(d->myShipmentFee.orderDeclarationElement());
}

void ZTOCRBill::buildOrderDeclarationExpressElement(ZTXMLOrderedElement& theParent) const
{
    theParent.appendChild(d->myExpressFee.orderDeclarationElement());
}

void ZTOCRBill::buildOrderDeclarationSalesTaxElement(ZTXMLOrderedElement& theParent) const
{
    appendTaxElement(theParent, QStringLiteral("sales_tax"), d->mySalesTax);
    appendTaxElement(theParent, QStringLiteral("provincial_sales_tax"), d->myProvincialSalesTax);
}

ZTXMLOrderedElement ZTOCRBill::orderDeclarationElement() const
{
    ZTXMLOrderedElement order(QStringLiteral("order"));
    order.addAttribute(QStringLiteral("group_id"), d->myShippingGroupId.id());
    buildOrderDeclarationTransferElement(order);
    buildOrderDeclarationPaymentElement(order);
    buildOrderDeclarationShipmentElement(order);
    buildOrderDeclarationExpressElement(order);
    buildOrderDeclarationSalesTaxElement(order);
    for (const ZTOCRBillPosition& position : d->myPositions)
        order.appendChild(positionDeclaration(position));
    return order;
}

ZTMoney ZTOCRBill::checkIntegrity() const
{
    return d->checkIntegrity();
}

void ZTOCRBill::clear()
{
    d->clear();
}
