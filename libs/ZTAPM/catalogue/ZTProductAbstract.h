#ifndef ZTPRODUCTABSTRACT_H
#define ZTPRODUCTABSTRACT_H

#include "ZTAPMArticleDefinition.h"
#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMDeliveryTimes.h"
#include "ZTArticleClass.h"
#include "ZTArticleId.h"
#include "ZTArticleIdSet.h"
#include "ZTConfiguredArticleVariantList.h"
#include "ZTCoverType.h"
#include "ZTDiscountLimitSet.h"
#include "ZTMoney.h"
#include "ZTPriceBundle.h"
#include "ZTPriceClass.h"
#include "ZTProductType.h"
#include "ZTShippingGroupId.h"
#include "ztapm_export.h"

#include <QString>

#include <atomic>

class QDebug;
class QDomElement;
class ZTAPMBillPositionList;
class ZTAPMDeliveryTime;
class ZTAPMOrderStatistic;
class ZTAPMPriceKey;
class ZTDeliveryType;
class ZTDiscountLimit;
class ZTDiscountModel;
class ZTExpressType;
class ZTOrderSource;
class ZTTransferModel;

// A product: the identity that carts, bills and dialogs point at. It keeps only its article id,
// its shipping group and whether the current catalogue still lists it; everything else is asked
// of the stores at each call, so a new price or products document reaches every product without
// touching one. Products are never deleted once registered.
//
// The three own fields are written only by the registries under the data base's lock and read
// without a lock; they are atomics so that such a read never sees a torn value.
class ZTAPM_EXPORT ZTProductAbstract
{
public:
    // Article id and group from the element; a null element gives a deprecated product.
    explicit ZTProductAbstract(const QDomElement& theElement);
    virtual ~ZTProductAbstract();

    // The one product that stands for "none", deprecated and with an invalid id.
    static ZTProductAbstract* nullProduct();

    static QString orderTxtHeadVideoAddOn();
    static QString orderTxtHeadPagePackage();
    static QString orderTxtHeadWallHolder();
    static QString orderTxtHeadFrame();
    static QString orderTxtHeadPhotoProduct();

    virtual bool isValid() const;
    // One piece under the current order status.
    virtual ZTMoney price() const;
    // The price of so many pieces under the key, for goods worth theBillingSum; priceFor without
    // a bill and a basket.
    virtual ZTMoney price(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum) const;
    // The lowest price over the three order sources.
    virtual ZTMoney minPrice(bool theAllLimits) const;
    virtual ZTPriceBundle minPrices(bool theAllLimits) const;
    // The largest single-piece price over the three order sources; an invalid price there wins.
    virtual ZTMoney priceFirstFit() const;
    virtual QString fullQualifiedName() const;
    // Takes id and group from the element and marks the product live; a null element deprecates.
    virtual void update(const QDomElement& theElement);
    // Only add-ons have one; everything else answers an invalid class.
    virtual ZTPriceClass priceClass() const;
    // The price at the lowest discount limit, or with theAllLimits for prints the lowest price
    // at any limit; 0x7fffffff when there is none.
    virtual ZTMoney minPriceFor(const ZTAPMPriceKey& theKey, bool theAllLimits) const;
    virtual ZTPriceBundle minPricesFor(const ZTAPMPriceKey& theKey, bool theAllLimits) const;

    ZTArticleId articleId() const;
    ZTShippingGroupId shippingGroupId() const;
    bool isDeprecated() const;
    void setDeprecated(bool theDeprecated);

    ZTAPMArticleDefinition articleDefinition() const;
    ZTAPMArticlePriceInfo priceInfo() const;
    ZTAPMDeliveryTimes deliveryTimes() const;

    // The definition's name; a product that left the catalogue says so behind it.
    QString name() const;
    QString editorName() const;
    ZTConfiguredArticleVariantList variants() const;
    QString orderTxtHead() const;
    bool hasOrderTxtHead(const QString& theHead) const;
    ZTArticleClass articleClass() const;
    ZTCoverType coverType() const;
    ZTArticleIdSet linkedArticleIds() const;
    QString orderTxtBorder() const;
    bool isPagePackage() const;
    ZTProductType productType() const;
    int countPrintPixels() const;

    ZTTransferModel transferModel() const;
    ZTDiscountLimit fotoBasePackageLimit(const ZTOrderSource& theOrderSource) const;
    bool isOfferPriceValid(const ZTAPMPriceKey& theKey) const;
    ZTMoney unitTransferPrice(const ZTAPMPriceKey& theKey) const;
    ZTMoney baseTransferPrice(const ZTAPMPriceKey& theKey) const;
    ZTMoney nonOfferPrice(const ZTAPMPriceKey& theKey) const;
    ZTDiscountLimitSet discountLimits(const ZTAPMPriceKey& theKey) const;
    ZTMoney priceAtBound(const ZTAPMPriceKey& theKey, const ZTDiscountLimit& theLimit) const;
    ZTPriceBundle pricesAtBound(const ZTAPMPriceKey& theKey, const ZTDiscountLimit& theLimit) const;
    bool hasDiscountModel(const ZTOrderSource& theOrderSource, const ZTDiscountModel& theModel) const;
    // The price models of the article's price info; see there.
    bool isOrderableViaPOS() const;
    bool isOrderableThisWay(const ZTOrderSource& theOrderSource) const;
    ZTMoney unitTransferPriceFor(const ZTAPMPriceKey& theKey, const ZTAPMOrderStatistic* theStatistic) const;
    ZTMoney transferPriceFor(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum,
                             const ZTAPMOrderStatistic* theStatistic) const;
    // theBill is the bill under construction (a bill is its position list), or null.
    ZTMoney priceFor(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum,
                     ZTAPMBillPositionList* theBill, const ZTAPMOrderStatistic* theStatistic) const;
    // priceFor without a bill, with the chosen model and every model's amount.
    ZTAPMPriceExplanation explainPrice(const ZTAPMPriceKey& theKey, int theCount,
                                       const ZTMoney& theBillingSum,
                                       const ZTAPMOrderStatistic* theStatistic) const;

    bool shippingTimesEnabled() const;
    ZTAPMDeliveryTime shippingTime(const ZTDeliveryType& theDeliveryType,
                                   const ZTExpressType& theExpressType) const;
    bool isExpressable() const;
    bool isExpressable(const ZTDeliveryType& theDeliveryType, const ZTExpressType& theExpressType) const;

    bool hasArticleClass(const ZTArticleClass& theClass) const;
    bool isAddOn() const;
    bool isOrderable() const;
    bool isCompatibleWithArticleId(const ZTArticleId& theId) const;
    // An add-on linked to the article and of that price class.
    bool matches(const ZTArticleId& theId, const ZTPriceClass& thePriceClass) const;

    // The quantity from which the best unit price holds; 0x7fffffff when no limit has a price.
    // Ties as ZTAPMArticlePriceInfo::bestPriceCount decides them.
    int bestPriceCountFor(const ZTAPMPriceKey& theKey) const;
    int bestPriceCount() const;

private:
    Q_DISABLE_COPY(ZTProductAbstract)

    std::atomic<qint32> myArticleId{0};
    std::atomic<qint32> myShippingGroupId{ZTShippingGroupId::InvalidId};
    std::atomic<bool> myDeprecated{true};
};

ZTAPM_EXPORT QDebug operator<<(QDebug debug, const ZTProductAbstract* theProduct);

#endif // ZTPRODUCTABSTRACT_H
