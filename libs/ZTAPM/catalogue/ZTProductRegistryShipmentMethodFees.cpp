#include "ZTProductRegistryShipmentMethodFees.h"

#include "ZTArticleId.h"
#include "ZTProductAbstract.h"
#include "ZTXMLParser.h"

#include <QDomElement>

ZTProductRegistryShipmentMethodFees::ZTProductRegistryShipmentMethodFees() = default;
ZTProductRegistryShipmentMethodFees::~ZTProductRegistryShipmentMethodFees() = default;

ZTProductAbstract* ZTProductRegistryShipmentMethodFees::productWithArticleID(const ZTArticleId& theId) const
{
    for (ZTProductAbstract* product : myProducts) {
        if (product->articleId() == theId)
            return product;
    }
    return nullptr;
}

void ZTProductRegistryShipmentMethodFees::registerProduct(const QDomElement& theElement,
                                                          ZTProductAbstract* theProduct)
{
    // A fee that a later entry or reading replaces may still be on a bill.
    keepAlive({theProduct});
    myProducts.insert(ZTXMLParser::intAttribute(theElement, QStringLiteral("shipment_method_id"), -1),
                      theProduct);
}

void ZTProductRegistryShipmentMethodFees::setProductsDeprecated()
{
    myProducts.clear();
}

QList<QString> ZTProductRegistryShipmentMethodFees::xmlKeyWords() const
{
    return {QStringLiteral("shipment_method_fee")};
}

ZTProductAbstract*
ZTProductRegistryShipmentMethodFees::shipmentMethodFeeProduct(int theShipmentMethodId) const
{
    return myProducts.value(theShipmentMethodId);
}

int ZTProductRegistryShipmentMethodFees::idOfShipmentMethodFeeProduct(int theShipmentMethodId) const
{
    const ZTProductAbstract* product = shipmentMethodFeeProduct(theShipmentMethodId);
    return product ? product->articleId().id() : 0;
}

int ZTProductRegistryShipmentMethodFees::productCount() const
{
    return int(myProducts.size());
}

ZTProductList ZTProductRegistryShipmentMethodFees::productList() const
{
    return ZTProductList(myProducts.values());
}
