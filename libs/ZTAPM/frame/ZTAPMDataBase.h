#ifndef ZTAPMDATABASE_H
#define ZTAPMDATABASE_H

#include "ZTArticleClass.h"
#include "ZTCoverType.h"
#include "ZTDiscountLimitSet.h"
#include "ZTEmptyMeansAllSet.h"
#include "ZTExpressType.h"
#include "ZTExpressTypeList.h"
#include "ZTProductList.h"
#include "ZTSingleton.h"
#include "ztapm_export.h"

#include <QList>
#include <QObject>

#include <atomic>

class QDomNode;
class QFileInfo;
class QRecursiveMutex;
class ZTAPMPriceKey;
class ZTArticleId;
class ZTDiscountLimitListKey;
class ZTDiscountModel;
class ZTExpressKey;
class ZTOrderSource;
class ZTPaymentId;
class ZTPaymentMethod;
class ZTPriceClass;
class ZTProductAbstract;
class ZTProductRegistry;
class ZTProductRegistryAbstract;
class ZTProductRegistryExpressFees;
class ZTProductRegistryPaymentFees;
class ZTProductRegistryShipmentMethodFees;
class ZTProductRegistryTransferFees;
class ZTProductType;
class ZTShippingGroupId;

// The catalogue facade: owns the product registries, reads the products document into them and
// guards them with one recursive mutex. Every query takes the mutex for the lookup only; products
// live to the end of the process, so a pointer handed out under the lock stays usable without it.
class ZTAPM_EXPORT ZTAPMDataBase : public QObject, public ZTSingleton<ZTAPMDataBase>
{
    Q_OBJECT

public:
    // The registries themselves, without the lock: callers that go on to use them must hold
    // what they need themselves.
    ZTProductRegistry* products() const;
    ZTProductRegistryTransferFees* transferFees() const;
    ZTProductRegistryPaymentFees* paymentFees() const;
    ZTProductRegistryExpressFees* expressFees() const;
    ZTProductRegistryShipmentMethodFees* shipmentMethodFees() const;
    // In the order in which a products document is read: products, payment fees, transfer fees,
    // express fees, shipment method fees.
    QList<ZTProductRegistryAbstract*> registries() const;
    // The number of products in each registry, in the order of registries(), deprecated ones
    // included.
    QList<int> productCounts() const;
    // Every product of every registry once, by article id; of equal ids articles and add-ons come
    // before fees. For listings of the whole catalogue.
    ZTProductList allProducts() const;

    // The first registry that knows the id, asked in the order products, express fees, transfer
    // fees, shipment method fees, payment fees.
    ZTProductAbstract* productAbstract(const ZTArticleId& theId) const;
    // An article of that type, else an add-on; null for an invalid type.
    ZTProductAbstract* productAbstract(const ZTProductType& theType) const;
    // The first of the calendars and books by name order, or null.
    ZTProductAbstract* firstValidProductAbstract() const;

    bool existsAnyAddOn(const ZTArticleClass& theClass) const;
    // Without the lock, as its callers expect.
    ZTProductList addOnsForClass(const ZTArticleClass& theClass) const;
    ZTDiscountLimitSet discountLimits(const ZTDiscountLimitListKey& theKey) const;
    bool containsDiscountModel(const ZTShippingGroupId& theShippingGroupId, const ZTAPMPriceKey& thePriceKey,
                               const ZTDiscountModel& theModel) const;
    ZTProductList productsForArticleClass(const ZTArticleClass& theClass) const;
    // The live articles of the group.
    ZTProductList productsForShippingGroup(const ZTShippingGroupId& theShippingGroupId) const;
    bool shippingTimesEnabled(const ZTShippingGroupId& theShippingGroupId,
                              const ZTOrderSource& theOrderSource, const ZTExpressType& theExpressType) const;
    bool shippingGroupHasUnitTransferPrice(const ZTShippingGroupId& theShippingGroupId,
                                           const ZTAPMPriceKey& thePriceKey) const;
    ZTProductList findDependentProducts(const ZTArticleId& theId, const ZTArticleClass& theClass) const;
    ZTProductAbstract* findDependentProduct(const ZTArticleId& theId,
                                            const ZTPriceClass& thePriceClass) const;
    // Through a chain of intermediate add-ons whose price classes are in thePath, each used at
    // most once on the way down.
    ZTProductAbstract* findDependentProduct(const ZTArticleId& theId, const ZTPriceClass& theTarget,
                                            const QList<ZTPriceClass>& thePath);
    ZTEmptyMeansAllSet<ZTProductAbstract*>
    findProducts(const ZTEmptyMeansAllSet<ZTArticleClass>& theClasses,
                 const ZTEmptyMeansAllSet<ZTCoverType>& theCovers) const;
    ZTProductAbstract* mostEquivalentProduct(ZTProductAbstract* theProduct,
                                             const ZTArticleClass& theClass) const;
    bool existsDependentProduct(const ZTArticleId& theId, const ZTArticleClass& theClass) const;

    ZTProductAbstract* transferProduct(const ZTShippingGroupId& theShippingGroupId) const;
    ZTProductAbstract* paymentFeeProduct(const ZTPaymentId& thePaymentId) const;
    ZTProductAbstract* paymentFeeProduct(const ZTPaymentMethod& theMethod) const;
    bool expressFeeProductsExist() const;
    QList<const ZTProductAbstract*> expressFeeProducts(const ZTShippingGroupId& theShippingGroupId) const;
    ZTProductAbstract* expressFeeProduct(const ZTExpressKey& theKey) const;
    ZTExpressType expressType(const ZTArticleId& theId) const;
    ZTProductAbstract* shipmentMethodFeeProduct(int theShipmentMethodId) const;
    int idOfShipmentMethodFeeProduct(int theShipmentMethodId) const;

    // Its delivery times allow express and its shipping group has an express fee.
    bool productIsExpressable(ZTProductAbstract* theProduct) const;
    bool productIsExpressable(const ZTArticleId& theId) const;
    // Some article of the group, deprecated ones included, is expressable.
    bool shippingGroupIsExpressable(const ZTShippingGroupId& theShippingGroupId) const;
    // The express types with a fee above zero under the key for which the group has delivery
    // times, in the order of the express fees.
    ZTExpressTypeList supportedExpressTypes(const ZTShippingGroupId& theShippingGroupId,
                                            const ZTAPMPriceKey& thePriceKey) const;

    void loadAllProductsFrom(const QFileInfo& theFile);
    void updateProducts(const QDomNode& theRoot);

    // Set when data arrived that only a restart can apply; the host decides what to do.
    void pleaseRestartTheSoftware();
    bool softwareShouldBeRestarted() const;

    // How often a products document has been read into the registries; for the host's display.
    int productUpdateCount() const;

public Q_SLOTS:
    void loadAllProducts();

Q_SIGNALS:
    void priceListUpdated();

private:
    friend class ZTSingleton<ZTAPMDataBase>;
    ZTAPMDataBase();
    ~ZTAPMDataBase() override;

    QRecursiveMutex* const myLock;
    std::atomic<bool> myRestartFlag{false};
    ZTProductRegistryTransferFees* const myTransferFees;
    ZTProductRegistryShipmentMethodFees* const myShipmentMethodFees;
    ZTProductRegistryPaymentFees* const myPaymentFees;
    ZTProductRegistryExpressFees* const myExpressFees;
    ZTProductRegistry* const myProducts;
    int myUpdateCount = 0;
};

#endif // ZTAPMDATABASE_H
