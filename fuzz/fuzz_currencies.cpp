#include "ZTCurrency.h"
#include "ZTFuzzInput.h"
#include "ZTResourceFile.h"
#include "ZTXMLConfig.h"

#include <QDomElement>

#include <climits>

// The currencies document, read as the currency configuration reads it (every child of the root
// a currency), and every currency asked to write sums from the smallest to the largest int.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    ZTFuzzInput::write(theData, theSize, QStringLiteral("currencies.xml"));
    const ZTXMLConfig document(ZTResourceFile(ZTResourceFileTypeCurrencies), false);
    const QDomElement root = document.documentElement();
    for (QDomElement element = root.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const ZTCurrency currency(element);
        for (const int value : {0, 5, -5, 100, -123456, INT_MAX, INT_MIN}) {
            for (const bool html : {false, true}) {
                (void)currency.format(value, html, true);
                (void)currency.format(value, html, false);
            }
        }
        (void)currency.isoCode();
    }
    return 0;
}
