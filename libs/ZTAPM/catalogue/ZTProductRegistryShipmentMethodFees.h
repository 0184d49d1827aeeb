#ifndef ZTPRODUCTREGISTRYSHIPMENTMETHODFEES_H
#define ZTPRODUCTREGISTRYSHIPMENTMETHODFEES_H

#include "ZTProductRegistryFeeMap.h"

// Shipment method fees by shipment method id. Rebuilt on every reading.
class ZTAPM_EXPORT ZTProductRegistryShipmentMethodFees : public ZTProductRegistryFeeMap<int>
{
public:
    ZTProductRegistryShipmentMethodFees();
    ~ZTProductRegistryShipmentMethodFees() override;

    ZTProductAbstract* shipmentMethodFeeProduct(int theShipmentMethodId) const;
    // The fee's article id, or 0 when the method costs nothing.
    int idOfShipmentMethodFeeProduct(int theShipmentMethodId) const;

protected:
    // The element's shipment_method_id; a missing one is -1, a key like any other.
    int keyOf(const QDomElement& theElement) const override;
};

#endif // ZTPRODUCTREGISTRYSHIPMENTMETHODFEES_H
