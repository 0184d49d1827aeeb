#ifndef ZTAPMGLOBALSTATUS_H
#define ZTAPMGLOBALSTATUS_H

#include "ZTAPMPriceKey.h"
#include "ZTAPMStatus.h"
#include "ZTOrderSource.h"
#include "ZTSingleton.h"
#include "ztapm_export.h"

#include <QObject>

// The application's current order status. Starts with the configured default order source (or
// the first one the key account offers) and a reasonable payment and shipment method, and tells
// listeners when the order source changes. Main thread only.
class ZTAPM_EXPORT ZTAPMGlobalStatus : public QObject, public ZTSingleton<ZTAPMGlobalStatus>
{
    Q_OBJECT

public:
    // A copy of the whole status.
    ZTAPMStatus status() const;
    ZTOrderSource orderSource() const;
    ZTInputSource inputSource() const;
    ZTDeliveryType deliveryType() const;
    ZTPaymentMethod paymentMethod() const;
    ZTAPMPriceKey priceKey() const;

    void setPaymentMethod(const ZTPaymentMethod& theMethod);
    void setReasonableStartingPayment();
    void setReasonableStartingShipmentMethod();

    // theOrderSource if the key account enables it, else the first source it lists (with a
    // warning), else no change (with another warning).
    void initOrderSource(const ZTOrderSource& theOrderSource);
    // The same for the current source; for the host after the ordering details changed.
    void initOrderSource();

public Q_SLOTS:
    // Emits orderSourceChanged() when the source really changes.
    void setOrderSource(const ZTOrderSource& theNewOrderSource);
    void setPriceKey(const ZTAPMPriceKey& theNewPriceKey);

Q_SIGNALS:
    void orderSourceChanged(const ZTOrderSource& theNewOrderSource);

private:
    friend class ZTSingleton<ZTAPMGlobalStatus>;
    ZTAPMGlobalStatus();
    ~ZTAPMGlobalStatus() override;

    ZTAPMStatus myStatus;
};

#endif // ZTAPMGLOBALSTATUS_H
