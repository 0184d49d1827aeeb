#ifndef ZTPRODUCTREGISTRYABSTRACT_H
#define ZTPRODUCTREGISTRYABSTRACT_H

#include "ztapm_export.h"

class QDomNode;
class ZTArticleId;
class ZTProductAbstract;

// What the data base needs of each of its registries: read a products document into products,
// and find a product by article id. All calls run under the data base's lock.
class ZTAPM_EXPORT ZTProductRegistryAbstract
{
public:
    virtual ~ZTProductRegistryAbstract();

    virtual ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const = 0;
    virtual void readProducts(const QDomNode& theRoot) = 0;
};

#endif // ZTPRODUCTREGISTRYABSTRACT_H
