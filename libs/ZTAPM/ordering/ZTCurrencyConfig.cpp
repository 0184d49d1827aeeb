#include "ZTCurrencyConfig.h"

#include "ZTCurrency.h"
#include "ZTOrderingDetails.h"

#include <QDomElement>
#include <QtDebug>

#include <cmath>
#include <limits>

namespace {
// The secondary sum, cut toward zero and held within 32 bits.
int converted(int theValue, double theFactor)
{
    const double value = std::trunc(double(theValue) * theFactor);
    if (!(value >= double(std::numeric_limits<qint32>::min())))
        return value > 0 ? std::numeric_limits<qint32>::max() : std::numeric_limits<qint32>::min();
    if (value > double(std::numeric_limits<qint32>::max()))
        return std::numeric_limits<qint32>::max();
    return int(value);
}
} // namespace

ZTCurrencyConfig::ZTCurrencyConfig() : ZTXMLConfig(ZTResourceFile(ZTResourceFileTypeCurrencies), true)
{
    const QDomElement root = documentElement();
    for (QDomElement element = root.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        auto* currency = new ZTCurrency(element);
        // A later currency of the same code takes the place of the former; the former stays
        // alive, since a caller may still hold it.
        myCurrencies.insert(currency->isoCode(), currency);
    }
    const ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
    myPrimaryCurrency = myCurrencies.value(details->currency(), nullptr);
    if (details->hasSecondaryCurrency())
        mySecondaryCurrency = myCurrencies.value(details->secondaryCurrency(), nullptr);
}

ZTCurrencyConfig::~ZTCurrencyConfig() = default;

const ZTCurrency* ZTCurrencyConfig::currency(bool theSecondary) const
{
    if (theSecondary && mySecondaryCurrency)
        return mySecondaryCurrency;
    return myPrimaryCurrency;
}

const ZTCurrency* ZTCurrencyConfig::currency(const QString& theIsoCode) const
{
    ZTCurrency* found = myCurrencies.value(theIsoCode, nullptr);
    if (!found)
        qWarning("unknown currency: '%s'", qPrintable(theIsoCode));
    return found;
}

QString ZTCurrencyConfig::currencySymbol(bool theHtml, bool theSecondary) const
{
    const ZTCurrency* found = currency(theSecondary);
    return found ? found->symbol(theHtml) : QString();
}

QString ZTCurrencyConfig::fullText(int theValue, bool theWithSymbol, bool theHtml, bool theSecondary) const
{
    if (theSecondary)
        theValue = converted(theValue, ZTSingleton<ZTOrderingDetails>::instance()->secondaryCurrencyFactor());
    const ZTCurrency* found = currency(theSecondary);
    return found ? found->format(theValue, theHtml, theWithSymbol) : QString();
}

QString ZTCurrencyConfig::text(int theValue, bool theSecondary) const
{
    return fullText(theValue, false, false, theSecondary);
}
