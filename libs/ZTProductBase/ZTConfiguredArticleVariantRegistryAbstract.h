#ifndef ZTCONFIGUREDARTICLEVARIANTREGISTRYABSTRACT_H
#define ZTCONFIGUREDARTICLEVARIANTREGISTRYABSTRACT_H

#include "ZTArticleId.h"
#include "ZTConfiguredArticleVariantList.h"
#include "ZTPriceClass.h"
#include "ZTProductType.h"
#include "ztproductbase_export.h"

// Where the editor finds the variants in which an article is offered. The catalogue engine
// provides the implementation, which looks the article up in its loaded products document.
class ZTPRODUCTBASE_EXPORT ZTConfiguredArticleVariantRegistryAbstract
{
public:
    ZTConfiguredArticleVariantRegistryAbstract();
    virtual ~ZTConfiguredArticleVariantRegistryAbstract();

    // Which registry this is; the catalogue engine's answers 1.
    virtual int type() const = 0;
    // The variants of the article with theId, or, with a valid thePriceClass, of the product of
    // that price class that goes with it. Empty if there is none.
    virtual ZTConfiguredArticleVariantList variants(const ZTArticleId& theId,
                                                    const ZTProductType& theProductType,
                                                    const ZTPriceClass& thePriceClass) const = 0;

private:
    Q_DISABLE_COPY(ZTConfiguredArticleVariantRegistryAbstract)
};

#endif // ZTCONFIGUREDARTICLEVARIANTREGISTRYABSTRACT_H
