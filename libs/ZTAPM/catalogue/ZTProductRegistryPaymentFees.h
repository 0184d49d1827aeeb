#ifndef ZTPRODUCTREGISTRYPAYMENTFEES_H
#define ZTPRODUCTREGISTRYPAYMENTFEES_H

#include "ZTPaymentId.h"
#include "ZTProductList.h"
#include "ZTProductRegistryAbstract.h"

#include <QMap>

// Payment method fees by payment id. Rebuilt on every reading.
class ZTAPM_EXPORT ZTProductRegistryPaymentFees : public ZTProductRegistryAbstract
{
public:
    ZTProductRegistryPaymentFees();
    ~ZTProductRegistryPaymentFees() override;

    ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const override;
    void registerProduct(const QDomElement& theElement, ZTProductAbstract* theProduct) override;
    // Empties the registry; the products stay allocated for whoever still holds them.
    void setProductsDeprecated() override;
    QList<QString> xmlKeyWords() const override;
    int productCount() const;
    // Every fee product of this registry, in key order.
    ZTProductList productList() const;

    ZTProductAbstract* paymentFeeProduct(const ZTPaymentId& thePaymentId) const;

private:
    QMap<ZTPaymentId, ZTProductAbstract*> myProducts;
};

#endif // ZTPRODUCTREGISTRYPAYMENTFEES_H
