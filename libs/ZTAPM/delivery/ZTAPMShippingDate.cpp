#include "ZTAPMShippingDate.h"

#include "ZTXMLParser.h"

#include <QDateTime>
#include <QDomElement>
#include <QLocale>

ZTAPMShippingDate::ZTAPMShippingDate() = default;

ZTAPMShippingDate::ZTAPMShippingDate(const QDomElement& theElement)
{
    if (theElement.tagName() != QLatin1String("shipping_time"))
        return;
    const QDateTime minDate =
        ZTXMLParser::dateTimeAttribute(theElement, QStringLiteral("min"), Qt::ISODate, QDateTime());
    const QDateTime maxDate =
        ZTXMLParser::dateTimeAttribute(theElement, QStringLiteral("max"), Qt::ISODate, QDateTime());
    if (!minDate.isValid())
        return;
    myDateRange = ZTDateRange(minDate.date(), maxDate.isValid() ? maxDate.date() : minDate.date());
}

ZTAPMShippingDate::ZTAPMShippingDate(const ZTAPMShippingDate& other) = default;
ZTAPMShippingDate& ZTAPMShippingDate::operator=(const ZTAPMShippingDate& other) = default;
ZTAPMShippingDate::~ZTAPMShippingDate() = default;

bool ZTAPMShippingDate::operator==(const ZTAPMShippingDate& other) const
{
    return myDateRange == other.myDateRange;
}

QDate ZTAPMShippingDate::minDate() const
{
    return myDateRange.first();
}

QDate ZTAPMShippingDate::maxDate() const
{
    return myDateRange.last();
}

bool ZTAPMShippingDate::isValid() const
{
    return minDate().isValid() && maxDate().isValid();
}

bool ZTAPMShippingDate::varies() const
{
    return minDate() < maxDate();
}

QString ZTAPMShippingDate::createShippingDateHint(bool theWithLineBreak) const
{
    if (!isValid())
        return QString();
    const QLocale locale;
    const QString first = locale.toString(minDate(), QLocale::LongFormat);
    const QString dates =
        varies() ? tr("%1 - %2").arg(first, locale.toString(maxDate(), QLocale::LongFormat)) : first;
    return QStringLiteral("%1%2 <nobr><b>%3</b></nobr>")
        .arg(tr("Voraussichtliches Lieferdatum:"),
             theWithLineBreak ? QStringLiteral("<br>") : QStringLiteral(" "), dates);
}
