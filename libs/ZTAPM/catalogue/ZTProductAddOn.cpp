#include "ZTProductAddOn.h"

#include <QDomElement>

ZTProductAddOn::ZTProductAddOn(const QDomElement& theElement)
    : ZTProductAbstract(theElement)
    , myPriceClass(ZTPriceClass::create(theElement.attribute(QStringLiteral("price_class"))))
{}

ZTProductAddOn::~ZTProductAddOn() = default;

ZTPriceClass ZTProductAddOn::priceClass() const
{
    return myPriceClass;
}
