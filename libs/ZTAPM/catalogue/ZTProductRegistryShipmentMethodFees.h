#ifndef ZTPRODUCTREGISTRYSHIPMENTMETHODFEES_H
#define ZTPRODUCTREGISTRYSHIPMENTMETHODFEES_H

#include "ZTProductList.h"
#include "ZTProductRegistryAbstract.h"

#include <QMap>

// Shipment method fees by shipment method id. Rebuilt on every reading.
class ZTAPM_EXPORT ZTProductRegistryShipmentMethodFees : public ZTProductRegistryAbstract
{
public:
    ZTProductRegistryShipmentMethodFees();
    ~ZTProductRegistryShipmentMethodFees() override;

    ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const override;
    // Under the element's shipment_method_id; a missing one is -1, a key like any other.
    void registerProduct(const QDomElement& theElement, ZTProductAbstract* theProduct) override;
    // Empties the registry; the products stay allocated for whoever still holds them.
    void setProductsDeprecated() override;
    QList<QString> xmlKeyWords() const override;
    int productCount() const;
    // Every fee product of this registry, in key order.
    ZTProductList productList() const;

    ZTProductAbstract* shipmentMethodFeeProduct(int theShipmentMethodId) const;
    // The fee's article id, or 0 when the method costs nothing.
    int idOfShipmentMethodFeeProduct(int theShipmentMethodId) const;

private:
    QMap<int, ZTProductAbstract*> myProducts;
};

#endif // ZTPRODUCTREGISTRYSHIPMENTMETHODFEES_H
