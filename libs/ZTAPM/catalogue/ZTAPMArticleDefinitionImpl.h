#ifndef ZTAPMARTICLEDEFINITIONIMPL_H
#define ZTAPMARTICLEDEFINITIONIMPL_H

#include "ZTAPMArticleConditions.h"
#include "ZTAPMOrderTxtContent.h"
#include "ZTArticleClass.h"
#include "ZTArticleId.h"
#include "ZTArticleIdSet.h"
#include "ZTBarcodeDefinitionList.h"
#include "ZTConfiguredArticleVariantList.h"
#include "ZTCoverType.h"
#include "ZTMargins.h"
#include "ZTPageBinding.h"
#include "ZTPageCountOrganization.h"
#include "ZTPageSizeData.h"
#include "ZTPageSizeDataPanoBase.h"
#include "ZTPageSizeDataPanoWing.h"
#include "ZTPageSizeKey.h"
#include "ZTPaperType.h"
#include "ZTPriceClass.h"
#include "ZTPrintQuality.h"
#include "ZTProductArrangement.h"
#include "ZTRequiredAddOns.h"
#include "ZTShippingGroupId.h"
#include "ZTSpineConfig.h"

#include <QSharedData>
#include <QString>

class QDomElement;
class ZTMaterialType;

// The shared body of ZTAPMArticleDefinition: everything one element of the products document
// says about an article, with the article class worked out from it.
class ZTAPMArticleDefinitionImpl : public QSharedData
{
public:
    ZTAPMArticleDefinitionImpl();
    explicit ZTAPMArticleDefinitionImpl(const QDomElement& theElement);
    ZTAPMArticleDefinitionImpl(const ZTAPMArticleDefinitionImpl& other);
    virtual ~ZTAPMArticleDefinitionImpl();

    // All fields but the price class; the order text's value cache counts.
    bool operator==(const ZTAPMArticleDefinitionImpl& other) const;

    // Takes over all fields but article id, article class and price class.
    void update(const ZTAPMArticleDefinitionImpl& other);

    QString fullName(const QString& theName) const;
    QString orderTxtLines() const;
    QSize pageSize(const ZTPageSizeKey& theKey) const;
    ZTBleedMargin findBleedMargins(const ZTPageSizeKey& theKey) const;
    bool hasNoBleedBetweenMultiplePages() const;
    ZTMargins bleedMargins(const ZTPageSizeKey& theKey) const;

    ZTArticleClass detectArticleClass(const QString& theNodeName, const ZTMaterialType& theMaterial,
                                      const ZTCoverType& theCover) const;
    ZTArticleClass detectAddOnArticleClass() const;
    void readLinkedAricles(const QDomElement& theElement);

    ZTArticleId myArticleId;
    ZTArticleClass myArticleClass;
    ZTShippingGroupId myShippingGroupId;
    QString myOrderTxtType;
    QString myName;
    QString myEditorName;
    ZTPageCountOrganization myPageCountOrganization;
    int myNumberOfProducts = 1;
    ZTConfiguredArticleVariantList myVariants;
    ZTAPMOrderTxtContent myOrderTxt;
    ZTArticleIdSet myLinkedArticleIds;
    ZTRequiredAddOns myRequiredAddOns;
    ZTPrintQuality myPrintQuality;
    ZTPageSizeData myPageSize;
    ZTPageSizeData myCoverSize;
    ZTPageSizeDataPanoBase myPanoBaseSize;
    ZTPageSizeDataPanoWing myPanoWingSize;
    ZTSpineConfig mySpine;
    ZTProductArrangement myArrangement;
    ZTCoverType myCoverType;
    ZTPageBinding myPageBinding;
    ZTPaperType myPaperType;
    ZTBarcodeDefinitionList myBarcodes;
    ZTAPMArticleConditions myFurtherConditions;
    ZTPriceClass myPriceClass;
};

#endif // ZTAPMARTICLEDEFINITIONIMPL_H
