#include "ZTProductAddOnConfig.h"

#include "ZTPriceClass.h"
#include "ZTXMLParser.h"

#include <QDomElement>

ZTProductAddOnConfig::ZTProductAddOnConfig() = default;

ZTProductAddOnConfig::ZTProductAddOnConfig(const QDomElement& theElement)
    : myExpression(theElement.text())
    , myGroupDefault(ZTXMLParser::boolAttribute(theElement, QStringLiteral("default"), false))
{}

ZTProductAddOnConfig::ZTProductAddOnConfig(const ZTProductAddOnConfig& other) = default;
ZTProductAddOnConfig& ZTProductAddOnConfig::operator=(const ZTProductAddOnConfig& other) = default;
ZTProductAddOnConfig::~ZTProductAddOnConfig() = default;

bool ZTProductAddOnConfig::isValid() const
{
    return myExpression.isValid() && !myExpression.pattern().isEmpty();
}

bool ZTProductAddOnConfig::isGroupDefault() const
{
    return myGroupDefault;
}

bool ZTProductAddOnConfig::matches(const ZTPriceClass& thePriceClass) const
{
    return myExpression.match(thePriceClass.toString()).hasMatch();
}
