#include "ZTArticleClass.h"

#include "ZTKeywordTableFiller.h"

#include <QDomElement>

ZTArticleClass::ZTArticleClass(ZTArticleClassEnum theValue) : ZTEnumWrapper<ZTArticleClassEnum>(theValue)
{}

ZTArticleClass::ZTArticleClass(const QString& theText)
{
    setValue(theText);
}

ZTArticleClass ZTArticleClass::createFromShippingGroupId(const ZTShippingGroupId& theId)
{
    const qint32 group = theId.id();
    if (group < FirstClassShippingGroup || group > LastClassShippingGroup)
        return ZTArticleClass();
    return ZTArticleClass(ZTArticleClassEnum(Q_INT64_C(1) << (group - FirstClassShippingGroup)));
}

ZTShippingGroupId ZTArticleClass::shippingGroup() const
{
    if (!hasExactlyOneBit() || !matches(ZTArticleClassAllArticles))
        return ZTShippingGroupId();
    return ZTShippingGroupId(qCountTrailingZeroBits(quint64(myValue)) + FirstClassShippingGroup);
}

void ZTArticleClass::toTemplates2Format(QDomElement& theElement) const
{
    if (!isNull())
        theElement.setAttribute(QStringLiteral("article_class"), encodeCSV());
}

void ZTArticleClass::fillTable(ZTEnumToStringTable<ZTArticleClassEnum>* theTable) const
{
    // The element names of the products document are keywords too: "article", "add_on",
    // "express_fee", "transfer", "pay_method_fee" and "shipment_method_fee" name their classes.
    ZTKeywordTableFiller<ZTArticleClassEnum>(theTable)
        .add("CALENDAR", ZTArticleClassCalendar)
        .add("PHOTOBOOK", ZTArticleClassPhotoBook)
        .add("PHOTOBOOK_LAYFLAT", ZTArticleClassPhotoBookLayFlat)
        .add("CARD", ZTArticleClassCard)
        .add("WALL_DECOR", ZTArticleClassWallDecor)
        .add("PUZZLE", ZTArticleClassPuzzle)
        .add("METAL_PRINT", ZTArticleClassMetalPrint)
        .add("PHOTO_GIFT", ZTArticleClassPhotoGift)
        .add("TEXTILE", ZTArticleClassTextile)
        .add("ACRYLIC_PRINT", ZTArticleClassAcrylicPrint)
        .add("POSTER", ZTArticleClassPoster)
        .add("PICTURE_BOX_PRINTS", ZTArticleClassPictureBoxPrints)
        .add("PICTURE_BOX", ZTArticleClassPictureBox)
        .add("DIGITAL", ZTArticleClassDigital)
        .add("SLIPCASE", ZTArticleClassSlipcase)
        .add("PRINTS", ZTArticleClassPrints)
        .add("PREMIUM_PRINTS", ZTArticleClassPremiumPrints)
        .add("ENLARGEMENTS", ZTArticleClassEnlargements)
        .add("EXPRESS_FEE", ZTArticleClassExpressFee)
        .add("TRANSFER", ZTArticleClassTransfer)
        .add("PAY_METHOD_FEE", ZTArticleClassPayMethodFee)
        .add("SHIPMENT_METHOD_FEE", ZTArticleClassShipmentMethodFee)
        .add("PAGES", ZTArticleClassPages)
        .alias("PHOTOPRODUCT", ZTArticleClassPages)
        .add("SPOT_COLOR", ZTArticleClassSpotColor)
        .add("VIDEO", ZTArticleClassVideo)
        .add("DESIGN", ZTArticleClassDesign)
        .add("MAPS", ZTArticleClassMaps)
        .add("FRAME", ZTArticleClassFrame)
        .add("FRAME_GLASS", ZTArticleClassFrameGlass)
        .add("PASSEPARTOUT", ZTArticleClassPassepartout)
        .add("CALENDAR_STRIP", ZTArticleClassCalendarStrip)
        .add("WALL_HOLDER", ZTArticleClassWallHolder)
        .add("ENVELOPE", ZTArticleClassEnvelope)
        .add("MATT_COVER", ZTArticleClassMattCover)
        .add("BOOK_GIFT_BOX", ZTArticleClassBookGiftBox)
        .add("BOOK_GIFT_SERVICE", ZTArticleClassBookGiftService)
        .add("CALENDAR_GIFT_BOX", ZTArticleClassCalendarGiftBox)
        .add("FLYLEAF_AND_INSIDE_COVER", ZTArticleClassFlyleafAndInsideCover)
        .add("CALENDAR_STAND", ZTArticleClassCalendarStand)
        .add("LINEN_COVER", ZTArticleClassLinenCover)
        .add("ART_PRINT_BOX", ZTArticleClassArtPrintBox)
        .add("MEMORABILIA_POCKET", ZTArticleClassMemorabiliaPocket)
        .add("BOOK_PANO_PAGES", ZTArticleClassBookPanoPages)
        .add("CALENDAR_GIFT_SERVICE", ZTArticleClassCalendarGiftService)
        .add("PRE_ASSEMBLED", ZTArticleClassPreAssembled)
        .add("ALL_DESIGNABLE", ZTArticleClassAllDesignable)
        .add("ARTICLE", ZTArticleClassAllArticles)
        .add("FEE", ZTArticleClassAllFees)
        .add("ADD_ON", ZTArticleClassAllAddOns)
        .add("ALL", ZTArticleClassAll);
}
