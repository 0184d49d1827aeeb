#include "ZTAPMArticleDefinitionImpl.h"

#include "ZTBasisSettings.h"
#include "ZTDiagnosticCollector.h"
#include "ZTDistanceUnit.h"
#include "ZTMaterialType.h"
#include "ZTPriceClassSet.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>

namespace {

// The back print of an advent calendar door has one size in every key account.
const ZTPageSizeData& advDoorBackprintSize()
{
    static const ZTPageSizeData ADV_DOOR_BACKPRINT_SIZE(QSize(400, 400), ZTBleedMargin(15, 15));
    return ADV_DOOR_BACKPRINT_SIZE;
}

QString attribute(const QDomElement& theElement, const QString& theName,
                  const QString& theDefault = QString())
{
    return ZTXMLParser::attribute(theElement, theName, theDefault, true);
}

// A calendar's sheet count may contradict its cover type; the lowest page count decides.
ZTCoverType adjustedCoverType(const ZTCoverType& theCover, int theMinPages)
{
    if (theCover == ZTCoverTypeCalendarMonthly) {
        if (theMinPages == 1)
            return ZTCoverType(ZTCoverTypeCalendarSingleSheet);
        if (theMinPages == 2)
            return ZTCoverType(ZTCoverTypeCalendarTwoSheets);
        if (theMinPages == 25)
            return ZTCoverType(ZTCoverTypeCalendarTwiceMonthly);
    } else if (theCover == ZTCoverTypeCalendarTwiceMonthly && theMinPages == 13) {
        return ZTCoverType(ZTCoverTypeCalendarMonthly);
    }
    return theCover;
}

constexpr qint32 pageTypeDoorBackPrintPage = 1032;
constexpr qint32 pageTypePanoBasePage = 0x200008;
constexpr qint32 pageTypePanoWingPage = 0x400008;
constexpr qint32 pageTypeAllSpines = 0x30001;
constexpr qint32 pageTypeAllCovers = 0xf03e1;

} // namespace

ZTAPMArticleDefinitionImpl::ZTAPMArticleDefinitionImpl() = default;

ZTAPMArticleDefinitionImpl::ZTAPMArticleDefinitionImpl(const QDomElement& theElement)
{
    // The order matters: the class needs the order text and the page counts, the sizes need
    // the class.
    myArticleId = ZTArticleId::fromIdAttribute(theElement);
    myShippingGroupId = ZTShippingGroupId(ZTXMLParser::intAttribute(theElement, QStringLiteral("group"), -1));
    myOrderTxtType = attribute(theElement, QStringLiteral("order_txt_type"));
    myName = attribute(theElement, QStringLiteral("name"));
    myEditorName = attribute(theElement, QStringLiteral("editor_name"));
    myPageCountOrganization = ZTPageCountOrganization::createFromProductsXML(theElement);
    myNumberOfProducts = ZTXMLParser::intAttribute(theElement, QStringLiteral("pieces"), 1);
    myVariants = ZTConfiguredArticleVariantList(theElement);
    myOrderTxt.update(theElement);
    readLinkedAricles(theElement);
    myRequiredAddOns = ZTRequiredAddOns(theElement);
    myPrintQuality = ZTPrintQuality::createFromXTCI(theElement);
    myFurtherConditions = ZTAPMArticleConditions::createFromXTCI(theElement);
    myPriceClass = ZTPriceClass::create(attribute(theElement, QStringLiteral("price_class")));

    const QDomElement composition = theElement.firstChildElement(QStringLiteral("composition"));
    const QDomElement page = composition.firstChildElement(QStringLiteral("page"));
    const QDomElement cover = composition.firstChildElement(QStringLiteral("cover"));
    const QDomElement panorama = composition.firstChildElement(QStringLiteral("panorama_page"));
    const QDomElement barcode = composition.firstChildElement(QStringLiteral("barcode"));
    const QDomElement type = theElement.firstChildElement(QStringLiteral("type"));
    const ZTDistanceUnit unit(attribute(composition, QStringLiteral("units"), QStringLiteral("mm")));
    myBarcodes = ZTBarcodeDefinitionList::createFromXTCI(barcode, unit);
    mySpine = ZTSpineConfig::createFromProductsXML(theElement);

    myArrangement = ZTProductArrangement(attribute(type, QStringLiteral("arrangement")));
    myCoverType = adjustedCoverType(ZTCoverType(attribute(type, QStringLiteral("cover"))),
                                    myPageCountOrganization.minPages());

    myPageBinding = ZTPageBinding(attribute(page, QStringLiteral("binding")));
    // One attribute, two vocabularies: papers for books and calendars, materials for wall decor.
    const QString material = type.attribute(QStringLiteral("material"));
    myPaperType = ZTPaperType(material);
    const ZTMaterialType materialType(material);
    // Neither table tells of a keyword it lacks, as the other may know it; one that both lack is
    // told here.
    if (ZTDiagnosticCollector::isCollecting() && !material.trimmed().isEmpty() && myPaperType.isNull() &&
        materialType.isNull())
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Warning,
            QCoreApplication::translate("ZTAPMArticleDefinitionImpl",
                                        "\"%1\" ist kein Schlüsselwort für Papier- oder Materialarten")
                .arg(material.trimmed()));

    myArticleClass = detectArticleClass(theElement.nodeName(), materialType, myCoverType);

    // One warning for all sizes of the article; a bad length reads as 0.
    QStringList badLengths;
    for (const QDomElement& sized : {page, cover, panorama}) {
        for (const QString& length : ZTPageSizeData::badLengths(sized, unit))
            badLengths.append(sized.tagName() + QLatin1Char(' ') + length);
    }
    if (!badLengths.isEmpty()) {
        qWarning().noquote() << QStringLiteral("sizes of article %1: no length of at most 1 km: %2")
                                    .arg(myArticleId.id())
                                    .arg(badLengths.join(QStringLiteral(", ")));
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Note,
            QCoreApplication::translate("ZTAPMArticleDefinitionImpl",
                                        "Größen von Artikel %1: keine Länge von höchstens 1 km: %2")
                .arg(myArticleId.id())
                .arg(badLengths.join(QStringLiteral(", "))));
    }
    myPageSize = ZTPageSizeData(page, unit, myArticleClass, ZTPageSizeData());
    myCoverSize = ZTPageSizeData(cover, unit, myArticleClass, myPageSize);
    myCoverSize.reducePageSize(mySpine.coverReduceSize());
    myPanoBaseSize = ZTPageSizeDataPanoBase(panorama, unit, myArticleClass, myPageSize);
    myPanoWingSize = ZTPageSizeDataPanoWing(panorama, unit, myArticleClass, myPageSize);

    // Some products fix their page counts themselves; the last rule that applies wins.
    if (myArticleClass.matches(ZTArticleClassEnum(ZTArticleClassPictureBoxPrints | ZTArticleClassPictureBox)))
        myPageCountOrganization = ZTPageCountOrganization::createFromProductsXMLForPictureBox(theElement);
    if (myArticleId.isAdventCalendarWithDoorBackPrint())
        myPageCountOrganization = ZTPageCountOrganization::createForAdventCalendarWithDoorBackPrint();
    if (myArticleId.isCardWithInsertedFoto())
        myPageCountOrganization = ZTPageCountOrganization::createForCardWithInsertedFoto();
}

ZTAPMArticleDefinitionImpl::ZTAPMArticleDefinitionImpl(const ZTAPMArticleDefinitionImpl& other) = default;
ZTAPMArticleDefinitionImpl::~ZTAPMArticleDefinitionImpl() = default;

bool ZTAPMArticleDefinitionImpl::operator==(const ZTAPMArticleDefinitionImpl& other) const
{
    return myArticleId == other.myArticleId && myArticleClass == other.myArticleClass &&
           myShippingGroupId == other.myShippingGroupId && myOrderTxtType == other.myOrderTxtType &&
           myName == other.myName && myEditorName == other.myEditorName &&
           myPageCountOrganization == other.myPageCountOrganization &&
           myNumberOfProducts == other.myNumberOfProducts && myVariants == other.myVariants &&
           myOrderTxt == other.myOrderTxt && myLinkedArticleIds == other.myLinkedArticleIds &&
           myRequiredAddOns == other.myRequiredAddOns && myPrintQuality == other.myPrintQuality &&
           myPageSize == other.myPageSize && myCoverSize == other.myCoverSize &&
           myPanoBaseSize == other.myPanoBaseSize && myPanoWingSize == other.myPanoWingSize &&
           mySpine == other.mySpine && myArrangement == other.myArrangement &&
           myCoverType == other.myCoverType && myPageBinding == other.myPageBinding &&
           myPaperType == other.myPaperType && myBarcodes == other.myBarcodes &&
           myFurtherConditions == other.myFurtherConditions;
}

void ZTAPMArticleDefinitionImpl::update(const ZTAPMArticleDefinitionImpl& other)
{
    if (this == &other)
        return;
    myShippingGroupId = other.myShippingGroupId;
    myOrderTxtType = other.myOrderTxtType;
    myName = other.myName;
    myEditorName = other.myEditorName;
    myPageCountOrganization = other.myPageCountOrganization;
    myNumberOfProducts = other.myNumberOfProducts;
    myVariants = other.myVariants;
    myOrderTxt = other.myOrderTxt;
    myLinkedArticleIds = other.myLinkedArticleIds;
    myRequiredAddOns = other.myRequiredAddOns;
    myPrintQuality = other.myPrintQuality;
    myPageSize = other.myPageSize;
    myCoverSize = other.myCoverSize;
    myPanoBaseSize = other.myPanoBaseSize;
    myPanoWingSize = other.myPanoWingSize;
    mySpine = other.mySpine;
    myArrangement = other.myArrangement;
    myCoverType = other.myCoverType;
    myPageBinding = other.myPageBinding;
    myPaperType = other.myPaperType;
    myBarcodes = other.myBarcodes;
    myFurtherConditions = other.myFurtherConditions;
}

QString ZTAPMArticleDefinitionImpl::fullName(const QString& theName) const
{
    // Catalogue editors need to tell look-alike products apart.
    if (theName.isEmpty() || !ZTBasisSettings::instance()->runsInMasterMode())
        return theName;
    return QStringLiteral("%1 [%2]").arg(theName, myOrderTxt.orderTxtValue(QStringLiteral("TYPE=")));
}

QString ZTAPMArticleDefinitionImpl::orderTxtLines() const
{
    return myOrderTxt.lines().join(QLatin1Char('\n'));
}

QSize ZTAPMArticleDefinitionImpl::pageSize(const ZTPageSizeKey& theKey) const
{
    const qint32 type = theKey.pageType().value();
    if (type & pageTypeAllSpines) {
        // Cut, not rounded; a width beyond the int range of a size ends at its edge.
        const int spineWidth = mySpine.spineWidth(unsigned(theKey.pageCount())).truncatedPixels();
        return QSize(spineWidth, myCoverSize.pageSizeInPixel().height());
    }
    if (type & pageTypeAllCovers)
        return myCoverSize.pageSizeInPixel();
    if (type == pageTypeDoorBackPrintPage)
        return advDoorBackprintSize().pageSizeInPixel();
    if (type == pageTypePanoBasePage)
        return myPanoBaseSize.pageSizeInPixel();
    if (type == pageTypePanoWingPage)
        return myPanoWingSize.pageSizeInPixel();
    return myPageSize.pageSizeInPixel();
}

ZTBleedMargin ZTAPMArticleDefinitionImpl::findBleedMargins(const ZTPageSizeKey& theKey) const
{
    const qint32 type = theKey.pageType().value();
    if (type & pageTypeAllCovers)
        return myCoverSize.pageBleedMarginsInPixel();
    if (type == pageTypeDoorBackPrintPage)
        return advDoorBackprintSize().pageBleedMarginsInPixel();
    return myPageSize.pageBleedMarginsInPixel();
}

bool ZTAPMArticleDefinitionImpl::hasNoBleedBetweenMultiplePages() const
{
    // Calendars print across their sheets only when continuous, books only when lay-flat.
    return (myArrangement.matches(ZTProductArrangementCalendar) &&
            !myCoverType.matches(ZTCoverTypeContinuous)) ||
           (myArrangement.matches(ZTProductArrangementBook) && !myCoverType.matches(ZTCoverTypeLayFlat));
}

ZTMargins ZTAPMArticleDefinitionImpl::bleedMargins(const ZTPageSizeKey& theKey) const
{
    const ZTBleedMargin bleed = findBleedMargins(theKey);
    const int vertical = bleed.vertical();
    const qint32 type = theKey.pageType().value();
    if (type == ZTPageTypeSpine)
        return ZTMargins(vertical, 0);

    int left = bleed.horizontal();
    int right = bleed.horizontal();
    if (theKey.pageCount() > 1 && hasNoBleedBetweenMultiplePages()) {
        if (type == pageTypePanoBasePage) {
            left = 0;
            right = 0;
        } else if (theKey.alignment() == ZTPageSizeKey::AlignmentLeft) {
            right = 0;
        } else if (theKey.alignment() == ZTPageSizeKey::AlignmentRight) {
            left = 0;
        }
    }
    return ZTMargins(vertical, vertical, left, right);
}

ZTArticleClass ZTAPMArticleDefinitionImpl::detectArticleClass(const QString& theNodeName,
                                                              const ZTMaterialType& theMaterial,
                                                              const ZTCoverType& theCover) const
{
    switch (myArrangement.value()) {
    case ZTProductArrangementPrints:
        return ZTArticleClass::createFromShippingGroupId(myShippingGroupId);
    case ZTProductArrangementSingle:
        break;
    case ZTProductArrangementFolded:
        return ZTArticleClass(ZTArticleClassCard);
    case ZTProductArrangementCalendar:
        return ZTArticleClass(ZTArticleClassCalendar);
    case ZTProductArrangementBook:
        return ZTArticleClass(theCover.matches(ZTCoverTypeLayFlat) ? ZTArticleClassPhotoBookLayFlat
                                                                   : ZTArticleClassPhotoBook);
    default:
        if (theNodeName == QLatin1String("add_on"))
            return detectAddOnArticleClass();
        if (theNodeName == QLatin1String("express_fee"))
            return ZTArticleClass(ZTArticleClassExpressFee);
        if (theNodeName == QLatin1String("transfer"))
            return ZTArticleClass(ZTArticleClassTransfer);
        if (theNodeName == QLatin1String("pay_method_fee"))
            return ZTArticleClass(ZTArticleClassPayMethodFee);
        if (theNodeName == QLatin1String("shipment_method_fee"))
            return ZTArticleClass(ZTArticleClassShipmentMethodFee);
        return ZTArticleClass();
    }

    // A single motif on one object: material first, then the make-up, then the order text.
    switch (theMaterial.value()) {
    case ZTMaterialTypePosterPaper:
        return ZTArticleClass(ZTArticleClassPoster);
    case ZTMaterialTypeWood:
    case ZTMaterialTypeCardboard:
        return ZTArticleClass(ZTArticleClassPictureBox);
    case ZTMaterialTypeAcrylic:
        return ZTArticleClass(ZTArticleClassAcrylicPrint);
    case ZTMaterialTypeCanvas:
        return ZTArticleClass(ZTArticleClassWallDecor);
    case ZTMaterialTypeAluminium:
        return ZTArticleClass(ZTArticleClassMetalPrint);
    default:
        break;
    }
    switch (quint32(theCover.value())) {
    case 0x1000:
        return ZTArticleClass(ZTArticleClassPuzzle);
    case 0x800:
    case 0x2000:
    case 0x4000:
    case 0x10000:
    case 0x20000:
    case 0x40000:
    case 0x80000:
    case 0x100000:
    case 0x200000:
    case 0x20000000:
        return ZTArticleClass(ZTArticleClassWallDecor);
    case 0x400000:
    case 0x800000:
    case 0x1000000:
        return ZTArticleClass(ZTArticleClassTextile);
    default:
        break;
    }
    const QString lines = orderTxtLines();
    if (lines.contains(QLatin1String("SLIPCASE"), Qt::CaseSensitive))
        return ZTArticleClass(ZTArticleClassSlipcase);
    if (lines.contains(QLatin1String("PRE_ASSEMBLED"), Qt::CaseSensitive))
        return ZTArticleClass(ZTArticleClassPreAssembled);
    return ZTArticleClass(ZTArticleClassPhotoGift);
}

ZTArticleClass ZTAPMArticleDefinitionImpl::detectAddOnArticleClass() const
{
    const ZTPriceClass& priceClass = myPriceClass;
    auto in = [&priceClass](const ZTPriceClassSet& theSet) { return theSet.contains(priceClass); };
    const bool frame = myOrderTxt.hasHead(QStringLiteral("[FRAME]"));
    const bool wallHolder = myOrderTxt.hasHead(QStringLiteral("[WALL_HOLDER]"));

    // The first rule that holds decides; the order is part of the rules.
    if (in(ZTPriceClassSet::designPriceClasses()))
        return ZTArticleClass(ZTArticleClassDesign);
    if (in(ZTPriceClassSet::artPrintBoxPriceClasses()))
        return ZTArticleClass(ZTArticleClassArtPrintBox);
    if (frame && in(ZTPriceClassSet::frameGlasses()))
        return ZTArticleClass(ZTArticleClassFrameGlass);
    if (frame && in(ZTPriceClassSet::framePassepartout()))
        return ZTArticleClass(ZTArticleClassPassepartout);
    if (frame)
        return ZTArticleClass(ZTArticleClassFrame);
    if (wallHolder && in(ZTPriceClassSet::posterWoodenStrips()))
        return ZTArticleClass(ZTArticleClassFrame);
    if (in(ZTPriceClassSet::calendarStrips()))
        return ZTArticleClass(ZTArticleClassCalendarStrip);
    if (wallHolder && in(ZTPriceClassSet::wallholderPriceClasses()))
        return ZTArticleClass(ZTArticleClassWallHolder);
    if (myOrderTxt.hasHead(QStringLiteral("[PAGES]")) || myOrderTxt.hasHead(QStringLiteral("[PHOTOPRODUCT]")))
        return ZTArticleClass(ZTArticleClassPages);
    if (myOrderTxt.hasHead(QStringLiteral("[VIDEO]")))
        return ZTArticleClass(ZTArticleClassVideo);
    if (in(ZTPriceClassSet::maps()))
        return ZTArticleClass(ZTArticleClassMaps);
    if (in(ZTPriceClassSet::envelops()))
        return ZTArticleClass(ZTArticleClassEnvelope);
    if (in(ZTPriceClassSet::bookGiftBoxes()))
        return ZTArticleClass(ZTArticleClassBookGiftBox);
    if (in(ZTPriceClassSet::bookGiftService()))
        return ZTArticleClass(ZTArticleClassBookGiftService);
    if (in(ZTPriceClassSet::calendarGiftBoxes()))
        return ZTArticleClass(ZTArticleClassCalendarGiftBox);
    if (in(ZTPriceClassSet::spotColorAll()))
        return ZTArticleClass(ZTArticleClassSpotColor);
    if (in(ZTPriceClassSet::mattCoverPriceClasses()))
        return ZTArticleClass(ZTArticleClassMattCover);
    if (in(ZTPriceClassSet::linenCoverPriceClasses()))
        return ZTArticleClass(ZTArticleClassLinenCover);
    if (in(ZTPriceClassSet::flyleafAndInsideCoverPriceClasses()))
        return ZTArticleClass(ZTArticleClassFlyleafAndInsideCover);
    if (in(ZTPriceClassSet::calendarStandPriceClasses()))
        return ZTArticleClass(ZTArticleClassCalendarStand);
    if (in(ZTPriceClassSet::memorabiliaPocketPriceClass()))
        return ZTArticleClass(ZTArticleClassMemorabiliaPocket);
    if (in(ZTPriceClassSet::calendarGiftService()))
        return ZTArticleClass(ZTArticleClassCalendarGiftService);
    if (in(ZTPriceClassSet::bookPanoPagesPriceClasses()))
        return ZTArticleClass(ZTArticleClassBookPanoPages);
    return ZTArticleClass();
}

void ZTAPMArticleDefinitionImpl::readLinkedAricles(const QDomElement& theElement)
{
    const QString linkedTag = QStringLiteral("linked_article");
    const QDomElement linked = theElement.firstChildElement(QStringLiteral("linked_articles"));
    for (QDomElement article = linked.firstChildElement(linkedTag); !article.isNull();
         article = article.nextSiblingElement(linkedTag)) {
        const ZTArticleId id = ZTArticleId::fromIdAttribute(article);
        if (id.isValid())
            myLinkedArticleIds.insert(id);
    }
}
