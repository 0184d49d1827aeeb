#ifndef ZTCURRENCYCONFIG_H
#define ZTCURRENCYCONFIG_H

#include "ZTSingleton.h"
#include "ZTXMLConfig.h"
#include "ztapm_export.h"

#include <QMap>
#include <QString>

class ZTCurrency;

// Every currency the client knows (the currencies file), and the two that the ordering details
// name: the primary one, in which all sums are kept, and the secondary one, if any. Turns a sum
// into display text. Both are picked once, when the singleton is made.
class ZTAPM_EXPORT ZTCurrencyConfig : public ZTXMLConfig, public ZTSingleton<ZTCurrencyConfig>
{
    Q_OBJECT

public:
    // The primary currency, or with theSecondary the secondary one and the primary where there
    // is none. Null if the file lacks the currency.
    const ZTCurrency* currency(bool theSecondary = false) const;
    // Null, with a warning, for a code the file does not hold.
    const ZTCurrency* currency(const QString& theIsoCode) const;
    // Empty if the currency is missing.
    QString currencySymbol(bool theHtml, bool theSecondary) const;
    // With theSecondary the sum is first converted by the ordering details' factor, cut toward
    // zero; also where the secondary currency fell back to the primary one. Empty if the
    // currency is missing.
    QString fullText(int theValue, bool theWithSymbol, bool theHtml, bool theSecondary) const;
    QString text(int theValue, bool theSecondary) const;

private:
    friend class ZTSingleton<ZTCurrencyConfig>;
    ZTCurrencyConfig();
    ~ZTCurrencyConfig() override;

    QMap<QString, ZTCurrency*> myCurrencies;
    ZTCurrency* myPrimaryCurrency = nullptr;
    ZTCurrency* mySecondaryCurrency = nullptr;
};

#endif // ZTCURRENCYCONFIG_H
