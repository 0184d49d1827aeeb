#ifndef ZTAPMSTATUS_H
#define ZTAPMSTATUS_H

#include "ZTAPMPriceKey.h"
#include "ZTDeliveryType.h"
#include "ZTInputSource.h"
#include "ZTOrderSource.h"
#include "ZTPaymentMethod.h"
#include "ZTShipmentMethod.h"
#include "ZTShippingGroupIdList.h"
#include "ztapm_export.h"

#include <QHash>
#include <QSharedDataPointer>
#include <QString>

class ZTAPMStatusImpl;

// How one order is placed: order source, payment and shipment method, and what the user entered
// for them (the host fills those two hashes; the engine carries and compares them). A new status
// orders by mail online and pays with method 3 where that is permitted, so the ordering details
// must exist before one is made.
class ZTAPM_EXPORT ZTAPMStatus
{
public:
    ZTAPMStatus();
    ZTAPMStatus(const ZTAPMStatus& theOther);
    ZTAPMStatus(ZTAPMStatus&& theOther) noexcept;
    ZTAPMStatus& operator=(const ZTAPMStatus& theOther);
    ZTAPMStatus& operator=(ZTAPMStatus&& theOther) noexcept;
    ~ZTAPMStatus();

    bool operator==(const ZTAPMStatus& theOther) const;
    bool operator!=(const ZTAPMStatus& theOther) const { return !(*this == theOther); }

    ZTOrderSource orderSource() const;
    ZTInputSource inputSource() const;
    ZTDeliveryType deliveryType() const;
    bool hasOrderSource(const ZTOrderSource& theOrderSource) const;
    bool isOnlinePointOfSale() const;
    bool isOnlineMailOrder() const;
    bool isCDPointOfSale() const;
    bool isMailOrder() const;
    bool isPointOfSale() const;
    bool isNetOrder() const;

    // The key of the order source alone.
    ZTAPMPriceKey priceKey() const;
    void setPriceKey(const ZTAPMPriceKey& theKey);
    // A change of delivery type chooses a reasonable payment again; a change of the input
    // source alone keeps it. The shipment method is never touched.
    void setOrderSource(const ZTOrderSource& theOrderSource);

    void setPaymentMethod(const ZTPaymentMethod& theMethod);
    ZTPaymentMethod paymentMethod() const;
    void setPaymentAuthorization(const QHash<QString, QString>& theAuthorizations);
    QHash<QString, QString> paymentAuthorizations() const;
    void setShipmentMethod(const ZTShipmentMethod& theMethod);
    ZTShipmentMethod shipmentMethod() const;
    void setShipmentMethodValues(const QHash<QString, QString>& theValues);
    QHash<QString, QString> shipmentMethodValues() const;

    void setReasonableStartingPayment();
    void setReasonableStartingShipmentMethod();

    // Mail order with a payment that allows another address.
    bool differentShippingAddressPossible() const;
    // Every shipping group of the ordering details, whatever the status.
    ZTShippingGroupIdList shippingGroups() const;

private:
    QSharedDataPointer<ZTAPMStatusImpl> d;
};

#endif // ZTAPMSTATUS_H
