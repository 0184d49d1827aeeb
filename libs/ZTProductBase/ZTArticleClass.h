#ifndef ZTARTICLECLASS_H
#define ZTARTICLECLASS_H

#include "ZTEnumToStringTable.h"
#include "ZTShippingGroupId.h"
#include "ztproductbase_export.h"

class QDomElement;

// What kind of article an article is; a 64-bit set in which every class is one bit. The bits up
// to 0x20000 are the articles that are ordered on their own, the four after them are the fees,
// and the bits from 0x400000 up are add-ons, which are ordered only together with an article.
enum ZTArticleClassEnum : qint64 {
    ZTArticleClassNone = 0,
    ZTArticleClassCalendar = Q_INT64_C(0x1),
    ZTArticleClassPhotoBook = Q_INT64_C(0x2),
    ZTArticleClassPhotoBookLayFlat = Q_INT64_C(0x4),
    ZTArticleClassCard = Q_INT64_C(0x8),
    ZTArticleClassWallDecor = Q_INT64_C(0x10),
    ZTArticleClassPuzzle = Q_INT64_C(0x20),
    ZTArticleClassMetalPrint = Q_INT64_C(0x40),
    ZTArticleClassPhotoGift = Q_INT64_C(0x80),
    ZTArticleClassTextile = Q_INT64_C(0x100),
    ZTArticleClassAcrylicPrint = Q_INT64_C(0x200),
    ZTArticleClassPoster = Q_INT64_C(0x400),
    ZTArticleClassPictureBoxPrints = Q_INT64_C(0x800),
    ZTArticleClassPictureBox = Q_INT64_C(0x1000),
    ZTArticleClassDigital = Q_INT64_C(0x2000),
    ZTArticleClassSlipcase = Q_INT64_C(0x4000),
    ZTArticleClassPrints = Q_INT64_C(0x8000),
    ZTArticleClassPremiumPrints = Q_INT64_C(0x10000),
    ZTArticleClassEnlargements = Q_INT64_C(0x20000),
    ZTArticleClassExpressFee = Q_INT64_C(0x40000),
    ZTArticleClassTransfer = Q_INT64_C(0x80000),
    ZTArticleClassPayMethodFee = Q_INT64_C(0x100000),
    ZTArticleClassShipmentMethodFee = Q_INT64_C(0x200000),
    // A page package of a book or calendar, or a photo product added to an article.
    ZTArticleClassPages = Q_INT64_C(0x400000),
    ZTArticleClassSpotColor = Q_INT64_C(0x800000),
    ZTArticleClassVideo = Q_INT64_C(0x1000000),
    ZTArticleClassDesign = Q_INT64_C(0x2000000),
    ZTArticleClassMaps = Q_INT64_C(0x4000000),
    // A frame, or the wooden strips of a poster.
    ZTArticleClassFrame = Q_INT64_C(0x8000000),
    ZTArticleClassFrameGlass = Q_INT64_C(0x10000000),
    ZTArticleClassPassepartout = Q_INT64_C(0x20000000),
    ZTArticleClassCalendarStrip = Q_INT64_C(0x40000000),
    ZTArticleClassWallHolder = Q_INT64_C(0x80000000),
    ZTArticleClassEnvelope = Q_INT64_C(0x100000000),
    ZTArticleClassMattCover = Q_INT64_C(0x200000000),
    ZTArticleClassBookGiftBox = Q_INT64_C(0x400000000),
    ZTArticleClassBookGiftService = Q_INT64_C(0x800000000),
    ZTArticleClassCalendarGiftBox = Q_INT64_C(0x1000000000),
    ZTArticleClassFlyleafAndInsideCover = Q_INT64_C(0x2000000000),
    ZTArticleClassCalendarStand = Q_INT64_C(0x4000000000),
    ZTArticleClassLinenCover = Q_INT64_C(0x8000000000),
    ZTArticleClassArtPrintBox = Q_INT64_C(0x10000000000),
    ZTArticleClassMemorabiliaPocket = Q_INT64_C(0x20000000000),
    ZTArticleClassBookPanoPages = Q_INT64_C(0x40000000000),
    ZTArticleClassCalendarGiftService = Q_INT64_C(0x80000000000),
    // An article that is delivered assembled; ordered on its own like the first group.
    ZTArticleClassPreAssembled = Q_INT64_C(0x100000000000),

    // The products that designs and templates are made for.
    ZTArticleClassAllDesignable = Q_INT64_C(0x7fff),
    ZTArticleClassAllArticles = Q_INT64_C(0x3ffff),
    ZTArticleClassAllFees = Q_INT64_C(0x3c0000),
    ZTArticleClassAllAddOns = Q_INT64_C(0xfffffc00000),
    ZTArticleClassAll = Q_INT64_C(0x1fffffffffff),
};

class ZTPRODUCTBASE_EXPORT ZTArticleClass : public ZTEnumWrapper<ZTArticleClassEnum>
{
public:
    // The shipping groups that hold exactly one class: group n holds the class of bit n - 1.
    static constexpr qint32 FirstClassShippingGroup = 1;
    static constexpr qint32 LastClassShippingGroup = 18;

    ZTArticleClass(ZTArticleClassEnum theValue = ZTArticleClassNone);
    explicit ZTArticleClass(const QString& theText);

    // The class of the articles of a group, for articles whose document does not say (prints);
    // 0 for any group outside FirstClassShippingGroup..LastClassShippingGroup.
    static ZTArticleClass createFromShippingGroupId(const ZTShippingGroupId& theId);
    // The group of this class; an invalid id unless the value is exactly one of the classes
    // that createFromShippingGroupId gives.
    ZTShippingGroupId shippingGroup() const;

    bool isAddOn() const { return matches(ZTArticleClassAllAddOns); }

    // Writes the classes as keywords into the attribute "article_class"; nothing for 0.
    void toTemplates2Format(QDomElement& theElement) const;

    void fillTable(ZTEnumToStringTable<ZTArticleClassEnum>* theTable) const override;
};

#endif // ZTARTICLECLASS_H
