#ifndef ZTDISCOUNTMODEL_H
#define ZTDISCOUNTMODEL_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

class QDebug;
class QDomElement;

// The pricing rule of one row of an article's price table.
enum ZTDiscountModelEnum : qint32 {
    ZTDiscountModelNone = 0,                // "*": no model; in a key, any model
    ZTDiscountModelNeverPriced = 1,         // "-"
    ZTDiscountModelBulk = 2,                // "b": per piece, by quantity
    ZTDiscountModelBulkTransfer = 16,       // "f": one amount, by quantity
    ZTDiscountModelBillingSumTransfer = 32, // "z": one amount, by the bill's sum of goods
    ZTDiscountModelBasketTransfer = 64,     // no keyword: the one position of a basket-wide transfer
    ZTDiscountModelExpressFee = 128,        // "x"
    ZTDiscountModelInherited = 256,         // "I": per piece at a level reached by a linked article
    ZTDiscountModelPackage = 512,           // "U": read by the server's order calculation only
    ZTDiscountModelFotoPackage = 1024,      // "w": a base package, then per piece
    ZTDiscountModelFotoPackageBulk = 2048,  // "y": bulk rows of a photo package
};

class ZTAPM_EXPORT ZTDiscountModel : public ZTEnumWrapper<ZTDiscountModelEnum>
{
public:
    ZTDiscountModel(ZTDiscountModelEnum theValue = ZTDiscountModelNone);
    // One keyword; an unknown one gives model 0 and a warning, unlike the other vocabularies,
    // since a row with a misspelt model is lost.
    explicit ZTDiscountModel(const QString& theKeyword);
    // Reads "discount_type" (default "*"). thePackageFlag, if given, tells whether the text
    // starts with a capital letter and means the package model: "U" is a package, "u" is not.
    ZTDiscountModel(const QDomElement& theElement, bool* thePackageFlag);

    bool isPackageModel() const { return myValue == ZTDiscountModelPackage; }
    bool isBulkDiscount() const { return myValue == ZTDiscountModelBulk; }
    bool usesTransferArticle() const;
    // Whether a row's bounds count pieces: for "z" they are the goods' sum in hundredths.
    bool boundsCountPieces() const { return myValue != ZTDiscountModelBillingSumTransfer; }

    void fillTable(ZTEnumToStringTable<ZTDiscountModelEnum>* theTable) const override;
};

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTDiscountModel& theModel);

#endif // ZTDISCOUNTMODEL_H
