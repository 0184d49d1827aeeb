#ifndef ZTPERMITTEDSHIPMENTMETHOD_H
#define ZTPERMITTEDSHIPMENTMETHOD_H

#include "ztapm_export.h"

class QDomElement;

// A shipment method that the server permits for a pay method of one order, with whether express
// shipping is possible with it.
class ZTAPM_EXPORT ZTPermittedShipmentMethod
{
public:
    // Id -1, not expressable: not valid.
    ZTPermittedShipmentMethod();
    // A "permitted_shipment_method" with "id" and "express_available".
    explicit ZTPermittedShipmentMethod(const QDomElement& theElement);
    ZTPermittedShipmentMethod(int theId, bool theExpressable);
    virtual ~ZTPermittedShipmentMethod();

    bool operator==(const ZTPermittedShipmentMethod& theOther) const;
    bool operator!=(const ZTPermittedShipmentMethod& theOther) const { return !(*this == theOther); }

    // The id of a ZTShipmentMethod of the ordering details.
    int id() const { return myId; }
    bool isValid() const { return myId != -1; }
    bool isExpressable() const { return myExpressable; }

private:
    int myId = -1;
    bool myExpressable = false;
};

#endif // ZTPERMITTEDSHIPMENTMETHOD_H
