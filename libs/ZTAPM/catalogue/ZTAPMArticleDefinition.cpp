#include "ZTAPMArticleDefinition.h"

#include "ZTAPMArticleDefinitionImpl.h"
#include "ZTDistanceUnit.h"

#include <QDomElement>

#include <cmath>

ZTAPMArticleDefinition::ZTAPMArticleDefinition() : myImpl(new ZTAPMArticleDefinitionImpl)
{}

ZTAPMArticleDefinition::ZTAPMArticleDefinition(const QDomElement& theElement)
    : myImpl(new ZTAPMArticleDefinitionImpl(theElement))
{}

ZTAPMArticleDefinition::ZTAPMArticleDefinition(const ZTAPMArticleDefinition& other) = default;
ZTAPMArticleDefinition& ZTAPMArticleDefinition::operator=(const ZTAPMArticleDefinition& other) = default;
ZTAPMArticleDefinition::~ZTAPMArticleDefinition() = default;

bool ZTAPMArticleDefinition::operator==(const ZTAPMArticleDefinition& other) const
{
    return myImpl == other.myImpl || *myImpl == *other.myImpl;
}

bool ZTAPMArticleDefinition::operator!=(const ZTAPMArticleDefinition& other) const
{
    return !(*this == other);
}

void ZTAPMArticleDefinition::update(const ZTAPMArticleDefinition& other)
{
    myImpl->update(*other.myImpl);
}

bool ZTAPMArticleDefinition::isValid() const
{
    return myImpl->myArticleId.isValid() && !myImpl->myArticleClass.isNull() &&
           myImpl->myShippingGroupId.isValid();
}

ZTArticleId ZTAPMArticleDefinition::articleId() const
{
    return myImpl->myArticleId;
}

ZTArticleClass ZTAPMArticleDefinition::articleClass() const
{
    return myImpl->myArticleClass;
}

ZTShippingGroupId ZTAPMArticleDefinition::shippingGroupId() const
{
    return myImpl->myShippingGroupId;
}

QString ZTAPMArticleDefinition::orderTxtType() const
{
    return myImpl->myOrderTxtType;
}

ZTProductType ZTAPMArticleDefinition::productType() const
{
    return ZTProductType(orderTxtType());
}

QString ZTAPMArticleDefinition::name() const
{
    return myImpl->fullName(myImpl->myName);
}

QString ZTAPMArticleDefinition::editorName() const
{
    return myImpl->fullName(myImpl->myEditorName);
}

ZTPageCountOrganization ZTAPMArticleDefinition::pageCountOrganization() const
{
    return myImpl->myPageCountOrganization;
}

int ZTAPMArticleDefinition::numberOfPages() const
{
    return myImpl->myPageCountOrganization.minPages();
}

int ZTAPMArticleDefinition::numberOfProducts() const
{
    return myImpl->myNumberOfProducts;
}

ZTConfiguredArticleVariantList ZTAPMArticleDefinition::variants() const
{
    return myImpl->myVariants;
}

ZTArticleIdSet ZTAPMArticleDefinition::linkedArticleIds() const
{
    return myImpl->myLinkedArticleIds;
}

ZTAPMArticleConditions ZTAPMArticleDefinition::furtherConditions() const
{
    return myImpl->myFurtherConditions;
}

ZTProductArrangement ZTAPMArticleDefinition::arrangement() const
{
    return myImpl->myArrangement;
}

ZTPageBinding ZTAPMArticleDefinition::pageBinding() const
{
    return myImpl->myPageBinding;
}

ZTCoverType ZTAPMArticleDefinition::coverType() const
{
    return myImpl->myCoverType;
}

ZTPaperType ZTAPMArticleDefinition::paperType() const
{
    return myImpl->myPaperType;
}

ZTBarcodeDefinitionList ZTAPMArticleDefinition::barcodeDefinitions() const
{
    return myImpl->myBarcodes;
}

ZTPriceClass ZTAPMArticleDefinition::priceClass() const
{
    return myImpl->myPriceClass;
}

ZTPrintQuality ZTAPMArticleDefinition::printQuality() const
{
    return myImpl->myPrintQuality;
}

QString ZTAPMArticleDefinition::orderTxtHead() const
{
    return myImpl->myOrderTxt.head();
}

bool ZTAPMArticleDefinition::hasOrderTxtHead(const QString& theHead) const
{
    return myImpl->myOrderTxt.hasHead(theHead);
}

QString ZTAPMArticleDefinition::orderTxtValue(const QString& theKey) const
{
    return myImpl->myOrderTxt.orderTxtValue(theKey);
}

QList<QString> ZTAPMArticleDefinition::toOrderTxt() const
{
    QList<QString> result;
    result.append(myImpl->myOrderTxt.head());
    result.append(myImpl->myOrderTxt.lines());
    result.append(QStringLiteral("DESCRIPTION=") + name());
    return result;
}

ZTArticleIdSet ZTAPMArticleDefinition::requiredAddOns() const
{
    return myImpl->myRequiredAddOns.articleIds();
}

ZTArticleIdSet ZTAPMArticleDefinition::requiredAddOns(const ZTArticleClass& theArticleClass) const
{
    return myImpl->myRequiredAddOns.articleIds(theArticleClass);
}

bool ZTAPMArticleDefinition::canHaveBorderColor() const
{
    return orderTxtValue(QStringLiteral("BORDER")) == QLatin1String("1");
}

int ZTAPMArticleDefinition::borderWidthInPixel() const
{
    // The border is 5 mm wide on paper.
    return printSizeInPixel(QSize(canHaveBorderColor() ? 5 : 0, 0)).width();
}

bool ZTAPMArticleDefinition::canHavePanoPages() const
{
    const QSize base = myImpl->myPanoBaseSize.pageSizeInPixel();
    const QSize wing = myImpl->myPanoWingSize.pageSizeInPixel();
    return base.width() >= 0 && base.height() >= 0 && wing.width() >= 0 && wing.height() >= 0;
}

int ZTAPMArticleDefinition::printDPI() const
{
    return myImpl->myPrintQuality.printDPI();
}

int ZTAPMArticleDefinition::qualityScaleForPixelPerMM(double thePixelPerMM) const
{
    return myImpl->myPrintQuality.qualityScaleForPixelPerMM(thePixelPerMM);
}

int ZTAPMArticleDefinition::minimumFontSizePT() const
{
    return myImpl->myPrintQuality.minimumFontSizePT();
}

QSize ZTAPMArticleDefinition::printSizeInPixel(const QSize& theSizeInMM) const
{
    return myImpl->myPrintQuality.printSizeInPixel(theSizeInMM);
}

QSize ZTAPMArticleDefinition::printSizeInPixel() const
{
    return printSizeInPixel(printSizeInMM());
}

QSize ZTAPMArticleDefinition::printSizeInPixel(const ZTCropType& theCropType) const
{
    return printSizeInPixel(printSizeInMM(theCropType));
}

QSize ZTAPMArticleDefinition::printSizeInMM() const
{
    return myImpl->myPageSize.pageSizeInMM();
}

QSize ZTAPMArticleDefinition::printSizeInMM(const ZTCropType& theCropType) const
{
    return myImpl->myPageSize.pageSizeInMM(theCropType);
}

double ZTAPMArticleDefinition::printSizeRatio() const
{
    return myImpl->myPageSize.printSizeRatio();
}

bool ZTAPMArticleDefinition::printSizeIs2By3() const
{
    return myImpl->myPageSize.printSizeIs2By3();
}

bool ZTAPMArticleDefinition::printSizeIs3By4() const
{
    return myImpl->myPageSize.printSizeIs3By4();
}

int ZTAPMArticleDefinition::length(const ZTCropType& theCropType) const
{
    return myImpl->myPageSize.length(theCropType);
}

QSet<ZTCropType> ZTAPMArticleDefinition::supportedCropTypes() const
{
    return myImpl->myPageSize.supportedCropTypes();
}

bool ZTAPMArticleDefinition::allowsVariableWidth() const
{
    return myImpl->myPageSize.allowsVariableWidth();
}

QSize ZTAPMArticleDefinition::frameWidth() const
{
    return myImpl->myPageSize.extraPageSizeInPixel();
}

int ZTAPMArticleDefinition::maxLengthInPixels() const
{
    const double millimetres = ZTDistance::fromPixels(myImpl->myPageSize.maxPageWidthInPixel())
                                   .value(ZTDistanceUnit(ZTDistanceUnitMillimetre));
    return printSizeInPixel(QSize(int(std::lround(millimetres)), 0)).width();
}

ZTCropType ZTAPMArticleDefinition::defaultCropType() const
{
    const QSet<ZTCropType> supported = supportedCropTypes();
    if (supported.isEmpty())
        return ZTCropType(ZTCropTypeNone);

    ZTCropType wish(ZTCropTypeStandard);
    const ZTArticleClass articleClass = myImpl->myArticleClass;
    if (articleClass == ZTArticleClassPremiumPrints || articleClass == ZTArticleClassPrints) {
        wish = ZTCropType(ZTCropTypeFrame);
    } else if (articleClass == ZTArticleClassEnlargements) {
        if (printSizeIs2By3())
            wish = ZTCropType(ZTCropTypeRatio2To3);
        else if (printSizeIs3By4())
            wish = ZTCropType(ZTCropTypeRatio3To4);
    }
    if (supported.contains(wish))
        return wish;
    return *supported.cbegin();
}

ZTDistance ZTAPMArticleDefinition::spineWidth(unsigned int thePages) const
{
    return myImpl->mySpine.spineWidth(thePages);
}

ZTDistance ZTAPMArticleDefinition::spineMaxFontHeight(unsigned int thePages, const QString& theText) const
{
    return myImpl->mySpine.spineMaxFontHeigth(thePages, theText);
}

QSize ZTAPMArticleDefinition::usablePrintSize(const ZTPageSizeKey& theKey) const
{
    return myImpl->pageSize(theKey);
}

ZTMargins ZTAPMArticleDefinition::bleedMargins(const ZTPageSizeKey& theKey) const
{
    return myImpl->bleedMargins(theKey);
}

ZTPageSizeSpec ZTAPMArticleDefinition::pageSizeSpec(const ZTPageSizeKey& theKey) const
{
    return ZTPageSizeSpec(myImpl->pageSize(theKey), myImpl->bleedMargins(theKey));
}

ZTSpaceMagnitude ZTAPMArticleDefinition::spaceMagnitude() const
{
    // 100 pixels to the centimetre, so 10000 square pixels to the square centimetre.
    const QSize size = usablePrintSize(ZTPageSizeKey(ZTPageType(ZTPageTypePage), 1));
    const qint64 squareCentimetres = qint64(size.width()) * qint64(size.height()) / 10000;
    return ZTSpaceMagnitude::fromSquareCentimeters(int(squareCentimetres));
}
