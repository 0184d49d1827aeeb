#include "ZTProductRegistry.h"

#include "ZTAPMDeliveryTime.h"
#include "ZTAPMPriceKey.h"
#include "ZTDiscountLimitListKey.h"
#include "ZTDiscountModel.h"
#include "ZTEnumToStringTable.h"
#include "ZTExpressType.h"
#include "ZTOrderSource.h"
#include "ZTPriceClass.h"
#include "ZTProductAbstract.h"
#include "ZTProductCheckerRegistry.h"

#include <QDebug>

#include <cstdlib>

namespace {

// Room for a full catalogue, so that reading one never rehashes.
constexpr int productCapacity = 100000;
constexpr int addOnCapacity = 20000;

} // namespace

ZTProductRegistry::ZTProductRegistry()
{
    myProductsByType.reserve(productCapacity);
    myProductsById.reserve(productCapacity);
    myProductsByClass.reserve(productCapacity);
    myProductsByGroup.reserve(productCapacity);
    myDependents.reserve(addOnCapacity);
    myAddOns.reserve(addOnCapacity);
    myAllProducts.reserve(productCapacity);
    myAddOnTypes.reserve(productCapacity);
    myMissingTypes.reserve(productCapacity);
}

// Frees the tables only: others hold raw pointers to the products.
ZTProductRegistry::~ZTProductRegistry()
{
    keepAlive(myAllProducts.values());
}

ZTProductAbstract* ZTProductRegistry::productWithArticleID(const ZTArticleId& theId) const
{
    return myAllProducts.value(theId);
}

void ZTProductRegistry::registerProduct(const QDomElement&, ZTProductAbstract* theProduct)
{
    if (!theProduct) {
        qWarning() << "product is nullptr";
        return;
    }
    // One look at the definition instead of one per field.
    const ZTAPMArticleDefinition definition = theProduct->articleDefinition();
    const ZTArticleId id = theProduct->articleId();
    const ZTArticleClass articleClass = definition.articleClass();
    const ZTShippingGroupId group = theProduct->shippingGroupId();
    const ZTProductType type(definition.orderTxtType());
    const ZTArticleIdSet linkedIds = definition.linkedArticleIds();
    const bool isAddOn = articleClass.isAddOn();

    // Nothing could find or price it; its data stay unused in the stores.
    if (articleClass.isNull() || !id.isValid() || (isAddOn && linkedIds.isEmpty())) {
        delete theProduct;
        return;
    }

    myAllProducts.insert(id, theProduct);
    if (!isAddOn) {
        myProductList.append(theProduct);
        if (type.isValid())
            myProductsByType.insert(type, theProduct);
        myProductsById.insert(id, theProduct);
        for (ZTArticleClassEnum bit :
             ZTEnumToStringTable<ZTArticleClassEnum>::splitToBits(articleClass.value()))
            myProductsByClass.insert(bit, theProduct);
        if (group.isValid())
            myProductsByGroup.insert(group, theProduct);
        if (linkedIds.isEmpty())
            return;
    }
    myAddOns.insert(id, theProduct);
    for (const ZTArticleId& linkedId : linkedIds)
        myDependents.insert(linkedId, theProduct);
}

void ZTProductRegistry::setProductsDeprecated()
{
    for (ZTProductAbstract* product : std::as_const(myProductList))
        product->setDeprecated(true);
}

QList<QString> ZTProductRegistry::xmlKeyWords() const
{
    return {QStringLiteral("article"), QStringLiteral("add_on")};
}

ZTProductList ZTProductRegistry::productList() const
{
    return myProductList;
}

ZTProductList ZTProductRegistry::productList(const ZTShippingGroupId& theShippingGroupId) const
{
    return myProductsByGroup.values(theShippingGroupId);
}

ZTProductList ZTProductRegistry::productList(const ZTArticleClass& theClass) const
{
    return myProductList.filter(theClass);
}

ZTProductList ZTProductRegistry::productsForArticleClass(const ZTArticleClass& theClass) const
{
    ZTProductList result = productList(theClass);
    result.sort();
    return result;
}

ZTProductList ZTProductRegistry::productsForShippingGroup(const ZTShippingGroupId& theShippingGroupId,
                                                          bool withoutDeprecated) const
{
    const ZTProductList result = productList(theShippingGroupId);
    return withoutDeprecated ? result.withoutDeprecatedProducts() : result;
}

ZTProductList ZTProductRegistry::allAddOns() const
{
    return myAddOns.values();
}

ZTProductList ZTProductRegistry::findAddOns(const ZTArticleId& theId) const
{
    return myDependents.values(theId);
}

bool ZTProductRegistry::existsAnyAddOn(const ZTArticleClass& theClass) const
{
    for (ZTProductAbstract* product : myAddOns) {
        if (product->hasArticleClass(theClass))
            return true;
    }
    return false;
}

ZTProductAbstract* ZTProductRegistry::findAddOnByProductType(const ZTProductType& theType) const
{
    for (ZTProductAbstract* product : myAddOns) {
        if (product->productType() == theType)
            return product;
    }
    return nullptr;
}

ZTProductAbstract* ZTProductRegistry::findProductAbstract(const ZTProductType& theType) const
{
    if (ZTProductAbstract* article = myProductsByType.value(theType))
        return article;
    if (myMissingTypes.contains(theType))
        return nullptr;
    if (ZTProductAbstract* addOn = myAddOnTypes.value(theType))
        return addOn;
    // The full scan, done once per type: its answer, found or not, is kept for good.
    if (ZTProductAbstract* addOn = findAddOnByProductType(theType)) {
        myAddOnTypes.insert(theType, addOn);
        return addOn;
    }
    myMissingTypes.insert(theType);
    return nullptr;
}

ZTProductList ZTProductRegistry::findDependentProducts(const ZTArticleId& theId,
                                                       const ZTArticleClass& theClass) const
{
    ZTProductList result;
    if (!theId.isValid())
        return result;
    const ZTProductCheckerRegistry* checkers = ZTSingleton<ZTProductCheckerRegistry>::instance();
    for (ZTProductAbstract* product : myDependents.values(theId)) {
        if (!product->hasArticleClass(theClass) || product->isDeprecated())
            continue;
        // A slipcase is offered only for the book sizes it is made for.
        if (product->hasArticleClass(ZTArticleClassSlipcase) &&
            !checkers->isValid(product->productType(), ZTProductCheckerTypeAccessory))
            continue;
        result.append(product);
    }
    return result;
}

ZTProductAbstract* ZTProductRegistry::findDependentProduct(const ZTArticleId& theId,
                                                           const ZTPriceClass& thePriceClass) const
{
    if (!thePriceClass.isValid())
        return nullptr;
    for (ZTProductAbstract* product : myDependents.values(theId)) {
        // A plain article has no price class; its order text type may name it instead.
        if (product->priceClass() == thePriceClass ||
            product->productType().orderTxtName() == thePriceClass.toString())
            return product;
    }
    return nullptr;
}

bool ZTProductRegistry::existsDependentProduct(const ZTArticleId& theId, const ZTArticleClass& theClass) const
{
    if (!theId.isValid())
        return false;
    for (auto it = myDependents.constFind(theId); it != myDependents.cend() && it.key() == theId; ++it) {
        if (it.value()->hasArticleClass(theClass))
            return true;
    }
    return false;
}

ZTEmptyMeansAllSet<ZTProductAbstract*>
ZTProductRegistry::findProducts(const ZTEmptyMeansAllSet<ZTArticleClass>& theClasses,
                                const ZTEmptyMeansAllSet<ZTCoverType>& theCovers) const
{
    ZTEmptyMeansAllSet<ZTProductAbstract*> result;
    if (theClasses.isEmpty() && theCovers.isEmpty())
        return result;
    for (ZTProductAbstract* product : myProductList) {
        if (!theClasses.isEmpty() && !theClasses.contains(product->articleClass()))
            continue;
        if (!theCovers.isEmpty() && !theCovers.contains(product->coverType()))
            continue;
        result.insert(product);
    }
    return result;
}

ZTProductAbstract* ZTProductRegistry::mostEquivalentProduct(ZTProductAbstract* theProduct,
                                                            const ZTArticleClass& theClass) const
{
    if (!theProduct)
        return nullptr;
    const QString head = theProduct->orderTxtHead();
    if (ZTProductAbstract* found =
            findProductWithOrderTXTHead(head, theClass, true, theProduct->orderTxtBorder()))
        return found;
    if (ZTProductAbstract* found = findProductWithOrderTXTHead(head, theClass, false, QString()))
        return found;

    const qint64 pixels = theProduct->countPrintPixels();
    ZTProductAbstract* closest = nullptr;
    qint64 closestDifference = 0x7fffffff;
    for (ZTProductAbstract* candidate : productsForArticleClass(theClass)) {
        const qint64 difference = std::abs(candidate->countPrintPixels() - pixels);
        if (difference < closestDifference) {
            closestDifference = difference;
            closest = candidate;
        }
    }
    return closest;
}

ZTProductAbstract* ZTProductRegistry::findProductWithOrderTXTHead(const QString& theHead,
                                                                  const ZTArticleClass& theClass,
                                                                  bool checkBorder,
                                                                  const QString& theBorder) const
{
    if (theHead.isEmpty())
        return nullptr;
    for (ZTProductAbstract* product : productList(theClass)) {
        if (product->hasOrderTxtHead(theHead) && (!checkBorder || product->orderTxtBorder() == theBorder))
            return product;
    }
    return nullptr;
}

ZTDiscountLimitSet ZTProductRegistry::discountLimits(const ZTDiscountLimitListKey& theKey) const
{
    return productsForShippingGroup(theKey.shippingGroupId(), false).filterValid().discountLimits(theKey);
}

bool ZTProductRegistry::containsDiscountModel(const ZTShippingGroupId& theShippingGroupId,
                                              const ZTAPMPriceKey& thePriceKey,
                                              const ZTDiscountModel& theModel) const
{
    for (ZTProductAbstract* product : productsForShippingGroup(theShippingGroupId, false)) {
        for (const ZTDiscountLimit& limit : product->discountLimits(thePriceKey)) {
            if (limit.discountModel().value() == theModel.value())
                return true;
        }
    }
    return false;
}

bool ZTProductRegistry::shippingGroupHasUnitTransferPrice(const ZTShippingGroupId& theShippingGroupId,
                                                          const ZTAPMPriceKey& thePriceKey) const
{
    for (ZTProductAbstract* product : productList(theShippingGroupId)) {
        if (product->unitTransferPrice(thePriceKey).hasPrice())
            return true;
    }
    return false;
}

bool ZTProductRegistry::shippingTimesEnabled(const ZTShippingGroupId& theShippingGroupId,
                                             const ZTOrderSource& theOrderSource,
                                             const ZTExpressType& theExpressType) const
{
    for (ZTProductAbstract* product : productList(theShippingGroupId)) {
        const ZTAPMDeliveryTime time = product->shippingTime(theOrderSource.deliveryType(), theExpressType);
        if (time.isValid() && time.hasValidDayRange())
            return true;
    }
    return false;
}

int ZTProductRegistry::productCount() const
{
    return int(myAllProducts.size());
}
