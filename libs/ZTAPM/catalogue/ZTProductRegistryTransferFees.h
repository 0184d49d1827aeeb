#ifndef ZTPRODUCTREGISTRYTRANSFERFEES_H
#define ZTPRODUCTREGISTRYTRANSFERFEES_H

#include "ZTProductRegistryFeeMap.h"
#include "ZTShippingGroupId.h"

#include <QHash>

// The shipping costs of each shipping group. Rebuilt on every reading. A later transfer of the
// same group replaces the earlier one there, but both stay findable by id.
class ZTAPM_EXPORT ZTProductRegistryTransferFees : public ZTProductRegistryFeeMap<ZTShippingGroupId>
{
public:
    ZTProductRegistryTransferFees();
    ~ZTProductRegistryTransferFees() override;

    ZTProductAbstract* productWithArticleID(const ZTArticleId& theId) const override;
    void setProductsDeprecated() override;
    // Every transfer read, also those that a later one of the same group replaced.
    int productCount() const;

    ZTProductAbstract* transferProduct(const ZTShippingGroupId& theShippingGroupId) const;

protected:
    // The element's group.
    ZTShippingGroupId keyOf(const QDomElement& theElement) const override;
    void enter(const QDomElement& theElement, ZTProductAbstract* theProduct) override;

private:
    QHash<ZTArticleId, ZTProductAbstract*> myProductsById;
};

#endif // ZTPRODUCTREGISTRYTRANSFERFEES_H
