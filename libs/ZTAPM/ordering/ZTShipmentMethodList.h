#ifndef ZTSHIPMENTMETHODLIST_H
#define ZTSHIPMENTMETHODLIST_H

#include "ZTShipmentMethod.h"
#include "ztapm_export.h"

#include <QList>

class QDomElement;

// The shipment methods of the key account, in the order of the document.
class ZTAPM_EXPORT ZTShipmentMethodList : public QList<ZTShipmentMethod>
{
public:
    // Replaces the list by the valid "shipment_method" children of theElement, in document
    // order; a null element leaves it empty.
    void update(const QDomElement& theElement);
    // The first method of theId, else a default (invalid) method.
    ZTShipmentMethod value(int theId) const;
    // The first method marked as default, else a default (invalid) method.
    ZTShipmentMethod defaultShipmentMethod() const;
};

#endif // ZTSHIPMENTMETHODLIST_H
