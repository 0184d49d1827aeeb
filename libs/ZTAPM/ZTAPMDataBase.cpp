#include "ZTAPMDataBase.h"

#include "ZTKeyAccount.h"
#include "ZTPageOrganizationManager.h"
#include "ZTProductCheckerRegistry.h"
#include "ZTProductRegistryAbstract.h"
#include "ZTProgramConfig.h"
#include "ZTResourceFile.h"
#include "ZTXMLLoader.h"

#include <QDomElement>
#include <QFileInfo>
#include <QRecursiveMutex>

namespace {
// A program variant that works without a catalogue of its own.
constexpr int programIdWithoutCatalogue = 8;
} // namespace

ZTAPMDataBase::ZTAPMDataBase() : myLock(new QRecursiveMutex)
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

QList<ZTProductRegistryAbstract*> ZTAPMDataBase::registries() const
{
    return QList<ZTProductRegistryAbstract*>(myRegistries.cbegin(), myRegistries.cend());
}

ZTProductAbstract* ZTAPMDataBase::productAbstract(const ZTArticleId& theId) const
{
    QMutexLocker locker(myLock);
    for (RegistrySlot slot : {Products, ExpressFees, TransferFees, ShipmentMethodFees, PaymentFees}) {
        if (ZTProductRegistryAbstract* registry = myRegistries[slot]) {
            if (ZTProductAbstract* product = registry->productWithArticleID(theId))
                return product;
        }
    }
    return nullptr;
}

void ZTAPMDataBase::loadAllProducts()
{
    loadAllProductsFrom(ZTResourceFile(ZTResourceFileTypeProducts).fileInfo(false, QString()));
}

void ZTAPMDataBase::loadAllProductsFrom(const QFileInfo& theFile)
{
    if (ZTSingleton<ZTProgramConfig>::instance()->programID() == programIdWithoutCatalogue)
        return;
    updateProducts(ZTXMLLoader::loadDocumentElement(theFile));
}

void ZTAPMDataBase::updateProducts(const QDomNode& theRoot)
{
    {
        QMutexLocker locker(myLock);
        if (theRoot.isNull())
            return;
        for (ZTProductRegistryAbstract* registry : registries()) {
            if (registry)
                registry->readProducts(theRoot);
        }
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
    QMutexLocker locker(myLock);
    return myUpdateCount;
}
