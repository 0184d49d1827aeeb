#ifndef ZTOCRBILLPAYMENTFEE_H
#define ZTOCRBILLPAYMENTFEE_H

#include "ZTArticleId.h"
#include "ZTMoney.h"
#include "ZTXMLOrderedElement.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>

class QDomElement;
class ZTOCRBillPaymentFeeImpl;

// The payment fee of one bill of the server's order calculation, read from "paymethod_fee" and
// written back into the order declaration as it came. The empty fee has article 0 and price 0.
class ZTAPM_EXPORT ZTOCRBillPaymentFee
{
public:
    ZTOCRBillPaymentFee();
    // A null element gives the empty fee.
    explicit ZTOCRBillPaymentFee(const QDomElement& theElement);
    ZTOCRBillPaymentFee(const ZTOCRBillPaymentFee& theOther);
    ZTOCRBillPaymentFee(ZTOCRBillPaymentFee&& theOther) noexcept;
    ZTOCRBillPaymentFee& operator=(const ZTOCRBillPaymentFee& theOther);
    ZTOCRBillPaymentFee& operator=(ZTOCRBillPaymentFee&& theOther) noexcept;
    ~ZTOCRBillPaymentFee();

    bool operator==(const ZTOCRBillPaymentFee& theOther) const;
    bool operator!=(const ZTOCRBillPaymentFee& theOther) const { return !(*this == theOther); }

    ZTArticleId articleId() const;
    ZTMoney price() const;

    // "paymethod_fee" with the article id and "price"; a null element if the article id is not
    // valid, since then there was no fee to declare.
    ZTXMLOrderedElement orderDeclarationElement() const;
    // Appends orderDeclarationElement() to theParent, if it is not null.
    void buildOrderDeclarationElement(QDomElement& theParent) const;

private:
    QSharedDataPointer<ZTOCRBillPaymentFeeImpl> d;
};

#endif // ZTOCRBILLPAYMENTFEE_H
