#include "ZTMoney.h"

#include "ZTCurrencyConfig.h"
#include "ZTXMLParser.h"

#include <QDataStream>
#include <QDebug>
#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QJsonObject>
#include <QJsonValue>

namespace {
const QString DEFAULT_PRICE_ID_KEY = QStringLiteral("price");

// Wraps like the hardware: sums beyond 32 bits are the caller's business, not undefined behaviour.
qint32 wrapped(qint64 theValue)
{
    return qint32(quint32(quint64(theValue)));
}
} // namespace

ZTMoney::ZTMoney(const QJsonObject& theObject) : myValue(theObject.value(DEFAULT_PRICE_ID_KEY).toInt(0))
{}

ZTMoney ZTMoney::fromXmlTag(const QDomElement& theElement, const QString& theTag, int theDefault)
{
    return ZTXMLParser::intText(theElement, theTag, theDefault);
}

ZTMoney ZTMoney::fromXmlAttribute(const QDomElement& theElement, const QString& theName, int theDefault)
{
    return ZTXMLParser::intAttribute(theElement, theName, theDefault);
}

ZTMoney ZTMoney::fromXmlAttribute(const QDomElement& theElement, int theDefault)
{
    return fromXmlAttribute(theElement, DEFAULT_PRICE_ID_KEY, theDefault);
}

ZTMoney ZTMoney::fromXmlAttribute(const QDomNamedNodeMap& theAttributes, const QString& theName,
                                  int theDefault)
{
    return ZTXMLParser::intAttribute(theAttributes, theName, theDefault);
}

ZTMoney ZTMoney::fromXmlAttribute(const QDomNamedNodeMap& theAttributes, int theDefault)
{
    return fromXmlAttribute(theAttributes, DEFAULT_PRICE_ID_KEY, theDefault);
}

void ZTMoney::toXmlAttribute(QDomElement& theElement, const QString& theName) const
{
    theElement.setAttribute(theName, myValue);
}

void ZTMoney::toXmlAttribute(QDomElement& theElement) const
{
    toXmlAttribute(theElement, DEFAULT_PRICE_ID_KEY);
}

void ZTMoney::toJSON(QJsonObject& theObject) const
{
    theObject.insert(DEFAULT_PRICE_ID_KEY, myValue);
}

QString ZTMoney::fullText(bool theWithSymbol, bool theHtml, bool theSecondary) const
{
    return ZTSingleton<ZTCurrencyConfig>::instance()->fullText(myValue, theWithSymbol, theHtml, theSecondary);
}

ZTMoney& ZTMoney::operator+=(const ZTMoney& theOther)
{
    myValue = wrapped(qint64(myValue) + theOther.myValue);
    return *this;
}

ZTMoney& ZTMoney::operator-=(const ZTMoney& theOther)
{
    myValue = wrapped(qint64(myValue) - theOther.myValue);
    return *this;
}

ZTMoney& ZTMoney::operator*=(int theFactor)
{
    myValue = wrapped(qint64(myValue) * theFactor);
    return *this;
}

QDataStream& operator<<(QDataStream& theStream, const ZTMoney& theMoney)
{
    return theStream << theMoney.toString();
}

QDebug operator<<(QDebug theDebug, const ZTMoney& theMoney)
{
    QDebugStateSaver saver(theDebug);
    theDebug.noquote() << theMoney.toString();
    return theDebug;
}
