#include "ZTPasswordPolicy.h"

#include "ZTXMLParser.h"

#include <QDomElement>

ZTPasswordPolicy::ZTPasswordPolicy() = default;

ZTPasswordPolicy::ZTPasswordPolicy(const QDomElement& theElement)
{
    myMinPasswordLength =
        ZTXMLParser::intAttribute(theElement, QStringLiteral("min_characters"), myMinPasswordLength);
    myPointsForYellow =
        ZTXMLParser::intAttribute(theElement, QStringLiteral("yellow_word"), myPointsForYellow);
    myPointsForGreen = ZTXMLParser::intAttribute(theElement, QStringLiteral("green_word"), myPointsForGreen);
}

ZTPasswordPolicy::~ZTPasswordPolicy() = default;

bool ZTPasswordPolicy::operator==(const ZTPasswordPolicy& theOther) const
{
    return myMinPasswordLength == theOther.myMinPasswordLength &&
           myPointsForYellow == theOther.myPointsForYellow && myPointsForGreen == theOther.myPointsForGreen;
}
