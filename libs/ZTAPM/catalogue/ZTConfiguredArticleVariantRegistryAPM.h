#ifndef ZTCONFIGUREDARTICLEVARIANTREGISTRYAPM_H
#define ZTCONFIGUREDARTICLEVARIANTREGISTRYAPM_H

#include "ZTConfiguredArticleVariantRegistryAbstract.h"
#include "ztapm_export.h"

// Gives the host the variants that the catalogue lists for an article or one of its add-ons.
class ZTAPM_EXPORT ZTConfiguredArticleVariantRegistryAPM : public ZTConfiguredArticleVariantRegistryAbstract
{
public:
    ZTConfiguredArticleVariantRegistryAPM();
    ~ZTConfiguredArticleVariantRegistryAPM() override;

    int type() const override;
    // With a valid price class the variants of the add-on of that class linked to the article,
    // else those of the article itself. The product type is not needed.
    ZTConfiguredArticleVariantList variants(const ZTArticleId& theId, const ZTProductType& theProductType,
                                            const ZTPriceClass& thePriceClass) const override;
};

#endif // ZTCONFIGUREDARTICLEVARIANTREGISTRYAPM_H
