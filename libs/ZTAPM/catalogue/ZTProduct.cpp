#include "ZTProduct.h"

#include "ZTAPMShippingGroupManager.h"

ZTProduct::ZTProduct(const QDomElement& theElement) : ZTProductAbstract(theElement)
{}

ZTProduct::~ZTProduct() = default;

QString ZTProduct::fullQualifiedName() const
{
    return name() + QStringLiteral(" (") +
           ZTSingleton<ZTAPMShippingGroupManager>::instance()->shippingGroupName(shippingGroupId()) +
           QLatin1Char(')');
}
