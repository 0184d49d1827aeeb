#include "ZTAPMArticlePrices.h"

#include "ZTDiagnosticCollector.h"

#include <QCoreApplication>

ZTAPMArticlePrices::ZTAPMArticlePrices() = default;
ZTAPMArticlePrices::~ZTAPMArticlePrices() = default;

ZTKeyAccountDataType ZTAPMArticlePrices::dataType() const
{
    return ZTKeyAccountDataType(ZTKeyAccountDataTypePrices);
}

// A value is made of the elements of its own id: most articles are never asked about in a
// session, and a big document is read in a fraction of the time of a whole reading.
bool ZTAPMArticlePrices::readsElementsOnDemand() const
{
    return true;
}

bool ZTAPMArticlePrices::parseElement(const QDomElement& theElement) const
{
    const ZTArticleId id = ZTArticleId::fromIdAttribute(theElement);
    const ZTAPMArticlePriceInfo priceInfo(id, theElement);
    if (!priceInfo.isValid() || !id.isValid()) {
        if (ZTDiagnosticCollector::isCollecting())
            ZTDiagnosticCollector::report(
                ZTDiagnostic::Warning,
                id.isValid()
                    ? QCoreApplication::translate("ZTAPMArticlePrices",
                                                  "Preise von %1 %2 verworfen: keine brauchbare Preiszeile")
                          .arg(theElement.tagName())
                          .arg(id.id())
                    : QCoreApplication::translate("ZTAPMArticlePrices", "Preise von %1 verworfen: keine ID")
                          .arg(theElement.tagName()));
        return false;
    }
    return insert(id, priceInfo);
}

ZTAPMArticlePriceInfo ZTAPMArticlePrices::priceInfo(const ZTArticleId& theId) const
{
    return data(theId);
}
