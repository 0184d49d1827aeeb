#include "ZTPageOrganizationCalculatorAPM.h"

#include "ZTAPMDataBase.h"
#include "ZTProductPrintFun.h"

ZTPageOrganizationCalculatorAPM::ZTPageOrganizationCalculatorAPM() = default;
ZTPageOrganizationCalculatorAPM::~ZTPageOrganizationCalculatorAPM() = default;

ZTPageCountOrganization
ZTPageOrganizationCalculatorAPM::createPageOrganization(const ZTProductType& theProductType) const
{
    const ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    const auto* product = dynamic_cast<const ZTProductPrintFun*>(dataBase->productAbstract(theProductType));
    if (!product)
        return ZTPageCountOrganization();
    const ZTProductList pagePackages =
        dataBase->findDependentProducts(product->articleId(), ZTArticleClassPages);
    const bool onlyMinimumPages = pagePackages.isEmpty() || !pagePackages.first();
    return product->pageCountOrganization().clone(onlyMinimumPages);
}
