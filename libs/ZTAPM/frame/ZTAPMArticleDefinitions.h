#ifndef ZTAPMARTICLEDEFINITIONS_H
#define ZTAPMARTICLEDEFINITIONS_H

#include "ZTAPMArticleData.h"
#include "ZTAPMArticleDefinition.h"
#include "ztapm_export.h"

// The article definitions of the products document, by article id.
class ZTAPM_EXPORT ZTAPMArticleDefinitions : public ZTAPMArticleData<ZTAPMArticleDefinition>
{
public:
    ZTAPMArticleDefinitions();
    ~ZTAPMArticleDefinitions() override;

    // An id that occurs a second time updates the stored definition in place: the first
    // element's article class and price class stay, everything else is the second's. Always
    // true for such an id.
    bool insert(const ZTArticleId& theId, const ZTAPMArticleDefinition& theValue) const override;
    ZTKeyAccountDataType dataType() const override;
    bool parseElement(const QDomElement& theElement) const override;

    ZTAPMArticleDefinition definition(const ZTArticleId& theId) const;
    // There is no lookup by product type; the answer is always an invalid definition.
    ZTAPMArticleDefinition definition(const ZTProductType& theProductType) const;
};

#endif // ZTAPMARTICLEDEFINITIONS_H
