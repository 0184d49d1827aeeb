#ifndef ZTPRODUCTFACTORY_H
#define ZTPRODUCTFACTORY_H

#include "ZTSingleton.h"
#include "ztapm_export.h"

class QDomElement;
class ZTProductAbstract;

// Chooses the product class for an element of the products document: by the element's name, and
// for articles by their arrangement. Each build returns a new product or null.
class ZTAPM_EXPORT ZTProductFactory : public ZTSingleton<ZTProductFactory>
{
public:
    ZTProductAbstract* build(const QDomElement& theElement) const;
    ZTProductAbstract* buildAddOn(const QDomElement& theElement) const;
    ZTProductAbstract* buildFoto(const QDomElement& theElement) const;
    ZTProductAbstract* buildPrintFun(const QDomElement& theElement) const;
    // An article: prints become a ZTProduct, everything with pages a ZTProductPrintFun.
    ZTProductAbstract* buildIndependentProduct(const QDomElement& theElement) const;

private:
    friend class ZTSingleton<ZTProductFactory>;
    ZTProductFactory();
    ~ZTProductFactory() override;
};

#endif // ZTPRODUCTFACTORY_H
