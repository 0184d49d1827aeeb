#include "ZTShipmentMethodList.h"

#include <QDomElement>

void ZTShipmentMethodList::update(const QDomElement& theElement)
{
    clear();
    const QString tag = QStringLiteral("shipment_method");
    for (QDomElement child = theElement.firstChildElement(tag); !child.isNull();
         child = child.nextSiblingElement(tag)) {
        ZTShipmentMethod method(child);
        if (method.isValid())
            append(method);
    }
}

ZTShipmentMethod ZTShipmentMethodList::value(int theId) const
{
    for (const ZTShipmentMethod& method : *this) {
        if (method.id() == theId)
            return method;
    }
    return ZTShipmentMethod();
}

ZTShipmentMethod ZTShipmentMethodList::defaultShipmentMethod() const
{
    for (const ZTShipmentMethod& method : *this) {
        if (method.isDefault())
            return method;
    }
    return value(ZTShipmentMethod::defaultId);
}
