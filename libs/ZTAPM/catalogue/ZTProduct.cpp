#include "ZTProduct.h"

ZTProduct::ZTProduct(const QDomElement& theElement) : ZTProductAbstract(theElement)
{}

ZTProduct::~ZTProduct() = default;

QString ZTProduct::fullQualifiedName() const
{
    // The group's number stands in for its name until the shipping groups of the ordering
    // details are part of the engine.
    return name() + QStringLiteral(" (") + shippingGroupId().toString() + QLatin1Char(')');
}
