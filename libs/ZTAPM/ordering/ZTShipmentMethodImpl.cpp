#include "ZTShipmentMethodImpl.h"

ZTShipmentMethodImpl::ZTShipmentMethodImpl() = default;
ZTShipmentMethodImpl::ZTShipmentMethodImpl(const ZTShipmentMethodImpl& theOther) = default;
ZTShipmentMethodImpl::~ZTShipmentMethodImpl() = default;

bool ZTShipmentMethodImpl::operator==(const ZTShipmentMethodImpl& theOther) const
{
    return myId == theOther.myId && myName == theOther.myName &&
           myPickupPointsAvailable == theOther.myPickupPointsAvailable &&
           myAdditionalFieldIsRequired == theOther.myAdditionalFieldIsRequired &&
           myAdditionalFieldValidator == theOther.myAdditionalFieldValidator &&
           myAdditionalFieldKey == theOther.myAdditionalFieldKey &&
           myAdditionalFieldName == theOther.myAdditionalFieldName &&
           myRegistrationUrl == theOther.myRegistrationUrl;
}
