#include "ZTAPMStatus.h"

#include "ZTAPMShippingGroupManager.h"
#include "ZTAPMStatusImpl.h"
#include "ZTOrderingDetails.h"

namespace {
// The payment a new status starts with, where the key account permits it.
const ZTPaymentId theStartingPaymentId(3);
} // namespace

ZTAPMStatus::ZTAPMStatus() : d(new ZTAPMStatusImpl)
{
    d->myPaymentMethod = ZTSingleton<ZTOrderingDetails>::instance()->paymentMethod(
        d->myOrderSource, theStartingPaymentId, QString());
}

ZTAPMStatus::ZTAPMStatus(const ZTAPMStatus& theOther) = default;
ZTAPMStatus::ZTAPMStatus(ZTAPMStatus&& theOther) noexcept = default;
ZTAPMStatus& ZTAPMStatus::operator=(const ZTAPMStatus& theOther) = default;
ZTAPMStatus& ZTAPMStatus::operator=(ZTAPMStatus&& theOther) noexcept = default;
ZTAPMStatus::~ZTAPMStatus() = default;

bool ZTAPMStatus::operator==(const ZTAPMStatus& theOther) const
{
    return d == theOther.d || (d->myOrderSource == theOther.d->myOrderSource &&
                               d->myShipmentMethod == theOther.d->myShipmentMethod &&
                               d->myShipmentMethodValues == theOther.d->myShipmentMethodValues &&
                               d->myPaymentMethod == theOther.d->myPaymentMethod &&
                               d->myPaymentAuthorizations == theOther.d->myPaymentAuthorizations);
}

ZTOrderSource ZTAPMStatus::orderSource() const
{
    return d->myOrderSource;
}

ZTInputSource ZTAPMStatus::inputSource() const
{
    return d->myOrderSource.inputSource();
}

ZTDeliveryType ZTAPMStatus::deliveryType() const
{
    return d->myOrderSource.deliveryType();
}

bool ZTAPMStatus::hasOrderSource(const ZTOrderSource& theOrderSource) const
{
    return d->myOrderSource == theOrderSource;
}

bool ZTAPMStatus::isOnlinePointOfSale() const
{
    return d->myOrderSource.isOnlinePointOfSale();
}

bool ZTAPMStatus::isOnlineMailOrder() const
{
    return d->myOrderSource.isOnlineMailOrder();
}

bool ZTAPMStatus::isCDPointOfSale() const
{
    return d->myOrderSource.isCDPointOfSale();
}

bool ZTAPMStatus::isMailOrder() const
{
    return d->myOrderSource.isMailOrder();
}

bool ZTAPMStatus::isPointOfSale() const
{
    return d->myOrderSource.isPointOfSale();
}

bool ZTAPMStatus::isNetOrder() const
{
    return d->myOrderSource.inputSource() == ZTInputSourceOnline;
}

ZTAPMPriceKey ZTAPMStatus::priceKey() const
{
    return ZTAPMPriceKey(d->myOrderSource);
}

void ZTAPMStatus::setPriceKey(const ZTAPMPriceKey& theKey)
{
    setOrderSource(theKey.orderSource());
}

void ZTAPMStatus::setOrderSource(const ZTOrderSource& theOrderSource)
{
    if (theOrderSource == d->myOrderSource)
        return;
    const ZTOrderSource former = d->myOrderSource;
    d->myOrderSource = theOrderSource;
    if (former.deliveryType() != theOrderSource.deliveryType())
        setReasonableStartingPayment();
}

void ZTAPMStatus::setPaymentMethod(const ZTPaymentMethod& theMethod)
{
    d->myPaymentMethod = theMethod;
}

ZTPaymentMethod ZTAPMStatus::paymentMethod() const
{
    return d->myPaymentMethod;
}

void ZTAPMStatus::setPaymentAuthorization(const QHash<QString, QString>& theAuthorizations)
{
    d->myPaymentAuthorizations = theAuthorizations;
}

QHash<QString, QString> ZTAPMStatus::paymentAuthorizations() const
{
    return d->myPaymentAuthorizations;
}

void ZTAPMStatus::setShipmentMethod(const ZTShipmentMethod& theMethod)
{
    d->myShipmentMethod = theMethod;
}

ZTShipmentMethod ZTAPMStatus::shipmentMethod() const
{
    return d->myShipmentMethod;
}

void ZTAPMStatus::setShipmentMethodValues(const QHash<QString, QString>& theValues)
{
    d->myShipmentMethodValues = theValues;
}

QHash<QString, QString> ZTAPMStatus::shipmentMethodValues() const
{
    return d->myShipmentMethodValues;
}

void ZTAPMStatus::setReasonableStartingPayment()
{
    d->myPaymentMethod = ZTSingleton<ZTOrderingDetails>::instance()->reasonableStartingPayment(
        d->myOrderSource, d->myPaymentMethod);
}

void ZTAPMStatus::setReasonableStartingShipmentMethod()
{
    d->myShipmentMethod = ZTSingleton<ZTOrderingDetails>::instance()->reasonableStartingShipmentMethod(
        d->myOrderSource, d->myShipmentMethod);
}

bool ZTAPMStatus::differentShippingAddressPossible() const
{
    return d->myOrderSource.deliveryType() == ZTDeliveryTypeMailOrder &&
           d->myPaymentMethod.allowsDifferentShippingAddress();
}

ZTShippingGroupIdList ZTAPMStatus::shippingGroups() const
{
    return ZTSingleton<ZTAPMShippingGroupManager>::instance()->shippingGroupIDs();
}
