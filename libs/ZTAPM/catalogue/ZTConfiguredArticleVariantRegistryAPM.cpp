#include "ZTConfiguredArticleVariantRegistryAPM.h"

#include "ZTAPMDataBase.h"
#include "ZTPriceClass.h"
#include "ZTProductAbstract.h"

ZTConfiguredArticleVariantRegistryAPM::ZTConfiguredArticleVariantRegistryAPM() = default;
ZTConfiguredArticleVariantRegistryAPM::~ZTConfiguredArticleVariantRegistryAPM() = default;

int ZTConfiguredArticleVariantRegistryAPM::type() const
{
    return 1;
}

ZTConfiguredArticleVariantList
ZTConfiguredArticleVariantRegistryAPM::variants(const ZTArticleId& theId, const ZTProductType&,
                                                const ZTPriceClass& thePriceClass) const
{
    const ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    const ZTProductAbstract* product = thePriceClass.isValid()
                                           ? dataBase->findDependentProduct(theId, thePriceClass)
                                           : dataBase->productAbstract(theId);
    return product ? product->variants() : ZTConfiguredArticleVariantList();
}
