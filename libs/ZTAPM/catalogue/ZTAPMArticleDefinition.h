#ifndef ZTAPMARTICLEDEFINITION_H
#define ZTAPMARTICLEDEFINITION_H

#include "ZTAPMArticleConditions.h"
#include "ZTArticleClass.h"
#include "ZTArticleId.h"
#include "ZTArticleIdSet.h"
#include "ZTBarcodeDefinitionList.h"
#include "ZTConfiguredArticleVariantList.h"
#include "ZTCoverType.h"
#include "ZTCropType.h"
#include "ZTDistance.h"
#include "ZTMargins.h"
#include "ZTPageBinding.h"
#include "ZTPageCountOrganization.h"
#include "ZTPageSizeKey.h"
#include "ZTPageSizeSpec.h"
#include "ZTPaperType.h"
#include "ZTPriceClass.h"
#include "ZTPrintQuality.h"
#include "ZTProductArrangement.h"
#include "ZTProductType.h"
#include "ZTShippingGroupId.h"
#include "ZTSpaceMagnitude.h"
#include "ztapm_export.h"

#include <QExplicitlySharedDataPointer>
#include <QList>
#include <QSet>
#include <QSize>
#include <QString>

class QDomElement;
class ZTAPMArticleDefinitionImpl;

// What one element of the products document says about an article: name, order text, links to
// other articles, geometry, and the article class, which the document does not state but which
// is worked out from arrangement, material, cover type, order text and price class.
//
// Copies share one body on purpose: update() on any copy changes what all of them show.
class ZTAPM_EXPORT ZTAPMArticleDefinition
{
public:
    // Invalid: no id, no class, no group.
    ZTAPMArticleDefinition();
    // An article, add_on, transfer, express_fee, pay_method_fee or shipment_method_fee element.
    explicit ZTAPMArticleDefinition(const QDomElement& theElement);
    ZTAPMArticleDefinition(const ZTAPMArticleDefinition& other);
    ZTAPMArticleDefinition& operator=(const ZTAPMArticleDefinition& other);
    virtual ~ZTAPMArticleDefinition();

    // All fields but the price class; an order text value asked for on one side counts.
    bool operator==(const ZTAPMArticleDefinition& other) const;
    bool operator!=(const ZTAPMArticleDefinition& other) const;

    // Takes over everything of other but article id, article class and price class, in the
    // shared body, so that every copy of this definition sees it.
    void update(const ZTAPMArticleDefinition& other);

    bool isValid() const;

    ZTArticleId articleId() const;
    ZTArticleClass articleClass() const;
    ZTShippingGroupId shippingGroupId() const;
    QString orderTxtType() const;
    ZTProductType productType() const;
    // Name and editor name; in master mode with the order text's TYPE behind them.
    QString name() const;
    QString editorName() const;
    ZTPageCountOrganization pageCountOrganization() const;
    int numberOfPages() const;
    int numberOfProducts() const;
    ZTConfiguredArticleVariantList variants() const;
    ZTArticleIdSet linkedArticleIds() const;
    ZTAPMArticleConditions furtherConditions() const;
    ZTProductArrangement arrangement() const;
    ZTPageBinding pageBinding() const;
    ZTCoverType coverType() const;
    ZTPaperType paperType() const;
    ZTBarcodeDefinitionList barcodeDefinitions() const;
    ZTPriceClass priceClass() const;
    ZTPrintQuality printQuality() const;

    QString orderTxtHead() const;
    bool hasOrderTxtHead(const QString& theHead) const;
    QString orderTxtValue(const QString& theKey) const;
    // Head, lines and "DESCRIPTION=" with the name: what the article writes into an order.
    QList<QString> toOrderTxt() const;

    ZTArticleIdSet requiredAddOns() const;
    ZTArticleIdSet requiredAddOns(const ZTArticleClass& theArticleClass) const;

    bool canHaveBorderColor() const;
    int borderWidthInPixel() const;
    bool canHavePanoPages() const;

    int printDPI() const;
    int qualityScaleForPixelPerMM(double thePixelPerMM) const;
    int minimumFontSizePT() const;
    // A size in millimetres in printer dots.
    QSize printSizeInPixel(const QSize& theSizeInMM) const;
    // The page in printer dots, as a whole or at the length of a crop form.
    QSize printSizeInPixel() const;
    QSize printSizeInPixel(const ZTCropType& theCropType) const;

    QSize printSizeInMM() const;
    QSize printSizeInMM(const ZTCropType& theCropType) const;
    double printSizeRatio() const;
    bool printSizeIs2By3() const;
    bool printSizeIs3By4() const;
    int length(const ZTCropType& theCropType) const;
    QSet<ZTCropType> supportedCropTypes() const;
    bool allowsVariableWidth() const;
    // The strip a frame adds on each side, in pixels.
    QSize frameWidth() const;
    // The largest page length in printer dots.
    int maxLengthInPixels() const;
    // The crop form a print starts with: the class's usual one if offered, else any offered.
    ZTCropType defaultCropType() const;

    ZTDistance spineWidth(unsigned int thePages) const;
    ZTDistance spineMaxFontHeight(unsigned int thePages, const QString& theText) const;

    // The size in pixels of one kind of page of the product with so many pages.
    QSize usablePrintSize(const ZTPageSizeKey& theKey) const;
    // The bleed of that page, side by side; pages that meet in a spread lose it where they meet.
    ZTMargins bleedMargins(const ZTPageSizeKey& theKey) const;
    ZTPageSizeSpec pageSizeSpec(const ZTPageSizeKey& theKey) const;
    // The size class of a content page.
    ZTSpaceMagnitude spaceMagnitude() const;

private:
    QExplicitlySharedDataPointer<ZTAPMArticleDefinitionImpl> myImpl;
};

#endif // ZTAPMARTICLEDEFINITION_H
