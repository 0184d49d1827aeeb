#include "ZTPermittedShipmentMethodList.h"

#include <QDomElement>

#include <algorithm>

ZTPermittedShipmentMethodList::ZTPermittedShipmentMethodList() = default;

ZTPermittedShipmentMethodList::ZTPermittedShipmentMethodList(
    std::initializer_list<ZTPermittedShipmentMethod> theMethods)
    : QList<ZTPermittedShipmentMethod>(theMethods)
{}

ZTPermittedShipmentMethodList::ZTPermittedShipmentMethodList(const QDomElement& theElement)
{
    const QString name = QStringLiteral("permitted_shipment_method");
    for (QDomElement child = theElement.firstChildElement(name); !child.isNull();
         child = child.nextSiblingElement(name)) {
        const ZTPermittedShipmentMethod method(child);
        if (method.isValid())
            append(method);
    }
}

ZTPermittedShipmentMethodList::~ZTPermittedShipmentMethodList() = default;

bool ZTPermittedShipmentMethodList::contains(int theId) const
{
    return std::any_of(cbegin(), cend(), [theId](const ZTPermittedShipmentMethod& theMethod) {
        return theMethod.id() == theId;
    });
}
