#ifndef ZTPRODUCTREGISTRYFEEMAP_H
#define ZTPRODUCTREGISTRYFEEMAP_H

#include "ZTArticleId.h"
#include "ZTProductAbstract.h"
#include "ZTProductList.h"
#include "ZTProductRegistryFees.h"
#include "ZTTemplateExport.h"

#include <QMap>

// A fee registry with one product per key: a later element of the same key replaces the earlier
// one. Subclasses say how an element names its key.
template <typename Key>
class ZT_TEMPLATE_EXPORT ZTProductRegistryFeeMap : public ZTProductRegistryFees
{
public:
    // A walk over the products in key order.
    ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const override
    {
        for (ZTProductAbstract* product : myProducts) {
            if (product->articleId() == theId)
                return product;
        }
        return nullptr;
    }

    // Empties the registry; the products stay allocated for whoever still holds them.
    void setProductsDeprecated() override { myProducts.clear(); }

    int productCount() const { return int(myProducts.size()); }
    // Every fee product of this registry, in key order.
    ZTProductList productList() const { return ZTProductList(myProducts.values()); }

protected:
    using ZTProductRegistryFees::ZTProductRegistryFees;

    virtual Key keyOf(const QDomElement& theElement) const = 0;

    void enter(const QDomElement& theElement, ZTProductAbstract* theProduct) override
    {
        myProducts.insert(keyOf(theElement), theProduct);
    }

    ZTProductAbstract* productUnder(const Key& theKey) const { return myProducts.value(theKey); }

private:
    QMap<Key, ZTProductAbstract*> myProducts;
};

#endif // ZTPRODUCTREGISTRYFEEMAP_H
