#include "ZTProductRegistryTransferFees.h"

#include <QDomElement>

ZTProductRegistryTransferFees::ZTProductRegistryTransferFees()
    : ZTProductRegistryFeeMap(QStringLiteral("transfer"))
{}

ZTProductRegistryTransferFees::~ZTProductRegistryTransferFees() = default;

ZTProductAbstract* ZTProductRegistryTransferFees::productWithArticleID(const ZTArticleId& theId) const
{
    return myProductsById.value(theId);
}

void ZTProductRegistryTransferFees::setProductsDeprecated()
{
    ZTProductRegistryFeeMap::setProductsDeprecated();
    myProductsById.clear();
}

int ZTProductRegistryTransferFees::productCount() const
{
    return int(myProductsById.size());
}

ZTProductAbstract*
ZTProductRegistryTransferFees::transferProduct(const ZTShippingGroupId& theShippingGroupId) const
{
    return productUnder(theShippingGroupId);
}

ZTShippingGroupId ZTProductRegistryTransferFees::keyOf(const QDomElement& theElement) const
{
    return readShippingGroupId(theElement);
}

void ZTProductRegistryTransferFees::enter(const QDomElement& theElement, ZTProductAbstract* theProduct)
{
    ZTProductRegistryFeeMap::enter(theElement, theProduct);
    myProductsById.insert(theProduct->articleId(), theProduct);
}
