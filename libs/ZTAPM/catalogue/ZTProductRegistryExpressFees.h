#ifndef ZTPRODUCTREGISTRYEXPRESSFEES_H
#define ZTPRODUCTREGISTRYEXPRESSFEES_H

#include "ZTExpressType.h"
#include "ZTExpressTypeList.h"
#include "ZTProductList.h"
#include "ZTProductRegistryFees.h"
#include "ZTShippingGroupId.h"

#include <QMap>

class ZTAPMPriceKey;
class ZTExpressKey;

// Express fees by shipping group and express type. Rebuilt on every reading.
class ZTAPM_EXPORT ZTProductRegistryExpressFees : public ZTProductRegistryFees
{
public:
    using ExpressTypeMap = QMap<ZTExpressType, ZTProductAbstract*>;

    ZTProductRegistryExpressFees();
    ~ZTProductRegistryExpressFees() override;

    ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const override;
    // Empties the registry; the products stay allocated for whoever still holds them.
    void setProductsDeprecated() override;
    int productCount() const;
    // Every fee product of this registry, in key order.
    ZTProductList productList() const;

    ExpressTypeMap* expressTypeMap(const ZTShippingGroupId& theShippingGroupId) const;
    ExpressTypeMap* safeExpressTypeMap(const ZTShippingGroupId& theShippingGroupId);
    ZTProductAbstract* expressFeeProduct(const ZTExpressKey& theKey) const;
    // In order of express type.
    QList<const ZTProductAbstract*> expressFeeProducts(const ZTShippingGroupId& theShippingGroupId) const;
    bool expressFeeProductsExist() const;
    bool hasAnyExpressFeeProduct(const ZTShippingGroupId& theShippingGroupId) const;
    // Standard shipping when the id is no express fee.
    ZTExpressType expressType(const ZTArticleId& theId) const;
    // The express types of the group whose fee under the key is above zero.
    ZTExpressTypeList findExpressTypes(const ZTShippingGroupId& theShippingGroupId,
                                       const ZTAPMPriceKey& thePriceKey) const;

protected:
    // Under the element's group and express type, if that type is not none; otherwise the
    // product stays unknown.
    void enter(const QDomElement& theElement, ZTProductAbstract* theProduct) override;

private:
    QMap<ZTShippingGroupId, ExpressTypeMap*> myProducts;
};

#endif // ZTPRODUCTREGISTRYEXPRESSFEES_H
