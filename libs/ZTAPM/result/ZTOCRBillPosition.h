#ifndef ZTOCRBILLPOSITION_H
#define ZTOCRBILLPOSITION_H

#include "ZTArticleClass.h"
#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"
#include "ZTOCRBillPositionPartList.h"
#include "ZTShippingGroupId.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>

class QDomElement;
class ZTAPMPriceKey;
class ZTOCRBillPositionImpl;
class ZTProductAbstract;

// One line of a bill of the server's order calculation: an article with its quantity, price,
// discount and transfer prices, and the parts ordered with it.
//
// While the client writes its order it claims quantity from the server's positions. The record
// is shared on copy and never detached, and the claim counter is changed in place through const
// operations, so that every copy of a position, such as those a bill hands out, sees the same
// claims.
class ZTAPM_EXPORT ZTOCRBillPosition
{
public:
    ZTOCRBillPosition();
    // An "orderposition" with its "parts".
    explicit ZTOCRBillPosition(const QDomElement& theElement);
    ZTOCRBillPosition(const ZTOCRBillPosition& theOther);
    ZTOCRBillPosition(ZTOCRBillPosition&& theOther) noexcept;
    ZTOCRBillPosition& operator=(const ZTOCRBillPosition& theOther);
    ZTOCRBillPosition& operator=(ZTOCRBillPosition&& theOther) noexcept;
    virtual ~ZTOCRBillPosition();

    // All fields but the parts; the claims count.
    bool operator==(const ZTOCRBillPosition& theOther) const;
    bool operator!=(const ZTOCRBillPosition& theOther) const { return !(*this == theOther); }
    // In the product order of the editor, see ZTOCRBillPositionImpl::operator<.
    bool operator<(const ZTOCRBillPosition& theOther) const;
    static bool lessThan(const ZTOCRBillPosition& theLeft, const ZTOCRBillPosition& theRight);

    // The server gave the position an id ("pos").
    bool isValid() const;
    int orderPositionId() const;
    ZTArticleId articleId() const;
    int quantity() const;
    int maxNumberOfFotos() const;
    ZTMoney price() const;
    ZTDiscountModel discountModel() const;
    int discountLevel() const;
    ZTMoney transferBasePrice() const;
    ZTMoney transferUnitPrice() const;
    ZTOCRBillPositionPartList orderParts() const;

    // quantity times the photos per piece, where fewer than 1 count as 1.
    int numberOfFotos() const;
    // numberOfFotos() and the quantities of all parts.
    int totalNumberOfFotos() const;
    // Discount model "U".
    bool isFotopack() const;
    // Discount model "w".
    bool isFotoBasePackage() const;

    // The product of the article; null if the catalogue does not know it.
    ZTProductAbstract* findProduct() const;
    ZTArticleClass articleClass() const;
    // Invalid without a product.
    ZTShippingGroupId shippingGroupId() const;
    // 0 without a product.
    ZTMoney nonOfferPrice(const ZTAPMPriceKey& theKey) const;

    // The first part of the article with free quantity left; a default part if there is none.
    ZTOCRBillPositionPart orderPartByArticleId(const ZTArticleId& theArticleId) const;
    // One piece: price and every part's total price.
    ZTMoney subTotalPrice() const;
    // The server's total price and quantity times every part's total price.
    ZTMoney totalPrice() const;

    // quantity less the claims; below 0 once claimed beyond it.
    int freeQuantity() const;
    // Claims theCount pieces; nothing stops a claim beyond the quantity.
    void reduceFreeQuantity(int theCount) const;
    // Drops the claims on the position and on all its parts.
    void initForXTCI() const;
    // Ends the process if the catalogue does not know the article: an order of an unknown
    // article cannot have been placed. The parts of a package model are not checked.
    void checkIntegrityPostOrder() const;
    // The pages of a book: its minimum pages and the page packages among the parts; 0 for a
    // product that has no pages.
    int countPages() const;
    // The article id, sign-extended.
    qint64 hashValue() const;

private:
    QSharedDataPointer<ZTOCRBillPositionImpl> d;
};

#endif // ZTOCRBILLPOSITION_H
