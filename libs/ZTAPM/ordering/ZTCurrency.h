#ifndef ZTCURRENCY_H
#define ZTCURRENCY_H

#include "ztapm_export.h"

#include <QString>

class QDomElement;

// One currency of the currencies file: its symbols, its ISO code and how a sum is written. Sums
// are whole hundredths, so at most two fraction digits are real.
class ZTAPM_EXPORT ZTCurrency
{
public:
    // The euro as written in Germany.
    ZTCurrency();
    // Child texts "name", "symbolHTML", "decimalsep", "symbolinfront", "decimalplaces",
    // "symbol" and the attribute "isocode"; what is missing keeps the euro's value.
    explicit ZTCurrency(const QDomElement& theElement);

    QString symbol() const { return mySymbol; }
    // The plain symbol where the HTML symbol is a null text (an empty "symbolHTML" element).
    QString symbolHTML() const;
    QString symbol(bool theHtml) const;
    QString genericName() const { return myGenericName; }
    QString isoCode() const { return myIsoCode; }
    QString decimalSep() const { return myDecimalSep; }
    int decimalPlaces() const { return myDecimalPlaces; }
    bool symbolInFront() const { return mySymbolInFront; }

    // "- " for a negative sum, then the whole units.
    QString formatedMain(int theValue) const;
    // Empty without decimal places.
    QString formatedSeparator() const;
    // The hundredths, a leading zero only with exactly two places, cut to the number of places.
    QString formatedFraction(int theValue) const;
    // Main part, separator and fraction; with theWithSymbol the symbol joined by a no-break
    // space ("&nbsp;" in HTML), before or behind as the currency writes it.
    QString format(int theValue, bool theHtml, bool theWithSymbol) const;

private:
    QString mySymbol = QStringLiteral("€");
    QString myGenericName = QStringLiteral("Euro");
    QString mySymbolHTML = QStringLiteral("&euro;");
    QString myIsoCode;
    QString myDecimalSep = QStringLiteral(",");
    bool mySymbolInFront = false;
    qint32 myDecimalPlaces = 2;
};

#endif // ZTCURRENCY_H
