#ifndef ZTAPMARTICLEPRICES_H
#define ZTAPMARTICLEPRICES_H

#include "ZTAPMArticleData.h"
#include "ZTAPMArticlePriceInfo.h"
#include "ztapm_export.h"

// The price tables of the prices document, by article id. An id that occurs twice keeps its
// later element.
class ZTAPM_EXPORT ZTAPMArticlePrices : public ZTAPMArticleData<ZTAPMArticlePriceInfo>
{
public:
    ZTAPMArticlePrices();
    ~ZTAPMArticlePrices() override;

    ZTKeyAccountDataType dataType() const override;
    bool parseElement(const QDomElement& theElement) const override;
    bool readsElementsOnDemand() const override;

    ZTAPMArticlePriceInfo priceInfo(const ZTArticleId& theId) const;
};

#endif // ZTAPMARTICLEPRICES_H
