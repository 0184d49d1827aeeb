#ifndef ZTPERMITTEDPAYMETHOD_H
#define ZTPERMITTEDPAYMETHOD_H

#include "ZTPaymentId.h"
#include "ZTPermittedShipmentMethodList.h"
#include "ztapm_export.h"

class QDomElement;

// A pay method that the server permits for one order, with the shipment methods that go with it.
class ZTAPM_EXPORT ZTPermittedPayMethod
{
public:
    // The invalid id and no shipment methods.
    ZTPermittedPayMethod();
    // A "permitted_pay_method" with "id" and the child "permitted_shipment_methods".
    explicit ZTPermittedPayMethod(const QDomElement& theElement);
    ZTPermittedPayMethod(const ZTPaymentId& theType, const ZTPermittedShipmentMethodList& theShipmentMethods);
    virtual ~ZTPermittedPayMethod();

    // The id and the shipment methods element by element.
    bool operator==(const ZTPermittedPayMethod& theOther) const;
    bool operator!=(const ZTPermittedPayMethod& theOther) const { return !(*this == theOther); }

    ZTPaymentId type() const { return myType; }
    ZTPermittedShipmentMethodList availableShipmentMethods() const { return myAvailableShipmentMethods; }
    bool isValid() const { return myType.isValid(); }

private:
    ZTPaymentId myType;
    ZTPermittedShipmentMethodList myAvailableShipmentMethods;
};

#endif // ZTPERMITTEDPAYMETHOD_H
