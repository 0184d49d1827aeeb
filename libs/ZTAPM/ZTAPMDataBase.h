#ifndef ZTAPMDATABASE_H
#define ZTAPMDATABASE_H

#include "ZTSingleton.h"
#include "ztapm_export.h"

#include <QList>
#include <QObject>

#include <array>

class QDomNode;
class QFileInfo;
class QRecursiveMutex;
class ZTArticleId;
class ZTProductAbstract;
class ZTProductRegistryAbstract;

// The catalogue facade: owns the product registries, reads the products document into them and
// guards them with one recursive mutex. Products live to the end of the process, so a pointer
// handed out under the lock stays usable without it.
class ZTAPM_EXPORT ZTAPMDataBase : public QObject, public ZTSingleton<ZTAPMDataBase>
{
    Q_OBJECT

public:
    // The registries in the order in which a products document is read: products, payment fees,
    // transfer fees, express fees, shipment method fees. A slot is null while its registry is not
    // part of the engine.
    QList<ZTProductRegistryAbstract*> registries() const;

    // The first registry that knows the id, asked in the order products, express fees, transfer
    // fees, shipment method fees, payment fees.
    ZTProductAbstract* productAbstract(const ZTArticleId& theId) const;

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

    enum RegistrySlot { Products, PaymentFees, TransferFees, ExpressFees, ShipmentMethodFees, SlotCount };

    QRecursiveMutex* myLock;
    bool myRestartFlag = false;
    int myUpdateCount = 0;
    std::array<ZTProductRegistryAbstract*, SlotCount> myRegistries{};
};

#endif // ZTAPMDATABASE_H
