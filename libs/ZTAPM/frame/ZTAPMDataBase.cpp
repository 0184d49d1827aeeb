#include "ZTAPMDataBase.h"

#include "ZTAPMObjects.h"
#include "ZTAPMPriceKey.h"
#include "ZTAPMProductsReading.h"
#include "ZTArticleId.h"
#include "ZTDiscountLimitListKey.h"
#include "ZTDiscountModel.h"
#include "ZTExpressKey.h"
#include "ZTKeyAccount.h"
#include "ZTMutexLocker.h"
#include "ZTOrderSource.h"
#include "ZTPageOrganizationManager.h"
#include "ZTPaymentId.h"
#include "ZTPaymentMethod.h"
#include "ZTPriceClass.h"
#include "ZTProductAbstract.h"
#include "ZTProductCheckerRegistry.h"
#include "ZTProductRegistry.h"
#include "ZTProductRegistryExpressFees.h"
#include "ZTProductRegistryPaymentFees.h"
#include "ZTProductRegistryShipmentMethodFees.h"
#include "ZTProductRegistryTransferFees.h"
#include "ZTProductType.h"
#include "ZTProgramConfig.h"
#include "ZTResourceFile.h"
#include "ZTShippingGroupId.h"
#include "ZTXMLLoader.h"

#include <QDomElement>
#include <QFileInfo>
#include <QRecursiveMutex>
#include <QScopeGuard>
#include <QSet>

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>

namespace {

// A program variant that works without a catalogue of its own.
constexpr int programIdWithoutCatalogue = 8;
// Calendars and the two kinds of photo book: what a new document starts as.
constexpr ZTArticleClassEnum firstChoiceClasses = ZTArticleClassEnum(7);
} // namespace

ZTAPMDataBase::ZTAPMDataBase()
    : myLock(new QRecursiveMutex)
    , myTransferFees(new ZTProductRegistryTransferFees)
    , myShipmentMethodFees(new ZTProductRegistryShipmentMethodFees)
    , myPaymentFees(new ZTProductRegistryPaymentFees)
    , myExpressFees(new ZTProductRegistryExpressFees)
    , myProducts(new ZTProductRegistry)
{
    qInfo() << "Creating...";
    loadAllProducts();
    // Connected only now: the first load above is part of construction, every later change of
    // key account reloads through the slot.
    connect(ZTSingleton<ZTKeyAccount>::instance(), &ZTKeyAccount::applicationKeyAccountChanged, this,
            &ZTAPMDataBase::loadAllProducts);
    qInfo() << "Created.";
}

// Registries, products and the lock live to the end of the process: others hold raw pointers.
ZTAPMDataBase::~ZTAPMDataBase() = default;

ZTProductRegistry* ZTAPMDataBase::products() const
{
    return myProducts;
}

ZTProductRegistryTransferFees* ZTAPMDataBase::transferFees() const
{
    return myTransferFees;
}

ZTProductRegistryPaymentFees* ZTAPMDataBase::paymentFees() const
{
    return myPaymentFees;
}

ZTProductRegistryExpressFees* ZTAPMDataBase::expressFees() const
{
    return myExpressFees;
}

ZTProductRegistryShipmentMethodFees* ZTAPMDataBase::shipmentMethodFees() const
{
    return myShipmentMethodFees;
}

QList<ZTProductRegistryAbstract*> ZTAPMDataBase::registries() const
{
    return {myProducts, myPaymentFees, myTransferFees, myExpressFees, myShipmentMethodFees};
}

QList<int> ZTAPMDataBase::productCounts() const
{
    ZTMutexLocker locker(myLock);
    return {myProducts->productCount(), myPaymentFees->productCount(), myTransferFees->productCount(),
            myExpressFees->productCount(), myShipmentMethodFees->productCount()};
}

ZTProductList ZTAPMDataBase::allProducts() const
{
    ZTProductList candidates;
    {
        ZTMutexLocker locker(myLock);
        candidates << myProducts->productList() << myProducts->allAddOns() << myTransferFees->productList()
                   << myExpressFees->productList() << myPaymentFees->productList()
                   << myShipmentMethodFees->productList();
    }
    // An article that links to others is in both of the first two lists.
    ZTProductList result;
    QSet<const ZTProductAbstract*> seen;
    for (ZTProductAbstract* product : std::as_const(candidates)) {
        if (product && !seen.contains(product)) {
            seen.insert(product);
            result.append(product);
        }
    }
    std::stable_sort(result.begin(), result.end(), [](ZTProductAbstract* a, ZTProductAbstract* b) {
        return a->articleId().id() < b->articleId().id();
    });
    return result;
}

ZTProductAbstract* ZTAPMDataBase::productAbstract(const ZTArticleId& theId) const
{
    ZTMutexLocker locker(myLock);
    for (const ZTProductRegistryAbstract* registry : std::initializer_list<const ZTProductRegistryAbstract*>{
             myProducts, myExpressFees, myTransferFees, myShipmentMethodFees, myPaymentFees}) {
        if (ZTProductAbstract* product = registry->productWithArticleID(theId))
            return product;
    }
    return nullptr;
}

ZTProductAbstract* ZTAPMDataBase::productAbstract(const ZTProductType& theType) const
{
    if (!theType.isValid())
        return nullptr;
    ZTMutexLocker locker(myLock);
    return myProducts->findProductAbstract(theType);
}

ZTProductAbstract* ZTAPMDataBase::firstValidProductAbstract() const
{
    const ZTProductList candidates = productsForArticleClass(firstChoiceClasses);
    return candidates.isEmpty() ? nullptr : candidates.first();
}

bool ZTAPMDataBase::existsAnyAddOn(const ZTArticleClass& theClass) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->existsAnyAddOn(theClass);
}

ZTProductList ZTAPMDataBase::addOnsForClass(const ZTArticleClass& theClass) const
{
    return myProducts->allAddOns().filter(theClass);
}

ZTDiscountLimitSet ZTAPMDataBase::discountLimits(const ZTDiscountLimitListKey& theKey) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->discountLimits(theKey);
}

bool ZTAPMDataBase::containsDiscountModel(const ZTShippingGroupId& theShippingGroupId,
                                          const ZTAPMPriceKey& thePriceKey,
                                          const ZTDiscountModel& theModel) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->containsDiscountModel(theShippingGroupId, thePriceKey, theModel);
}

ZTProductList ZTAPMDataBase::productsForArticleClass(const ZTArticleClass& theClass) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->productsForArticleClass(theClass);
}

ZTProductList ZTAPMDataBase::productsForShippingGroup(const ZTShippingGroupId& theShippingGroupId) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->productsForShippingGroup(theShippingGroupId, true);
}

bool ZTAPMDataBase::shippingTimesEnabled(const ZTShippingGroupId& theShippingGroupId,
                                         const ZTOrderSource& theOrderSource,
                                         const ZTExpressType& theExpressType) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->shippingTimesEnabled(theShippingGroupId, theOrderSource, theExpressType);
}

bool ZTAPMDataBase::shippingGroupHasUnitTransferPrice(const ZTShippingGroupId& theShippingGroupId,
                                                      const ZTAPMPriceKey& thePriceKey) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->shippingGroupHasUnitTransferPrice(theShippingGroupId, thePriceKey);
}

ZTProductList ZTAPMDataBase::findDependentProducts(const ZTArticleId& theId,
                                                   const ZTArticleClass& theClass) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->findDependentProducts(theId, theClass);
}

ZTProductAbstract* ZTAPMDataBase::findDependentProduct(const ZTArticleId& theId,
                                                       const ZTPriceClass& thePriceClass) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->findDependentProduct(theId, thePriceClass);
}

ZTProductAbstract* ZTAPMDataBase::findDependentProduct(const ZTArticleId& theId,
                                                       const ZTPriceClass& theTarget,
                                                       const QList<ZTPriceClass>& thePath)
{
    if (ZTProductAbstract* direct = findDependentProduct(theId, theTarget))
        return direct;
    for (const ZTPriceClass& step : thePath) {
        const ZTProductAbstract* intermediate = findDependentProduct(theId, step);
        if (!intermediate)
            continue;
        // Each descent uses up a class, so the recursion ends.
        QList<ZTPriceClass> rest = thePath;
        rest.removeAll(step);
        if (ZTProductAbstract* found = findDependentProduct(intermediate->articleId(), theTarget, rest))
            return found;
    }
    return nullptr;
}

ZTEmptyMeansAllSet<ZTProductAbstract*>
ZTAPMDataBase::findProducts(const ZTEmptyMeansAllSet<ZTArticleClass>& theClasses,
                            const ZTEmptyMeansAllSet<ZTCoverType>& theCovers) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->findProducts(theClasses, theCovers);
}

ZTProductAbstract* ZTAPMDataBase::mostEquivalentProduct(ZTProductAbstract* theProduct,
                                                        const ZTArticleClass& theClass) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->mostEquivalentProduct(theProduct, theClass);
}

bool ZTAPMDataBase::existsDependentProduct(const ZTArticleId& theId, const ZTArticleClass& theClass) const
{
    ZTMutexLocker locker(myLock);
    return myProducts->existsDependentProduct(theId, theClass);
}

ZTProductAbstract* ZTAPMDataBase::transferProduct(const ZTShippingGroupId& theShippingGroupId) const
{
    ZTMutexLocker locker(myLock);
    return myTransferFees->transferProduct(theShippingGroupId);
}

ZTProductAbstract* ZTAPMDataBase::paymentFeeProduct(const ZTPaymentId& thePaymentId) const
{
    ZTMutexLocker locker(myLock);
    return myPaymentFees->paymentFeeProduct(thePaymentId);
}

ZTProductAbstract* ZTAPMDataBase::paymentFeeProduct(const ZTPaymentMethod& theMethod) const
{
    // Every member of a family shares the fee of its meta method.
    return paymentFeeProduct(theMethod.paymentId());
}

bool ZTAPMDataBase::expressFeeProductsExist() const
{
    ZTMutexLocker locker(myLock);
    return myExpressFees->expressFeeProductsExist();
}

QList<const ZTProductAbstract*>
ZTAPMDataBase::expressFeeProducts(const ZTShippingGroupId& theShippingGroupId) const
{
    ZTMutexLocker locker(myLock);
    return myExpressFees->expressFeeProducts(theShippingGroupId);
}

ZTProductAbstract* ZTAPMDataBase::expressFeeProduct(const ZTExpressKey& theKey) const
{
    ZTMutexLocker locker(myLock);
    return myExpressFees->expressFeeProduct(theKey);
}

ZTExpressType ZTAPMDataBase::expressType(const ZTArticleId& theId) const
{
    ZTMutexLocker locker(myLock);
    return myExpressFees->expressType(theId);
}

ZTProductAbstract* ZTAPMDataBase::shipmentMethodFeeProduct(int theShipmentMethodId) const
{
    ZTMutexLocker locker(myLock);
    return myShipmentMethodFees->shipmentMethodFeeProduct(theShipmentMethodId);
}

int ZTAPMDataBase::idOfShipmentMethodFeeProduct(int theShipmentMethodId) const
{
    ZTMutexLocker locker(myLock);
    return myShipmentMethodFees->idOfShipmentMethodFeeProduct(theShipmentMethodId);
}

bool ZTAPMDataBase::productIsExpressable(ZTProductAbstract* theProduct) const
{
    ZTMutexLocker locker(myLock);
    return theProduct && theProduct->isExpressable() &&
           myExpressFees->hasAnyExpressFeeProduct(theProduct->shippingGroupId());
}

bool ZTAPMDataBase::productIsExpressable(const ZTArticleId& theId) const
{
    ZTMutexLocker locker(myLock);
    return productIsExpressable(productAbstract(theId));
}

bool ZTAPMDataBase::shippingGroupIsExpressable(const ZTShippingGroupId& theShippingGroupId) const
{
    ZTMutexLocker locker(myLock);
    for (ZTProductAbstract* product : myProducts->productList(theShippingGroupId)) {
        if (productIsExpressable(product))
            return true;
    }
    return false;
}

ZTExpressTypeList ZTAPMDataBase::supportedExpressTypes(const ZTShippingGroupId& theShippingGroupId,
                                                       const ZTAPMPriceKey& thePriceKey) const
{
    ZTMutexLocker locker(myLock);
    ZTExpressTypeList result;
    for (const ZTExpressType& type : myExpressFees->findExpressTypes(theShippingGroupId, thePriceKey)) {
        if (shippingTimesEnabled(theShippingGroupId, thePriceKey.orderSource(), type))
            result.append(type);
    }
    return result;
}

void ZTAPMDataBase::loadAllProducts()
{
    loadAllProductsFrom(ZTResourceFile(ZTResourceFileTypeProducts).fileInfo(false, QString()));
}

void ZTAPMDataBase::loadAllProductsFrom(const QFileInfo& theFile)
{
    if (ZTSingleton<ZTProgramConfig>::instance()->programID() == programIdWithoutCatalogue)
        return;

    // One streamed reading for the registries and, while it has not read the document itself,
    // for the definitions store.
    const QList<ZTProductRegistryAbstract*> registryList = registries();
    QStringList keyWords;
    for (const ZTProductRegistryAbstract* registry : registryList)
        keyWords += registry->xmlKeyWords();
    const ZTAPMObjects* objects = ZTSingleton<ZTAPMObjects>::instance();
    const ZTAPMArticleDefinitions& definitions = objects->articleDefinitions();
    // The first price question after start-up would wait for the prices store to read its
    // document; a store that has not read it yet does so now, on a second core, while the
    // products are read. Whichever thread is free first takes the next document: a big prices
    // document keeps the second core busy while this one, done with the products, reads the
    // delivery times. Each store reads under its own lock, so the answers are the same whoever
    // reads, and without a second thread this one reads everything.
    std::atomic<int> nextStore{0};
    const auto prepareStores = [objects, &nextStore] {
        for (int store = nextStore++; store < 2; store = nextStore++) {
            if (store == 0)
                objects->articlePrices().prepare();
            else
                objects->articleDeliveryTimes().prepare();
        }
    };
    std::thread stores;
    try {
        stores = std::thread(prepareStores);
    } catch (const std::system_error& theError) {
        qWarning() << "No thread for the stores:" << theError.what();
    }
    const auto joinStores = qScopeGuard([&stores, &prepareStores] {
        prepareStores();
        if (stores.joinable())
            stores.join();
    });
    ZTAPMProductsReading reading(keyWords);
    // The store's lock is given up before the data base's is taken, which comes first.
    if (!reading.read(theFile, definitions.wantsReadingOf(theFile) ? &definitions : nullptr))
        return;
    updateRegistries([&reading](ZTProductRegistryAbstract* theRegistry) { reading.readInto(theRegistry); });
}

void ZTAPMDataBase::updateProducts(const QDomNode& theRoot)
{
    if (theRoot.isNull())
        return;
    updateRegistries(
        [&theRoot](ZTProductRegistryAbstract* theRegistry) { theRegistry->readProducts(theRoot); });
}

void ZTAPMDataBase::updateRegistries(const std::function<void(ZTProductRegistryAbstract*)>& theReading)
{
    {
        ZTMutexLocker locker(myLock);
        for (ZTProductRegistryAbstract* registry : registries())
            theReading(registry);
        ZTSingleton<ZTPageOrganizationManager>::instance()->clearCache();
        ZTSingleton<ZTProductCheckerRegistry>::instance()->clearCaches();
        ++myUpdateCount;
    }
    // Outside the lock: receivers may query the catalogue from other threads.
    Q_EMIT priceListUpdated();
}

void ZTAPMDataBase::pleaseRestartTheSoftware()
{
    myRestartFlag = true;
}

bool ZTAPMDataBase::softwareShouldBeRestarted() const
{
    return myRestartFlag;
}

int ZTAPMDataBase::productUpdateCount() const
{
    ZTMutexLocker locker(myLock);
    return myUpdateCount;
}
