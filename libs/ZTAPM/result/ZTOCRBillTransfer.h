#ifndef ZTOCRBILLTRANSFER_H
#define ZTOCRBILLTRANSFER_H

#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"
#include "ZTTransferModel.h"
#include "ZTXMLOrderedElement.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>

class QDomElement;
class ZTOCRBillTransferImpl;

// The transfer (shipping) of one bill of the server's order calculation, read from "transfer"
// and written back into the order declaration as it came. The empty transfer has article 0,
// model -1 and price 0.
class ZTAPM_EXPORT ZTOCRBillTransfer
{
public:
    ZTOCRBillTransfer();
    // A null element gives the empty transfer.
    explicit ZTOCRBillTransfer(const QDomElement& theElement);
    ZTOCRBillTransfer(const ZTOCRBillTransfer& theOther);
    ZTOCRBillTransfer(ZTOCRBillTransfer&& theOther) noexcept;
    ZTOCRBillTransfer& operator=(const ZTOCRBillTransfer& theOther);
    ZTOCRBillTransfer& operator=(ZTOCRBillTransfer&& theOther) noexcept;
    ~ZTOCRBillTransfer();

    bool operator==(const ZTOCRBillTransfer& theOther) const;
    bool operator!=(const ZTOCRBillTransfer& theOther) const { return !(*this == theOther); }

    ZTArticleId articleId() const;
    ZTTransferModel transferModel() const;
    ZTMoney price() const;
    ZTDiscountModel discountModel() const;
    int discountLevel() const;

    // "transfer" with the article id, "model", "discount_type", "discount_level" and "price".
    // Never null: the order declares its transfer also when the server sent none.
    ZTXMLOrderedElement orderDeclarationElement() const;
    // Appends orderDeclarationElement() to theParent.
    void buildOrderDeclarationElement(QDomElement& theParent) const;

private:
    QSharedDataPointer<ZTOCRBillTransferImpl> d;
};

#endif // ZTOCRBILLTRANSFER_H
