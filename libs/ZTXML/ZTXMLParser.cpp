#include "ZTXMLParser.h"

#include <QDomElement>
#include <QDomNamedNodeMap>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n') ||
           c == QLatin1Char('\r');
}

// One lookup instead of hasAttribute() and attribute(). QDomElement::attributeNode is not const
// although it only reads, hence the copy of the handle.
QDomAttr attributeNode(QDomElement theElement, const QString& theName)
{
    return theElement.attributeNode(theName);
}

int intOrDefault(QStringView theText, int theDefault)
{
    bool ok = false;
    const int value = ZTXMLParser::fastDecodeInt(theText, &ok);
    return ok ? value : theDefault;
}

// A decimal of digits with at most one separator, the point or a comma, and at most 15 digits:
// what documents hold, read without the cost of the general conversion. The value is the same as
// that conversion's: the digits form an exact integer under 2^53 and the power of ten is exact
// up to 10^22, so their quotient is rounded once, to the nearest double. Anything else is left
// to the general conversion.
std::optional<double> plainDecimal(QStringView theText)
{
    const bool negative = theText.startsWith(QLatin1Char('-'));
    if (negative)
        theText = theText.mid(1);
    qint64 digits = 0;
    int count = 0;
    int fraction = -1; // digits after the separator, or -1 without one
    for (const QChar c : theText) {
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9')) {
            if (++count > 15)
                return std::nullopt;
            digits = digits * 10 + (c.unicode() - '0');
            if (fraction >= 0)
                ++fraction;
        } else if ((c == QLatin1Char('.') || c == QLatin1Char(',')) && fraction < 0 && count > 0) {
            fraction = 0;
        } else {
            return std::nullopt;
        }
    }
    if (count == 0 || fraction == 0)
        return std::nullopt;
    static constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const double value = double(digits) / powers[std::max(fraction, 0)];
    return negative ? -value : value;
}

} // namespace

ZTXMLParser::ZTXMLParser() = default;

QString ZTXMLParser::attribute(const QDomElement& theElement, const QString& theName,
                               const QString& theDefault, bool theEmptyIsMissing)
{
    const QDomAttr node = attributeNode(theElement, theName);
    if (node.isNull())
        return theDefault;
    const QString value = node.value();
    if (theEmptyIsMissing && QStringView(value).trimmed().isEmpty())
        return theDefault;
    return value;
}

int ZTXMLParser::intAttribute(const QDomElement& theElement, const QString& theName, int theDefault)
{
    const QDomAttr node = attributeNode(theElement, theName);
    return node.isNull() ? theDefault : intOrDefault(node.value(), theDefault);
}

int ZTXMLParser::intAttribute(const QDomNamedNodeMap& theAttributes, const QString& theName, int theDefault)
{
    const QDomNode node = theAttributes.namedItem(theName);
    return node.isNull() ? theDefault : intOrDefault(node.nodeValue(), theDefault);
}

bool ZTXMLParser::boolAttribute(const QDomElement& theElement, const QString& theName, bool theDefault)
{
    const QDomAttr node = attributeNode(theElement, theName);
    return node.isNull() ? theDefault : decodeBool(node.value(), theDefault);
}

QDateTime ZTXMLParser::dateTimeAttribute(const QDomElement& theElement, const QString& theName,
                                         Qt::DateFormat theFormat, const QDateTime& theDefault)
{
    const QDomAttr node = attributeNode(theElement, theName);
    if (node.isNull())
        return theDefault;
    const QDateTime result = QDateTime::fromString(node.value().trimmed(), theFormat);
    return result.isValid() ? result : theDefault;
}

ZTDistance ZTXMLParser::readDistance(const QDomElement& theElement, const QString& theName, double theDefault,
                                     const ZTDistanceUnit& theUnit)
{
    const QDomAttr node = attributeNode(theElement, theName);
    if (node.isNull())
        return ZTDistance(theDefault, theUnit);
    QString text = node.value().trimmed();
    std::optional<double> value = plainDecimal(text);
    if (!value) {
        // Documents written on German systems sometimes carry a decimal comma.
        if (!text.contains(QLatin1Char('.')) && text.count(QLatin1Char(',')) == 1)
            text.replace(QLatin1Char(','), QLatin1Char('.'));
        bool ok = false;
        value = text.toDouble(&ok);
        if (!ok)
            return ZTDistance(theDefault, theUnit);
    }
    const ZTDistance distance(*value, theUnit);
    // Also refuses infinities and what overflows on the way into pixels.
    if (!(std::abs(distance.pixels()) <= ZTDistance::maxPixels))
        return ZTDistance(theDefault, theUnit);
    return distance;
}

QString ZTXMLParser::text(const QDomNode& theNode, const QString& theChildName, const QString& theDefault)
{
    if (theChildName.isEmpty()) {
        const QDomElement self = theNode.toElement();
        return self.isNull() ? theDefault : self.text();
    }
    const QDomElement child = theNode.firstChildElement(theChildName);
    return child.isNull() ? theDefault : child.text();
}

int ZTXMLParser::intText(const QDomNode& theNode, const QString& theChildName, int theDefault)
{
    const QDomElement child =
        theChildName.isEmpty() ? theNode.toElement() : theNode.firstChildElement(theChildName);
    return child.isNull() ? theDefault : intOrDefault(child.text(), theDefault);
}

bool ZTXMLParser::boolText(const QDomNode& theNode, const QString& theChildName, bool theDefault)
{
    const QDomElement child =
        theChildName.isEmpty() ? theNode.toElement() : theNode.firstChildElement(theChildName);
    return child.isNull() ? theDefault : decodeBool(child.text(), theDefault);
}

int ZTXMLParser::intValue(const QDomElement& theElement, int theDefault)
{
    return theElement.isNull() ? theDefault : intOrDefault(theElement.text(), theDefault);
}

int ZTXMLParser::fastDecodeInt(const QString& theText, bool* ok)
{
    return fastDecodeInt(QStringView(theText), ok);
}

int ZTXMLParser::fastDecodeInt(QStringView theText, bool* ok)
{
    const qsizetype size = theText.size();
    qsizetype i = 0;
    while (i < size && isBlank(theText[i]))
        ++i;
    bool negative = false;
    if (i < size && (theText[i] == QLatin1Char('-') || theText[i] == QLatin1Char('+'))) {
        negative = theText[i] == QLatin1Char('-');
        ++i;
    }
    // The magnitude may reach 2^31 for the most negative int; anything beyond fails at once,
    // so the 64-bit accumulator never overflows.
    const qint64 limit =
        negative ? qint64(std::numeric_limits<int>::max()) + 1 : std::numeric_limits<int>::max();
    qint64 magnitude = 0;
    const qsizetype firstDigit = i;
    for (; i < size; ++i) {
        const char16_t c = theText[i].unicode();
        if (c < u'0' || c > u'9')
            break;
        magnitude = magnitude * 10 + (c - u'0');
        if (magnitude > limit) {
            if (ok)
                *ok = false;
            return 0;
        }
    }
    const bool hadDigits = i > firstDigit;
    while (i < size && isBlank(theText[i]))
        ++i;
    if (!hadDigits || i != size) {
        if (ok)
            *ok = false;
        return 0;
    }
    if (ok)
        *ok = true;
    return int(negative ? -magnitude : magnitude);
}

bool ZTXMLParser::decodeBool(QStringView theText, bool theDefault, bool* ok)
{
    const QStringView text = theText.trimmed();
    if (ok)
        *ok = true;
    if (text.compare(u"true", Qt::CaseInsensitive) == 0 || text == u"1" ||
        text.compare(u"yes", Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(u"false", Qt::CaseInsensitive) == 0 || text == u"0" ||
        text.compare(u"no", Qt::CaseInsensitive) == 0)
        return false;
    if (ok)
        *ok = false;
    return theDefault;
}
