#include "ZTProductRegistryTransferFees.h"

#include "ZTProductAbstract.h"

#include <QDomElement>

ZTProductRegistryTransferFees::ZTProductRegistryTransferFees() = default;
ZTProductRegistryTransferFees::~ZTProductRegistryTransferFees() = default;

ZTProductAbstract* ZTProductRegistryTransferFees::productWithArticleID(const ZTArticleId& theId) const
{
    return myProductsById.value(theId);
}

void ZTProductRegistryTransferFees::registerProduct(const QDomElement& theElement,
                                                    ZTProductAbstract* theProduct)
{
    // A fee that a later entry or reading replaces may still be on a bill.
    keepAlive({theProduct});
    myProducts.insert(readShippingGroupId(theElement), theProduct);
    myProductsById.insert(theProduct->articleId(), theProduct);
}

void ZTProductRegistryTransferFees::setProductsDeprecated()
{
    myProducts.clear();
    myProductsById.clear();
}

QList<QString> ZTProductRegistryTransferFees::xmlKeyWords() const
{
    return {QStringLiteral("transfer")};
}

ZTProductAbstract*
ZTProductRegistryTransferFees::transferProduct(const ZTShippingGroupId& theShippingGroupId) const
{
    return myProducts.value(theShippingGroupId);
}

int ZTProductRegistryTransferFees::productCount() const
{
    return int(myProductsById.size());
}

ZTProductList ZTProductRegistryTransferFees::productList() const
{
    return ZTProductList(myProducts.values());
}
