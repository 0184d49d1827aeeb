#include "ZTAPMArticlePrices.h"

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
    if (!priceInfo.isValid() || !id.isValid())
        return false;
    return insert(id, priceInfo);
}

ZTAPMArticlePriceInfo ZTAPMArticlePrices::priceInfo(const ZTArticleId& theId) const
{
    return data(theId);
}
