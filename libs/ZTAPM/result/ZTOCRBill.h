#ifndef ZTOCRBILL_H
#define ZTOCRBILL_H

#include "ZTAPMShippingDate.h"
#include "ZTArticleId.h"
#include "ZTExpressType.h"
#include "ZTExpressTypeList.h"
#include "ZTMoney.h"
#include "ZTOCRBillCouponList.h"
#include "ZTOCRBillExpressFee.h"
#include "ZTOCRBillPaymentFee.h"
#include "ZTOCRBillPositionList.h"
#include "ZTOCRBillShipmentFee.h"
#include "ZTOCRBillTransfer.h"
#include "ZTShippingGroupId.h"
#include "ZTShippingGroupIdList.h"
#include "ZTXMLOrderedElement.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>

class QDomElement;
class ZTAPMOrderStatistic;
class ZTOCRBillImpl;
class ZTProductAbstract;

// One bill of the server's order calculation: what one shipping group costs, split into
// positions, fees, taxes and coupons, and the dates at which it can ship for each express type.
// Group 0 marks a bill that spans several shipping groups.
//
// The bill also writes the order declaration, so that the order repeats the server's figures.
// Copy on write; the positions a bill hands out share their claim counters with the bill's own.
class ZTAPM_EXPORT ZTOCRBill
{
public:
    // No group, no positions: not valid.
    ZTOCRBill();
    // An "order" of the server's answer.
    explicit ZTOCRBill(const QDomElement& theElement);
    ZTOCRBill(const ZTOCRBill& theOther);
    ZTOCRBill(ZTOCRBill&& theOther) noexcept;
    ZTOCRBill& operator=(const ZTOCRBill& theOther);
    ZTOCRBill& operator=(ZTOCRBill&& theOther) noexcept;
    virtual ~ZTOCRBill();

    bool operator==(const ZTOCRBill& theOther) const;
    bool operator!=(const ZTOCRBill& theOther) const { return !(*this == theOther); }

    // A readable group id and at least one position.
    bool isValid() const;
    ZTShippingGroupId shippingGroupId() const;
    // The bill's group; for group 0 the distinct groups of its positions' products, ascending.
    ZTShippingGroupIdList shippingGroupIds() const;
    // In the product order of the editor.
    ZTOCRBillPositionList positions() const;
    ZTOCRBillCouponList coupons() const;

    // The first position of the article with free quantity left; a default position if none.
    ZTOCRBillPosition positionByArticleId(const ZTArticleId& theArticleId) const;
    // The first position that one order item of the client can claim: a product of the item
    // with the position's article and no more pieces than are free, whose add-ons are exactly
    // the position's parts. Positions in order, the item's products by ascending article id; a
    // default position if nothing matches. The position shares its claims with the bill's.
    ZTOCRBillPosition positionByStatistic(const ZTAPMOrderStatistic& theStatistic) const;
    // Whether the parts of thePosition are exactly the add-ons of the item besides theProduct:
    // each part's quantity times the position's quantity must be the item's count of the part's
    // product, and the item must have no other add-on.
    static bool checkOrderedAddOns(const ZTOCRBillPosition& thePosition,
                                   const ZTAPMOrderStatistic& theStatistic, ZTProductAbstract* theProduct);

    // The server's sum of the bill.
    ZTMoney totalSumValue() const;
    // The sum less the valid taxes.
    ZTMoney subTotalValue() const;
    // The prices of the fees and of the transfer.
    ZTMoney paymentFee() const;
    ZTMoney shipmentFee() const;
    ZTMoney transferFee() const;
    ZTMoney expressFee() const;
    // The fee items themselves, as the server sent them.
    ZTOCRBillPaymentFee paymentFeeItem() const;
    ZTOCRBillShipmentFee shipmentFeeItem() const;
    ZTOCRBillTransfer transfer() const;
    ZTOCRBillExpressFee expressFeeItem() const;
    // The express type of the express fee's article.
    ZTExpressType expressType() const;
    ZTMoney salesTaxValue() const;
    // A tax of 0 is valid; -1 means the server sent none.
    bool salesTaxIsValid() const;
    ZTMoney provincialSalesTax() const;
    bool provincialSalesTaxIsValid() const;

    // The express types for which the server gave a date, by ascending value.
    ZTExpressTypeList possibleExpressTypes() const;
    // A default, invalid date if the server gave none for the type.
    ZTAPMShippingDate shippingDate(const ZTExpressType& theExpressType) const;

    // Drops the claims on all positions and parts.
    void initForXTCI() const;
    // Ends the process if a position's article is unknown to the catalogue.
    void checkIntegrityPostOrder() const;
    // Marks every coupon of the code in this bill; other copies keep theirs.
    void markCouponAsDefective(const QString& theCode);

    // The declaration elements, each appended to theParent: the transfer always, the fees only
    // where the server named an article.
    void buildOrderDeclarationTransferElement(QDomElement& theParent) const;
    void buildOrderDeclarationPaymentElement(QDomElement& theParent) const;
    void buildOrderDeclarationShipmentElement(QDomElement& theParent) const;
    void buildOrderDeclarationExpressElement(QDomElement& theParent) const;
    // "sales_tax" and then "provincial_sales_tax", each with "price", where the tax is valid.
    void buildOrderDeclarationSalesTaxElement(QDomElement& theParent) const;
    // The same, appended in a fixed order of attributes, so that a declaration written from
    // them is the same byte for byte in every run.
    void buildOrderDeclarationTransferElement(ZTXMLOrderedElement& theParent) const;
    void buildOrderDeclarationPaymentElement(ZTXMLOrderedElement& theParent) const;
    void buildOrderDeclarationShipmentElement(ZTXMLOrderedElement& theParent) const;
    void buildOrderDeclarationExpressElement(ZTXMLOrderedElement& theParent) const;
    void buildOrderDeclarationSalesTaxElement(ZTXMLOrderedElement& theParent) const;
    // The whole declaration of the bill: "order" with "group_id", then the transfer, payment,
    // shipment, express and tax elements, then one "orderposition" per position with "pos", the
    // article, "quantity" and "price", each with a "part" per part ("price", article,
    // "quantity"). Writing it claims nothing.
    ZTXMLOrderedElement orderDeclarationElement() const;

    // What the bill's items add up to, less the coupons; compare with totalSumValue().
    ZTMoney checkIntegrity() const;
    // Back to a bill without a group, fees, taxes, positions or coupons; the dates stay.
    void clear();

private:
    QSharedDataPointer<ZTOCRBillImpl> d;
};

#endif // ZTOCRBILL_H
