#ifndef ZTPRODUCTREGISTRYTRANSFERFEES_H
#define ZTPRODUCTREGISTRYTRANSFERFEES_H

#include "ZTArticleId.h"
#include "ZTProductList.h"
#include "ZTProductRegistryAbstract.h"
#include "ZTShippingGroupId.h"

#include <QHash>
#include <QMap>

// The shipping costs of each shipping group. Rebuilt on every reading.
class ZTAPM_EXPORT ZTProductRegistryTransferFees : public ZTProductRegistryAbstract
{
public:
    ZTProductRegistryTransferFees();
    ~ZTProductRegistryTransferFees() override;

    ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const override;
    // A later transfer of the same group replaces the earlier one there, but both stay
    // findable by id.
    void registerProduct(const QDomElement& theElement, ZTProductAbstract* theProduct) override;
    // Empties the registry; the products stay allocated for whoever still holds them.
    void setProductsDeprecated() override;
    QList<QString> xmlKeyWords() const override;
    // Every transfer read, also those that a later one of the same group replaced.
    int productCount() const;
    // Every fee product of this registry, in key order.
    ZTProductList productList() const;

    ZTProductAbstract* transferProduct(const ZTShippingGroupId& theShippingGroupId) const;

private:
    QMap<ZTShippingGroupId, ZTProductAbstract*> myProducts;
    QHash<ZTArticleId, ZTProductAbstract*> myProductsById;
};

#endif // ZTPRODUCTREGISTRYTRANSFERFEES_H
