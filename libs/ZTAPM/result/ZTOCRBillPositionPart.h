#ifndef ZTOCRBILLPOSITIONPART_H
#define ZTOCRBILLPOSITIONPART_H

#include "ZTArticleId.h"
#include "ZTMoney.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>

class QDomElement;
class ZTAPMPriceKey;
class ZTOCRBillPositionPartImpl;
class ZTProductAbstract;
class ZTXMLOrderedElement;

// What is ordered with a position of the server's order calculation, such as extra page
// packages: an article with a quantity per piece of the position and a price per piece.
//
// The record is shared on copy, and its claim counter is changed in place through const
// operations: every copy of a part sees the same claims. Only setQuantity detaches.
class ZTAPM_EXPORT ZTOCRBillPositionPart
{
public:
    ZTOCRBillPositionPart();
    // A "part" with "order_part_id", the article, "quantity" and "price".
    explicit ZTOCRBillPositionPart(const QDomElement& theElement);
    ZTOCRBillPositionPart(const ZTOCRBillPositionPart& theOther);
    ZTOCRBillPositionPart(ZTOCRBillPositionPart&& theOther) noexcept;
    ZTOCRBillPositionPart& operator=(const ZTOCRBillPositionPart& theOther);
    ZTOCRBillPositionPart& operator=(ZTOCRBillPositionPart&& theOther) noexcept;
    ~ZTOCRBillPositionPart();

    // All fields, the claims too.
    bool operator==(const ZTOCRBillPositionPart& theOther) const;
    bool operator!=(const ZTOCRBillPositionPart& theOther) const { return !(*this == theOther); }

    // The server gave the part an id.
    bool isValid() const;
    int orderPartId() const;
    ZTArticleId articleId() const;
    int quantity() const;
    ZTMoney price() const;
    // price times quantity.
    ZTMoney totalPrice() const;
    void setQuantity(int theQuantity);

    // The product of the article; null if the catalogue does not know it.
    ZTProductAbstract* findProduct() const;
    // 0 without a product.
    ZTMoney nonOfferPrice(const ZTAPMPriceKey& theKey) const;

    // quantity less the claims; below 0 once claimed beyond it.
    int freeQuantity() const;
    // Drops all claims.
    void initForXTCI() const;
    // Writes "price" and the article id into theElement, an item of the order, and claims
    // theCount pieces.
    void buildPriceInformation(QDomElement& theElement, int theCount) const;
    // The same into an element written in order: "price", then the article id.
    void buildPriceInformation(ZTXMLOrderedElement& theElement, int theCount) const;
    // A part has nothing to check after the order.
    void checkIntegrityPostOrder() const;

private:
    QSharedDataPointer<ZTOCRBillPositionPartImpl> d;
};

#endif // ZTOCRBILLPOSITIONPART_H
