#include "ZTAPMArticlePrices.h"

#include "ZTDiagnosticCollector.h"

ZTAPMArticlePrices::ZTAPMArticlePrices() = default;
ZTAPMArticlePrices::~ZTAPMArticlePrices() = default;

ZTKeyAccountDataType ZTAPMArticlePrices::dataType() const
{
    return ZTKeyAccountDataType(ZTKeyAccountDataTypePrices);
}

bool ZTAPMArticlePrices::parseElement(const QDomElement& theElement) const
{
    const ZTArticleId id = ZTArticleId::fromIdAttribute(theElement);
    const ZTAPMArticlePriceInfo priceInfo(id, theElement);
    if (!priceInfo.isValid() || !id.isValid()) {
        if (ZTDiagnosticCollector::isCollecting())
            ZTDiagnosticCollector::report(
                ZTDiagnostic::Warning,
                id.isValid() ? QStringLiteral("prices of %1 %2 dropped: no usable price row")
                                   .arg(theElement.tagName())
                                   .arg(id.id())
                             : QStringLiteral("prices of %1 dropped: no id").arg(theElement.tagName()));
        return false;
    }
    return insert(id, priceInfo);
}

ZTAPMArticlePriceInfo ZTAPMArticlePrices::priceInfo(const ZTArticleId& theId) const
{
    return data(theId);
}
