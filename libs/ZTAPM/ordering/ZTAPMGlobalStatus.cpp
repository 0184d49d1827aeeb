#include "ZTAPMGlobalStatus.h"

#include "ZTAPMConfig.h"
#include "ZTOrderingDetails.h"

#include <QDebug>

namespace {
// The configuration and the ordering details must exist before the status is made: it starts
// with a payment the ordering details permit.
ZTAPMStatus firstStatus()
{
    qInfo() << "Creating...";
    ZTSingleton<ZTAPMConfig>::instance();
    return ZTAPMStatus();
}
} // namespace

ZTAPMGlobalStatus::ZTAPMGlobalStatus() : myStatus(firstStatus())
{
    initOrderSource(ZTSingleton<ZTAPMConfig>::instance()->defaultOrderSource());
    setReasonableStartingPayment();
    setReasonableStartingShipmentMethod();
    qInfo() << "Created.";
}

ZTAPMGlobalStatus::~ZTAPMGlobalStatus() = default;

ZTAPMStatus ZTAPMGlobalStatus::status() const
{
    return myStatus;
}

ZTOrderSource ZTAPMGlobalStatus::orderSource() const
{
    return myStatus.orderSource();
}

ZTInputSource ZTAPMGlobalStatus::inputSource() const
{
    return myStatus.inputSource();
}

ZTDeliveryType ZTAPMGlobalStatus::deliveryType() const
{
    return myStatus.deliveryType();
}

ZTPaymentMethod ZTAPMGlobalStatus::paymentMethod() const
{
    return myStatus.paymentMethod();
}

ZTAPMPriceKey ZTAPMGlobalStatus::priceKey() const
{
    return myStatus.priceKey();
}

void ZTAPMGlobalStatus::setPaymentMethod(const ZTPaymentMethod& theMethod)
{
    myStatus.setPaymentMethod(theMethod);
}

void ZTAPMGlobalStatus::setReasonableStartingPayment()
{
    myStatus.setReasonableStartingPayment();
}

void ZTAPMGlobalStatus::setReasonableStartingShipmentMethod()
{
    myStatus.setReasonableStartingShipmentMethod();
}

void ZTAPMGlobalStatus::initOrderSource(const ZTOrderSource& theOrderSource)
{
    const ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
    if (details->orderSourceEnabled(theOrderSource)) {
        setOrderSource(theOrderSource);
        return;
    }
    const QList<ZTOrderSource> available = details->availableOrderSources();
    if (available.isEmpty()) {
        qWarning() << " -- Wir haben keinen Bestellweg.";
        return;
    }
    qWarning() << " -- Konfiguriere auf den ersten verfügbaren Bestellweg um. Default- UND konfigurierter "
                  "Bestellweg sind nicht verfügbar.";
    setOrderSource(available.first());
}

void ZTAPMGlobalStatus::initOrderSource()
{
    initOrderSource(myStatus.orderSource());
}

void ZTAPMGlobalStatus::setOrderSource(const ZTOrderSource& theNewOrderSource)
{
    if (myStatus.hasOrderSource(theNewOrderSource))
        return;
    myStatus.setOrderSource(theNewOrderSource);
    Q_EMIT orderSourceChanged(theNewOrderSource);
}

void ZTAPMGlobalStatus::setPriceKey(const ZTAPMPriceKey& theNewPriceKey)
{
    setOrderSource(theNewPriceKey.orderSource());
}
