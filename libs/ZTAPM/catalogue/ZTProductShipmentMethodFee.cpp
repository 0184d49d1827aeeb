#include "ZTProductShipmentMethodFee.h"

#include "ZTXMLParser.h"

#include <QDomElement>

ZTProductShipmentMethodFee::ZTProductShipmentMethodFee(const QDomElement& theElement)
    : ZTProductAbstract(theElement)
    , myShippingMethodId(ZTXMLParser::intAttribute(theElement, QStringLiteral("shipment_method_id"), -1))
{}

ZTProductShipmentMethodFee::~ZTProductShipmentMethodFee() = default;

int ZTProductShipmentMethodFee::shippingMethodId() const
{
    return myShippingMethodId;
}
