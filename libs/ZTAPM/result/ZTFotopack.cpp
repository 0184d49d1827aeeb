#include "ZTFotopack.h"

#include "ZTAPMObjects.h"
#include "ZTXMLParser.h"

#include <QDomElement>
#include <QSize>

ZTFotopack::ZTFotopack() = default;

ZTFotopack::ZTFotopack(const QDomElement& theElement)
{
    if (theElement.isNull())
        return;
    myArticleId = ZTArticleId::fromArtIdAttribute(theElement);
    myResidualAmount = ZTXMLParser::intAttribute(theElement, QStringLiteral("residual_amount"), 0);
    myInitialAmount = ZTXMLParser::intAttribute(theElement, QStringLiteral("initial_amount"), 0);
    static const QDateTime longExpired =
        QDateTime::fromString(QStringLiteral("1970-05-26T09:30:00"), Qt::ISODate);
    myValidUntil =
        ZTXMLParser::dateTimeAttribute(theElement, QStringLiteral("valid_until"), Qt::ISODate, longExpired);
}

bool ZTFotopack::isValid() const
{
    return ZTAPMObjects::instance()->articleDefinition(myArticleId).isValid() &&
           myValidUntil > QDateTime::currentDateTime();
}

bool ZTFotopack::operator==(const ZTFotopack& theOther) const
{
    return myArticleId == theOther.myArticleId && myInitialAmount == theOther.myInitialAmount &&
           myResidualAmount == theOther.myInitialAmount && myValidUntil == theOther.myValidUntil;
}

bool ZTFotopack::operator<(const ZTFotopack& theOther) const
{
    const ZTAPMArticleDefinition mine = ZTAPMObjects::instance()->articleDefinition(myArticleId);
    const ZTAPMArticleDefinition others = ZTAPMObjects::instance()->articleDefinition(theOther.myArticleId);
    if (mine.shippingGroupId() != others.shippingGroupId())
        return mine.shippingGroupId() < others.shippingGroupId();
    if (myArticleId == theOther.myArticleId) {
        if (myValidUntil == theOther.myValidUntil)
            return myResidualAmount < theOther.myResidualAmount;
        // By day: two moments of the same day stand in neither order.
        return myValidUntil.date() < theOther.myValidUntil.date();
    }
    const QSize mySize = mine.printSizeInMM();
    const QSize otherSize = others.printSizeInMM();
    if (mySize == otherSize)
        return myArticleId < theOther.myArticleId;
    if (mySize.width() != otherSize.width())
        return mySize.width() < otherSize.width();
    return false;
}
