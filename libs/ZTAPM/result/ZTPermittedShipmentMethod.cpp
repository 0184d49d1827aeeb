#include "ZTPermittedShipmentMethod.h"

#include "ZTXMLParser.h"

#include <QDomElement>

ZTPermittedShipmentMethod::ZTPermittedShipmentMethod() = default;

ZTPermittedShipmentMethod::ZTPermittedShipmentMethod(const QDomElement& theElement)
    : myId(ZTXMLParser::intAttribute(theElement, QStringLiteral("id"), -1))
    , myExpressable(ZTXMLParser::boolAttribute(theElement, QStringLiteral("express_available"), false))
{}

ZTPermittedShipmentMethod::ZTPermittedShipmentMethod(int theId, bool theExpressable)
    : myId(theId), myExpressable(theExpressable)
{}

ZTPermittedShipmentMethod::~ZTPermittedShipmentMethod() = default;

bool ZTPermittedShipmentMethod::operator==(const ZTPermittedShipmentMethod& theOther) const
{
    return myId == theOther.myId && myExpressable == theOther.myExpressable;
}
