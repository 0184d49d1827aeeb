#ifndef ZTOCRBILLSHIPMENTFEE_H
#define ZTOCRBILLSHIPMENTFEE_H

#include "ZTArticleId.h"
#include "ZTMoney.h"
#include "ZTXMLOrderedElement.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>

class QDomElement;
class ZTOCRBillShipmentFeeImpl;

// The shipment method fee of one bill of the server's order calculation, read from "shipment_method_fee" and
// written back into the order declaration as it came. The empty fee has article 0 and price 0.
class ZTAPM_EXPORT ZTOCRBillShipmentFee
{
public:
    ZTOCRBillShipmentFee();
    // A null element gives the empty fee.
    explicit ZTOCRBillShipmentFee(const QDomElement& theElement);
    ZTOCRBillShipmentFee(const ZTOCRBillShipmentFee& theOther);
    ZTOCRBillShipmentFee(ZTOCRBillShipmentFee&& theOther) noexcept;
    ZTOCRBillShipmentFee& operator=(const ZTOCRBillShipmentFee& theOther);
    ZTOCRBillShipmentFee& operator=(ZTOCRBillShipmentFee&& theOther) noexcept;
    ~ZTOCRBillShipmentFee();

    bool operator==(const ZTOCRBillShipmentFee& theOther) const;
    bool operator!=(const ZTOCRBillShipmentFee& theOther) const { return !(*this == theOther); }

    ZTArticleId articleId() const;
    ZTMoney price() const;

    // "shipment_method_fee" with the article id and "price"; a null element if the article id is not
    // valid, since then there was no fee to declare.
    ZTXMLOrderedElement orderDeclarationElement() const;
    // Appends orderDeclarationElement() to theParent, if it is not null.
    void buildOrderDeclarationElement(QDomElement& theParent) const;

private:
    QSharedDataPointer<ZTOCRBillShipmentFeeImpl> d;
};

#endif // ZTOCRBILLSHIPMENTFEE_H
