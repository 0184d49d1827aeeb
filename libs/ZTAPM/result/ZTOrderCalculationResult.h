#ifndef ZTORDERCALCULATIONRESULT_H
#define ZTORDERCALCULATIONRESULT_H

#include "ZTAPMShippingDate.h"
#include "ZTAPMStatus.h"
#include "ZTExpressKey.h"
#include "ZTExpressTypeList.h"
#include "ZTMoney.h"
#include "ZTOCRBill.h"
#include "ZTOCRBillCouponList.h"
#include "ZTOCRBillList.h"
#include "ZTPaymentMethodList.h"
#include "ZTPermittedPayMethodList.h"
#include "ZTShippingGroupIdList.h"
#include "ZTXMLOrderedElement.h"
#include "ztapm_export.h"

#include <QByteArray>
#include <QSharedDataPointer>

class QDomElement;
class ZTOrderCalculationResultImpl;

// The server's authoritative calculation of an order: its sums, one bill per shipping group and
// the pay methods, with their shipment methods, that the server permits for it. The host offers
// those pay methods, claims the server's positions for its order items and writes the order
// declaration from the bills.
//
// Copy on write. Copies share the records of their bills' positions, so claims made through one
// copy count for all.
class ZTAPM_EXPORT ZTOrderCalculationResult
{
public:
    // The default status and nothing else: not valid.
    ZTOrderCalculationResult();
    // The server's answer; the element's own tag is not looked at. If "total_parts" does not
    // match the bills read, all bills are dropped with a warning; the declaration order and the
    // sums stay.
    ZTOrderCalculationResult(const ZTAPMStatus& theStatus, const QDomElement& theElement);
    ZTOrderCalculationResult(const ZTOrderCalculationResult& theOther);
    ZTOrderCalculationResult(ZTOrderCalculationResult&& theOther) noexcept;
    ZTOrderCalculationResult& operator=(const ZTOrderCalculationResult& theOther);
    ZTOrderCalculationResult& operator=(ZTOrderCalculationResult&& theOther) noexcept;
    virtual ~ZTOrderCalculationResult();

    // Bills, declaration order, sums and pay methods; the status takes no part.
    bool operator==(const ZTOrderCalculationResult& theOther) const;
    bool operator!=(const ZTOrderCalculationResult& theOther) const { return !(*this == theOther); }

    // Empties bills, declaration order and pay methods and sets the sums to 0; the status stays.
    void clear();
    // At least one bill, and every bill valid.
    bool isValid() const;

    int numOfBills() const;
    int numOfProducts() const;
    ZTMoney totalBillSum() const;
    ZTMoney totalCouponSum() const;
    ZTMoney totalProductsSum() const;
    ZTMoney totalTransfer() const;
    ZTAPMStatus apmStatus() const;

    // A default, invalid bill if the group has none.
    ZTOCRBill bill(const ZTShippingGroupId& theShippingGroupId) const;
    // By ascending shipping group id.
    ZTOCRBillList bills() const;
    // The groups of the accepted "order" elements in document order; kept when the bills are
    // dropped after a count mismatch.
    ZTShippingGroupIdList billDeclarationOrder() const;
    // One bill per id of the declaration order, an invalid one where the id has no bill.
    ZTOCRBillList billsInDeclarationOrder() const;
    // The coupons of all bills, united by code, bills by ascending group id.
    ZTOCRBillCouponList coupons() const;
    void markCouponAsDefective(const QString& theCode);

    // Those of the group's bill; none without a valid bill.
    ZTExpressTypeList possibleExpressTypes(const ZTShippingGroupId& theShippingGroupId) const;
    // The express types that every bill offers, by ascending value; none without bills.
    ZTExpressTypeList possibleExpressTypes() const;
    ZTExpressType expressType(const ZTShippingGroupId& theShippingGroupId) const;
    ZTAPMShippingDate shippingDate(const ZTExpressKey& theExpressKey) const;

    // The client's payment methods that the server permits, in the order of the ordering
    // details.
    ZTPaymentMethodList availablePayMethods() const;
    // What the server permits, as it listed it.
    ZTPermittedPayMethodList permittedPayMethods() const;
    // The shipment methods for the method's payment id; none if the server did not list it.
    ZTPermittedShipmentMethodList availableShipmentMethods(const ZTPaymentMethod& theMethod) const;

    // The declaration elements of the group's bill, appended to theParent.
    void buildOrderDeclarationTransferElement(QDomElement& theParent,
                                              const ZTShippingGroupId& theShippingGroupId) const;
    void buildOrderDeclarationPaymentElement(QDomElement& theParent,
                                             const ZTShippingGroupId& theShippingGroupId) const;
    void buildOrderDeclarationShipmentElement(QDomElement& theParent,
                                              const ZTShippingGroupId& theShippingGroupId) const;
    void buildOrderDeclarationExpressElement(QDomElement& theParent,
                                             const ZTShippingGroupId& theShippingGroupId) const;
    void buildOrderDeclarationSalesTaxElement(QDomElement& theParent,
                                              const ZTShippingGroupId& theShippingGroupId) const;
    // The same in a fixed order of attributes.
    void buildOrderDeclarationTransferElement(ZTXMLOrderedElement& theParent,
                                              const ZTShippingGroupId& theShippingGroupId) const;
    void buildOrderDeclarationPaymentElement(ZTXMLOrderedElement& theParent,
                                             const ZTShippingGroupId& theShippingGroupId) const;
    void buildOrderDeclarationShipmentElement(ZTXMLOrderedElement& theParent,
                                              const ZTShippingGroupId& theShippingGroupId) const;
    void buildOrderDeclarationExpressElement(ZTXMLOrderedElement& theParent,
                                             const ZTShippingGroupId& theShippingGroupId) const;
    void buildOrderDeclarationSalesTaxElement(ZTXMLOrderedElement& theParent,
                                              const ZTShippingGroupId& theShippingGroupId) const;

    // "order_declaration" with the ZTOCRBill::orderDeclarationElement() of every bill in
    // declaration order; a group listed twice is declared once, a group without a bill not.
    ZTXMLOrderedElement orderDeclarationElement() const;
    // That element as a UTF-8 XML document, indented by two blanks, the same byte for byte in
    // every run.
    QByteArray orderDeclaration() const;

    // Drops the claims on all positions and parts of all bills.
    void initForXTCI() const;

private:
    void readBills(const QDomElement& theElement);

    QSharedDataPointer<ZTOrderCalculationResultImpl> d;
};

#endif // ZTORDERCALCULATIONRESULT_H
