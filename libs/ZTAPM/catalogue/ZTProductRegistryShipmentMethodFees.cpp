#include "ZTProductRegistryShipmentMethodFees.h"

#include "ZTXMLParser.h"

#include <QDomElement>

ZTProductRegistryShipmentMethodFees::ZTProductRegistryShipmentMethodFees()
    : ZTProductRegistryFeeMap(QStringLiteral("shipment_method_fee"))
{}

ZTProductRegistryShipmentMethodFees::~ZTProductRegistryShipmentMethodFees() = default;

ZTProductAbstract*
ZTProductRegistryShipmentMethodFees::shipmentMethodFeeProduct(int theShipmentMethodId) const
{
    return productUnder(theShipmentMethodId);
}

int ZTProductRegistryShipmentMethodFees::idOfShipmentMethodFeeProduct(int theShipmentMethodId) const
{
    const ZTProductAbstract* product = shipmentMethodFeeProduct(theShipmentMethodId);
    return product ? product->articleId().id() : 0;
}

int ZTProductRegistryShipmentMethodFees::keyOf(const QDomElement& theElement) const
{
    return ZTXMLParser::intAttribute(theElement, QStringLiteral("shipment_method_id"), -1);
}
