#include "ZTPermittedPayMethod.h"

#include "ZTXMLParser.h"

#include <QDomElement>

ZTPermittedPayMethod::ZTPermittedPayMethod() = default;

ZTPermittedPayMethod::ZTPermittedPayMethod(const QDomElement& theElement)
    : myType(ZTXMLParser::intAttribute(theElement, QStringLiteral("id"), ZTPaymentId::invalidId))
    , myAvailableShipmentMethods(theElement.firstChildElement(QStringLiteral("permitted_shipment_methods")))
{}

ZTPermittedPayMethod::ZTPermittedPayMethod(const ZTPaymentId& theType,
                                           const ZTPermittedShipmentMethodList& theShipmentMethods)
    : myType(theType), myAvailableShipmentMethods(theShipmentMethods)
{}

ZTPermittedPayMethod::~ZTPermittedPayMethod() = default;

bool ZTPermittedPayMethod::operator==(const ZTPermittedPayMethod& theOther) const
{
    return myType == theOther.myType && myAvailableShipmentMethods == theOther.myAvailableShipmentMethods;
}
