#include "ZTProductAbstract.h"

#include "ZTAPMGlobalStatus.h"
#include "ZTAPMObjects.h"
#include "ZTAPMPriceKey.h"
#include "ZTAPMShippingGroupManager.h"
#include "ZTDiscountLimit.h"
#include "ZTDiscountLimitList.h"
#include "ZTOrderSource.h"
#include "ZTTransferModel.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>

#include <algorithm>

namespace {

constexpr qint32 noAmount = 0x7fffffff;
// Prints and premium prints: their cheapest piece may lie at any limit of the ladder.
constexpr ZTArticleClassEnum classesPricedAtAllLimits =
    ZTArticleClassEnum(ZTArticleClassPrints | ZTArticleClassPremiumPrints);
static_assert(classesPricedAtAllLimits == 0x18000, "the classes that price at all limits");

ZTAPMObjects* stores()
{
    return ZTSingleton<ZTAPMObjects>::instance();
}

// The limits in the limit list's order, which is total: every walk below sees them alike.
ZTDiscountLimitList limitList(const ZTDiscountLimitSet& theSet)
{
    ZTDiscountLimitList result(theSet.values());
    result.sort();
    return result;
}

// The smallest limit by the limits' own order (level does not count), the first of equals in
// the list's order: the lowest level.
ZTDiscountLimit smallestLimit(const ZTDiscountLimitList& theLimits)
{
    return *std::min_element(theLimits.cbegin(), theLimits.cend());
}

} // namespace

ZTProductAbstract::ZTProductAbstract(const QDomElement& theElement)
{
    ZTProductAbstract::update(theElement);
}

// Products are deleted only when a registry rejects them, before anyone saw them.
ZTProductAbstract::~ZTProductAbstract() = default;

ZTProductAbstract* ZTProductAbstract::nullProduct()
{
    static ZTProductAbstract* const theNullProduct = new ZTProductAbstract(QDomElement());
    return theNullProduct;
}

QString ZTProductAbstract::orderTxtHeadVideoAddOn()
{
    return QStringLiteral("[VIDEO]");
}

QString ZTProductAbstract::orderTxtHeadPagePackage()
{
    return QStringLiteral("[PAGES]");
}

QString ZTProductAbstract::orderTxtHeadWallHolder()
{
    return QStringLiteral("[WALL_HOLDER]");
}

QString ZTProductAbstract::orderTxtHeadFrame()
{
    return QStringLiteral("[FRAME]");
}

QString ZTProductAbstract::orderTxtHeadPhotoProduct()
{
    return QStringLiteral("[PHOTOPRODUCT]");
}

bool ZTProductAbstract::isValid() const
{
    return true;
}

ZTMoney ZTProductAbstract::price(const ZTAPMPriceKey& theKey, int theCount,
                                 const ZTMoney& theBillingSum) const
{
    return priceFor(theKey, theCount, theBillingSum, nullptr, nullptr);
}

ZTMoney ZTProductAbstract::minPrice(bool theAllLimits) const
{
    return minPrices(theAllLimits).price();
}

ZTPriceBundle ZTProductAbstract::minPrices(bool theAllLimits) const
{
    ZTPriceBundle result;
    ZTMoney bound(noAmount);
    // Of equal prices the first source in this order wins.
    for (const ZTOrderSource& source : ZTOrderSource::all()) {
        const ZTPriceBundle candidate = minPricesFor(ZTAPMPriceKey(source), theAllLimits);
        if (candidate.price() < bound) {
            result = candidate;
            bound = candidate.price();
        }
    }
    return result;
}

ZTMoney ZTProductAbstract::priceFirstFit() const
{
    bool first = true;
    ZTMoney result;
    // The largest of the three; which source comes first makes no difference to the value.
    for (const ZTOrderSource& source : ZTOrderSource::all()) {
        const ZTMoney candidate = price(ZTAPMPriceKey(source), 1, ZTMoney(1));
        if (first || result < candidate)
            result = candidate;
        first = false;
    }
    return result;
}

ZTMoney ZTProductAbstract::price() const
{
    return price(ZTSingleton<ZTAPMGlobalStatus>::instance()->priceKey(), 1, ZTMoney(0));
}

QString ZTProductAbstract::fullQualifiedName() const
{
    return name();
}

void ZTProductAbstract::update(const QDomElement& theElement)
{
    myArticleId.store(ZTArticleId::fromIdAttribute(theElement).id(), std::memory_order_relaxed);
    myShippingGroupId.store(ZTShippingGroupId(theElement, QStringLiteral("group")).id(),
                            std::memory_order_relaxed);
    myDeprecated.store(theElement.isNull(), std::memory_order_relaxed);
}

ZTPriceClass ZTProductAbstract::priceClass() const
{
    return ZTPriceClass();
}

ZTMoney ZTProductAbstract::minPriceFor(const ZTAPMPriceKey& theKey, bool theAllLimits) const
{
    const ZTAPMArticlePriceInfo info = priceInfo();
    const ZTDiscountLimitList limits = limitList(info.discountLimits(theKey));
    ZTMoney minimum(noAmount);
    if (hasArticleClass(classesPricedAtAllLimits) && theAllLimits) {
        for (const ZTDiscountLimit& limit : std::as_const(limits)) {
            const ZTMoney candidate = info.priceAtBound(theKey, limit);
            if (candidate.isValid() && candidate < minimum)
                minimum = candidate;
        }
    } else if (!limits.isEmpty()) {
        minimum = info.priceAtBound(theKey, smallestLimit(limits));
    }
    return minimum.isValid() ? minimum : ZTMoney(noAmount);
}

ZTPriceBundle ZTProductAbstract::minPricesFor(const ZTAPMPriceKey& theKey, bool theAllLimits) const
{
    const ZTAPMArticlePriceInfo info = priceInfo();
    const ZTDiscountLimitList limits = limitList(info.discountLimits(theKey));
    ZTPriceBundle minimum;
    if (hasArticleClass(classesPricedAtAllLimits) && theAllLimits) {
        for (const ZTDiscountLimit& limit : std::as_const(limits)) {
            const ZTPriceBundle candidate = info.pricesAtBound(theKey, limit);
            if (candidate.price().isValid() && candidate.price() < minimum.price())
                minimum = candidate;
        }
    } else if (!limits.isEmpty()) {
        minimum = info.pricesAtBound(theKey, smallestLimit(limits));
    }
    return minimum.price().isValid() ? minimum : ZTPriceBundle();
}

ZTArticleId ZTProductAbstract::articleId() const
{
    return ZTArticleId(myArticleId.load(std::memory_order_relaxed));
}

ZTShippingGroupId ZTProductAbstract::shippingGroupId() const
{
    return ZTShippingGroupId(myShippingGroupId.load(std::memory_order_relaxed));
}

bool ZTProductAbstract::isDeprecated() const
{
    return myDeprecated.load(std::memory_order_relaxed);
}

void ZTProductAbstract::setDeprecated(bool theDeprecated)
{
    myDeprecated.store(theDeprecated, std::memory_order_relaxed);
}

ZTAPMArticleDefinition ZTProductAbstract::articleDefinition() const
{
    return stores()->articleDefinition(articleId());
}

ZTAPMArticlePriceInfo ZTProductAbstract::priceInfo() const
{
    return stores()->priceInfo(articleId());
}

ZTAPMDeliveryTimes ZTProductAbstract::deliveryTimes() const
{
    return stores()->deliveryTimes(articleId());
}

QString ZTProductAbstract::name() const
{
    QString result = articleDefinition().name();
    if (isDeprecated())
        result += QCoreApplication::translate("ZTProductAbstract", " (nicht mehr lieferbar)");
    return result;
}

QString ZTProductAbstract::editorName() const
{
    return articleDefinition().editorName();
}

ZTConfiguredArticleVariantList ZTProductAbstract::variants() const
{
    return articleDefinition().variants();
}

QString ZTProductAbstract::orderTxtHead() const
{
    return articleDefinition().orderTxtHead();
}

bool ZTProductAbstract::hasOrderTxtHead(const QString& theHead) const
{
    return articleDefinition().hasOrderTxtHead(theHead);
}

ZTArticleClass ZTProductAbstract::articleClass() const
{
    return articleDefinition().articleClass();
}

ZTCoverType ZTProductAbstract::coverType() const
{
    return articleDefinition().coverType();
}

ZTArticleIdSet ZTProductAbstract::linkedArticleIds() const
{
    return articleDefinition().linkedArticleIds();
}

QString ZTProductAbstract::orderTxtBorder() const
{
    return articleDefinition().orderTxtValue(QStringLiteral("BORDER"));
}

bool ZTProductAbstract::isPagePackage() const
{
    return hasOrderTxtHead(orderTxtHeadPagePackage());
}

ZTProductType ZTProductAbstract::productType() const
{
    return ZTProductType(articleDefinition().orderTxtType());
}

int ZTProductAbstract::countPrintPixels() const
{
    const QSize size = articleDefinition().printSizeInPixel();
    return size.width() * size.height();
}

ZTTransferModel ZTProductAbstract::transferModel() const
{
    return priceInfo().transferModel();
}

ZTDiscountLimit ZTProductAbstract::fotoBasePackageLimit(const ZTOrderSource& theOrderSource) const
{
    return priceInfo().fotoBasePackageLimit(theOrderSource);
}

bool ZTProductAbstract::isOfferPriceValid(const ZTAPMPriceKey& theKey) const
{
    return priceInfo().isOfferPriceValid(theKey);
}

ZTMoney ZTProductAbstract::unitTransferPrice(const ZTAPMPriceKey& theKey) const
{
    return priceInfo().unitTransferPrice(theKey);
}

ZTMoney ZTProductAbstract::baseTransferPrice(const ZTAPMPriceKey& theKey) const
{
    return priceInfo().baseTransferPrice(theKey);
}

ZTMoney ZTProductAbstract::nonOfferPrice(const ZTAPMPriceKey& theKey) const
{
    return priceInfo().nonOfferPrice(theKey);
}

ZTDiscountLimitSet ZTProductAbstract::discountLimits(const ZTAPMPriceKey& theKey) const
{
    return priceInfo().discountLimits(theKey);
}

ZTMoney ZTProductAbstract::priceAtBound(const ZTAPMPriceKey& theKey, const ZTDiscountLimit& theLimit) const
{
    return priceInfo().priceAtBound(theKey, theLimit);
}

ZTPriceBundle ZTProductAbstract::pricesAtBound(const ZTAPMPriceKey& theKey,
                                               const ZTDiscountLimit& theLimit) const
{
    return priceInfo().pricesAtBound(theKey, theLimit);
}

bool ZTProductAbstract::hasDiscountModel(const ZTOrderSource& theOrderSource,
                                         const ZTDiscountModel& theModel) const
{
    return priceInfo().hasDiscountModel(theOrderSource, theModel);
}

bool ZTProductAbstract::isOrderableViaPOS() const
{
    return priceInfo().canOrderPOS();
}

bool ZTProductAbstract::isOrderableThisWay(const ZTOrderSource& theOrderSource) const
{
    return priceInfo().isOrderableThisWay(theOrderSource);
}

ZTMoney ZTProductAbstract::unitTransferPriceFor(const ZTAPMPriceKey& theKey,
                                                const ZTAPMOrderStatistic* theStatistic) const
{
    return priceInfo().unitTransferPriceInTransferModel2(theKey, theStatistic);
}

ZTMoney ZTProductAbstract::transferPriceFor(const ZTAPMPriceKey& theKey, int theCount,
                                            const ZTMoney& theBillingSum,
                                            const ZTAPMOrderStatistic* theStatistic) const
{
    return priceInfo().transferPriceFor(theKey, theCount, theBillingSum, theStatistic);
}

ZTMoney ZTProductAbstract::priceFor(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum,
                                    ZTAPMBillPositionList* theBill,
                                    const ZTAPMOrderStatistic* theStatistic) const
{
    return priceInfo().priceFor(theKey, theCount, theBillingSum, theBill, theStatistic);
}

ZTAPMPriceExplanation ZTProductAbstract::explainPrice(const ZTAPMPriceKey& theKey, int theCount,
                                                      const ZTMoney& theBillingSum,
                                                      const ZTAPMOrderStatistic* theStatistic) const
{
    return priceInfo().explainPrice(theKey, theCount, theBillingSum, theStatistic);
}

bool ZTProductAbstract::shippingTimesEnabled() const
{
    return !deliveryTimes().isEmpty();
}

ZTAPMDeliveryTime ZTProductAbstract::shippingTime(const ZTDeliveryType& theDeliveryType,
                                                  const ZTExpressType& theExpressType) const
{
    return deliveryTimes().shippingTime(theDeliveryType, theExpressType);
}

bool ZTProductAbstract::isExpressable() const
{
    return deliveryTimes().isExpressable();
}

bool ZTProductAbstract::isExpressable(const ZTDeliveryType& theDeliveryType,
                                      const ZTExpressType& theExpressType) const
{
    return deliveryTimes().isExpressable(theDeliveryType, theExpressType);
}

bool ZTProductAbstract::hasArticleClass(const ZTArticleClass& theClass) const
{
    return articleClass().matches(theClass);
}

bool ZTProductAbstract::isAddOn() const
{
    return hasArticleClass(ZTArticleClassAllAddOns);
}

bool ZTProductAbstract::isOrderable() const
{
    if (isDeprecated())
        return false;
    if (isAddOn())
        return true;
    return ZTSingleton<ZTAPMShippingGroupManager>::instance()->hasShippingGroup(shippingGroupId());
}

bool ZTProductAbstract::isCompatibleWithArticleId(const ZTArticleId& theId) const
{
    return linkedArticleIds().contains(theId);
}

bool ZTProductAbstract::matches(const ZTArticleId& theId, const ZTPriceClass& thePriceClass) const
{
    return isCompatibleWithArticleId(theId) && priceClass() == thePriceClass;
}

int ZTProductAbstract::bestPriceCountFor(const ZTAPMPriceKey& theKey) const
{
    return priceInfo().bestPriceCount(theKey);
}

int ZTProductAbstract::bestPriceCount() const
{
    int result = noAmount;
    for (const ZTOrderSource& source : ZTOrderSource::all())
        result = std::min(result, bestPriceCountFor(ZTAPMPriceKey(source)));
    return result;
}

QDebug operator<<(QDebug debug, const ZTProductAbstract* theProduct)
{
    QDebugStateSaver saver(debug);
    if (!theProduct)
        return debug << "ZTProductAbstract(nullptr)";
    debug.nospace().noquote() << "Name : " << theProduct->name() << '\n'
                              << "Full Qualified Name :" << theProduct->fullQualifiedName() << '\n'
                              << "Article ID : " << theProduct->articleId().id() << '\n'
                              << "Shipping Group ID : " << theProduct->shippingGroupId().id() << '\n'
                              << "Product Group : " << theProduct->articleClass();
    return debug;
}
