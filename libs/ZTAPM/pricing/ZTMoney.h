#ifndef ZTMONEY_H
#define ZTMONEY_H

#include "ztapm_export.h"

#include <QString>
#include <QtGlobal>

class QDataStream;
class QDebug;
class QDomElement;
class QDomNamedNodeMap;
class QJsonObject;

// An amount in hundredths of the main currency unit. Integer arithmetic only, no rounding: a
// value read from a document stays that exact integer through every sum and product.
// Two values are sentinels: the default 2147483647 (no price yet) and -1 (cannot be priced).
// Arithmetic does not test them, so callers check isValid() before they multiply.
class ZTAPM_EXPORT ZTMoney
{
public:
    static constexpr qint32 notSet = 2147483647;
    static constexpr qint32 noPrice = -1;

    ZTMoney() = default;
    ZTMoney(int theValue) : myValue(theValue) {}
    // The number under "price", 0 if it is missing.
    explicit ZTMoney(const QJsonObject& theObject);

    static ZTMoney fromXmlTag(const QDomElement& theElement, const QString& theTag, int theDefault);
    static ZTMoney fromXmlAttribute(const QDomElement& theElement, const QString& theName, int theDefault);
    static ZTMoney fromXmlAttribute(const QDomElement& theElement, int theDefault);
    static ZTMoney fromXmlAttribute(const QDomNamedNodeMap& theAttributes, const QString& theName,
                                    int theDefault);
    static ZTMoney fromXmlAttribute(const QDomNamedNodeMap& theAttributes, int theDefault);

    void toXmlAttribute(QDomElement& theElement, const QString& theName) const;
    void toXmlAttribute(QDomElement& theElement) const;
    void toJSON(QJsonObject& theObject) const;

    qint32 value() const { return myValue; }
    QString toString() const { return QString::number(myValue); }
    // Display text in the key account's currency; with theSecondary converted to the secondary
    // one. Empty if the currencies file lacks the currency.
    QString fullText(bool theWithSymbol = true, bool theHtml = false, bool theSecondary = false) const;

    // Above 0. Deliberately independent of isValid(): the unset default has a "price" too.
    bool hasPrice() const { return myValue > 0; }
    bool isNull() const { return myValue == 0; }
    // 0 to 2147483646.
    bool isValid() const { return myValue > noPrice && myValue < notSet; }

    bool operator==(const ZTMoney& theOther) const { return myValue == theOther.myValue; }
    bool operator!=(const ZTMoney& theOther) const { return myValue != theOther.myValue; }
    bool operator<(const ZTMoney& theOther) const { return myValue < theOther.myValue; }
    bool operator>(const ZTMoney& theOther) const { return myValue > theOther.myValue; }
    bool operator<=(const ZTMoney& theOther) const { return myValue <= theOther.myValue; }
    bool operator>=(const ZTMoney& theOther) const { return myValue >= theOther.myValue; }

    ZTMoney& operator+=(const ZTMoney& theOther);
    ZTMoney& operator-=(const ZTMoney& theOther);
    ZTMoney& operator*=(int theFactor);

private:
    qint32 myValue = notSet;
};

// Writes the decimal text, not the raw integer, so streams stay readable across versions.
ZTAPM_EXPORT QDataStream& operator<<(QDataStream& theStream, const ZTMoney& theMoney);
ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTMoney& theMoney);

#endif // ZTMONEY_H
