#ifndef ZTOCRBILLEXPRESSFEE_H
#define ZTOCRBILLEXPRESSFEE_H

#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"
#include "ZTXMLOrderedElement.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>

class QDomElement;
class ZTOCRBillExpressFeeImpl;

// The express fee of one bill of the server's order calculation, read from "express_fee" and
// written back into the order declaration as it came. The empty fee has article 0 and price 0.
class ZTAPM_EXPORT ZTOCRBillExpressFee
{
public:
    ZTOCRBillExpressFee();
    // A null element gives the empty fee.
    explicit ZTOCRBillExpressFee(const QDomElement& theElement);
    ZTOCRBillExpressFee(const ZTOCRBillExpressFee& theOther);
    ZTOCRBillExpressFee(ZTOCRBillExpressFee&& theOther) noexcept;
    ZTOCRBillExpressFee& operator=(const ZTOCRBillExpressFee& theOther);
    ZTOCRBillExpressFee& operator=(ZTOCRBillExpressFee&& theOther) noexcept;
    ~ZTOCRBillExpressFee();

    bool operator==(const ZTOCRBillExpressFee& theOther) const;
    bool operator!=(const ZTOCRBillExpressFee& theOther) const { return !(*this == theOther); }

    ZTArticleId articleId() const;
    ZTMoney price() const;
    ZTDiscountModel discountModel() const;
    int discountLevel() const;

    // "express_fee" with the article id, "discount_type", "discount_level" and "price"; a null
    // element if the article id is not valid, since then there was no fee to declare.
    ZTXMLOrderedElement orderDeclarationElement() const;
    // Appends orderDeclarationElement() to theParent, if it is not null.
    void buildOrderDeclarationElement(QDomElement& theParent) const;

private:
    QSharedDataPointer<ZTOCRBillExpressFeeImpl> d;
};

#endif // ZTOCRBILLEXPRESSFEE_H
