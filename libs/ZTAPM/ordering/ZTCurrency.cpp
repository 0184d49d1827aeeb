#include "ZTCurrency.h"

#include "ZTDiagnosticCollector.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>

ZTCurrency::ZTCurrency() = default;

ZTCurrency::ZTCurrency(const QDomElement& theElement)
{
    myGenericName = ZTXMLParser::text(theElement, QStringLiteral("name"), myGenericName);
    mySymbolHTML = ZTXMLParser::text(theElement, QStringLiteral("symbolHTML"), mySymbolHTML);
    // An empty element stands for the plain symbol.
    if (mySymbolHTML.isEmpty())
        mySymbolHTML = QString();
    myIsoCode = ZTXMLParser::attribute(theElement, QStringLiteral("isocode"), QString(), true);
    myDecimalSep = ZTXMLParser::text(theElement, QStringLiteral("decimalsep"), myDecimalSep);
    mySymbolInFront = ZTXMLParser::boolText(theElement, QStringLiteral("symbolinfront"), mySymbolInFront);
    myDecimalPlaces = ZTXMLParser::intText(theElement, QStringLiteral("decimalplaces"), myDecimalPlaces);
    mySymbol = ZTXMLParser::text(theElement, QStringLiteral("symbol"), mySymbol);
    // Kept all the same: the ordering details cannot name it, but nothing else breaks.
    if (myIsoCode.isEmpty()) {
        qWarning() << "found currency without isocode";
        ZTDiagnosticCollector::report(ZTDiagnostic::Warning,
                                      QCoreApplication::translate("ZTCurrency", "Währung ohne isocode"));
    }
}

QString ZTCurrency::symbolHTML() const
{
    return mySymbolHTML.isNull() ? mySymbol : mySymbolHTML;
}

QString ZTCurrency::symbol(bool theHtml) const
{
    return theHtml ? symbolHTML() : symbol();
}

QString ZTCurrency::formatedMain(int theValue) const
{
    const qint64 value = theValue;
    const qint64 magnitude = value < 0 ? -value : value;
    return (value < 0 ? QStringLiteral("- ") : QString()) + QString::number(magnitude / 100);
}

QString ZTCurrency::formatedSeparator() const
{
    return myDecimalPlaces == 0 ? QString() : myDecimalSep;
}

QString ZTCurrency::formatedFraction(int theValue) const
{
    if (myDecimalPlaces < 1)
        return QString();
    const qint64 value = theValue;
    const qint64 hundredths = (value < 0 ? -value : value) % 100;
    QString result;
    if (hundredths <= 9 && myDecimalPlaces == 2)
        result = QStringLiteral("0");
    // Cut, not rounded: with one place 45 hundredths read "4", with three places "45".
    result += QString::number(hundredths);
    return result.left(myDecimalPlaces);
}

QString ZTCurrency::format(int theValue, bool theHtml, bool theWithSymbol) const
{
    const QString body = formatedMain(theValue) + formatedSeparator() + formatedFraction(theValue);
    if (!theWithSymbol)
        return body;
    const QString spacer = theHtml ? QStringLiteral("&nbsp;") : QString(QChar(0x00A0));
    // The minus stays with the number: a front symbol goes before the finished body.
    if (mySymbolInFront)
        return symbol(theHtml) + spacer + body;
    return body + spacer + symbol(theHtml);
}
