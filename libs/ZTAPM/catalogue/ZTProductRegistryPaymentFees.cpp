#include "ZTProductRegistryPaymentFees.h"

#include "ZTArticleId.h"
#include "ZTProductAbstract.h"

#include <QDomElement>

ZTProductRegistryPaymentFees::ZTProductRegistryPaymentFees() = default;
ZTProductRegistryPaymentFees::~ZTProductRegistryPaymentFees() = default;

ZTProductAbstract* ZTProductRegistryPaymentFees::productWithArticleID(const ZTArticleId& theId) const
{
    for (ZTProductAbstract* product : myProducts) {
        if (product->articleId() == theId)
            return product;
    }
    return nullptr;
}

void ZTProductRegistryPaymentFees::registerProduct(const QDomElement& theElement,
                                                   ZTProductAbstract* theProduct)
{
    // A fee that a later entry or reading replaces may still be on a bill.
    keepAlive({theProduct});
    myProducts.insert(ZTPaymentId(theElement.attribute(QStringLiteral("pay_method_id"))), theProduct);
}

void ZTProductRegistryPaymentFees::setProductsDeprecated()
{
    myProducts.clear();
}

QList<QString> ZTProductRegistryPaymentFees::xmlKeyWords() const
{
    return {QStringLiteral("pay_method_fee")};
}

ZTProductAbstract* ZTProductRegistryPaymentFees::paymentFeeProduct(const ZTPaymentId& thePaymentId) const
{
    return myProducts.value(thePaymentId);
}

int ZTProductRegistryPaymentFees::productCount() const
{
    return int(myProducts.size());
}

ZTProductList ZTProductRegistryPaymentFees::productList() const
{
    return ZTProductList(myProducts.values());
}
