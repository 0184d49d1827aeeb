#ifndef ZTPRODUCTREGISTRY_H
#define ZTPRODUCTREGISTRY_H

#include "ZTArticleClass.h"
#include "ZTArticleId.h"
#include "ZTCoverType.h"
#include "ZTDiscountLimitSet.h"
#include "ZTEmptyMeansAllSet.h"
#include "ZTProductList.h"
#include "ZTProductRegistryAbstract.h"
#include "ZTProductType.h"
#include "ZTShippingGroupId.h"

#include <QHash>
#include <QMultiHash>
#include <QSet>

class ZTAPMPriceKey;
class ZTDiscountLimitListKey;
class ZTDiscountModel;
class ZTExpressType;
class ZTOrderSource;
class ZTPriceClass;

// The main registry: articles and add-ons, with the indexes that the catalogue questions need.
// It only grows; a product that leaves the document is marked deprecated and stays findable.
// Like every registry it is used under the data base's lock, findProductAbstract included,
// which fills two caches.
class ZTAPM_EXPORT ZTProductRegistry : public ZTProductRegistryAbstract
{
public:
    ZTProductRegistry();
    ~ZTProductRegistry() override;

    ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const override;
    void registerProduct(const QDomElement& theElement, ZTProductAbstract* theProduct) override;
    // Marks every article; add-ons are no members of the product list and stay as they are.
    void setProductsDeprecated() override;
    QList<QString> xmlKeyWords() const override;
    // Articles and add-ons, deprecated ones included.
    int productCount() const;

    // Every article, in order of registration.
    ZTProductList productList() const;
    // The articles of the group, newest registration first.
    ZTProductList productList(const ZTShippingGroupId& theShippingGroupId) const;
    ZTProductList productList(const ZTArticleClass& theClass) const;
    ZTProductList productsForArticleClass(const ZTArticleClass& theClass) const;
    ZTProductList productsForShippingGroup(const ZTShippingGroupId& theShippingGroupId,
                                           bool withoutDeprecated) const;

    // Add-ons, and articles that link to others, in no particular order.
    ZTProductList allAddOns() const;
    // Everything that names the article among its links, newest first.
    ZTProductList findAddOns(const ZTArticleId& theId) const;
    bool existsAnyAddOn(const ZTArticleClass& theClass) const;
    ZTProductAbstract* findAddOnByProductType(const ZTProductType& theType) const;
    // An article by its type, else an add-on; a failed search is remembered for good.
    ZTProductAbstract* findProductAbstract(const ZTProductType& theType) const;

    // The live dependents of the article of that class; slipcases only if the checkers accept them.
    ZTProductList findDependentProducts(const ZTArticleId& theId, const ZTArticleClass& theClass) const;
    // The first dependent of that price class, or whose order text type is the class's keyword.
    ZTProductAbstract* findDependentProduct(const ZTArticleId& theId,
                                            const ZTPriceClass& thePriceClass) const;
    bool existsDependentProduct(const ZTArticleId& theId, const ZTArticleClass& theClass) const;

    // Articles whose whole class and cover type are in the sets; two empty sets give an empty
    // set, which stands for everything.
    ZTEmptyMeansAllSet<ZTProductAbstract*>
    findProducts(const ZTEmptyMeansAllSet<ZTArticleClass>& theClasses,
                 const ZTEmptyMeansAllSet<ZTCoverType>& theCovers) const;
    // The article of that class that best stands in for theProduct: same order text head (and
    // border), else the closest number of print pixels.
    ZTProductAbstract* mostEquivalentProduct(ZTProductAbstract* theProduct,
                                             const ZTArticleClass& theClass) const;
    ZTProductAbstract* findProductWithOrderTXTHead(const QString& theHead, const ZTArticleClass& theClass,
                                                   bool checkBorder, const QString& theBorder) const;

    ZTDiscountLimitSet discountLimits(const ZTDiscountLimitListKey& theKey) const;
    bool containsDiscountModel(const ZTShippingGroupId& theShippingGroupId, const ZTAPMPriceKey& thePriceKey,
                               const ZTDiscountModel& theModel) const;
    bool shippingGroupHasUnitTransferPrice(const ZTShippingGroupId& theShippingGroupId,
                                           const ZTAPMPriceKey& thePriceKey) const;
    bool shippingTimesEnabled(const ZTShippingGroupId& theShippingGroupId,
                              const ZTOrderSource& theOrderSource, const ZTExpressType& theExpressType) const;

private:
    ZTProductList myProductList;
    QHash<ZTProductType, ZTProductAbstract*> myProductsByType;
    QHash<ZTArticleId, ZTProductAbstract*> myProductsById;
    QMultiHash<ZTArticleClassEnum, ZTProductAbstract*> myProductsByClass;
    QMultiHash<ZTShippingGroupId, ZTProductAbstract*> myProductsByGroup;
    QMultiHash<ZTArticleId, ZTProductAbstract*> myDependents;
    QHash<ZTArticleId, ZTProductAbstract*> myAddOns;
    QHash<ZTArticleId, ZTProductAbstract*> myAllProducts;
    mutable QHash<ZTProductType, ZTProductAbstract*> myAddOnTypes;
    mutable QSet<ZTProductType> myMissingTypes;
};

#endif // ZTPRODUCTREGISTRY_H
