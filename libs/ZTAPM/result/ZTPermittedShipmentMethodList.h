#ifndef ZTPERMITTEDSHIPMENTMETHODLIST_H
#define ZTPERMITTEDSHIPMENTMETHODLIST_H

#include "ZTPermittedShipmentMethod.h"
#include "ztapm_export.h"

#include <QList>

// The shipment methods that the server permits for one pay method, in document order.
class ZTAPM_EXPORT ZTPermittedShipmentMethodList : public QList<ZTPermittedShipmentMethod>
{
public:
    ZTPermittedShipmentMethodList();
    ZTPermittedShipmentMethodList(std::initializer_list<ZTPermittedShipmentMethod> theMethods);
    // The "permitted_shipment_method" children of theElement, a "permitted_shipment_methods";
    // one without a valid "id" is dropped.
    explicit ZTPermittedShipmentMethodList(const QDomElement& theElement);
    virtual ~ZTPermittedShipmentMethodList();

    bool contains(int theId) const;
};

#endif // ZTPERMITTEDSHIPMENTMETHODLIST_H
