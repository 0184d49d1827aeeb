#include "ZTAPMProductChecker.h"

#include "ZTAPMDataBase.h"
#include "ZTMoney.h"
#include "ZTProductAbstract.h"

ZTAPMProductChecker::ZTAPMProductChecker() = default;
ZTAPMProductChecker::~ZTAPMProductChecker() = default;

bool ZTAPMProductChecker::isValid(const ZTProductType& theProductType) const
{
    const ZTProductAbstract* product =
        ZTSingleton<ZTAPMDataBase>::instance()->productAbstract(theProductType);
    if (!product || product->isDeprecated())
        return false;
    const ZTMoney price = product->minPrice(true);
    return price.isValid() && price.hasPrice();
}

ZTProductCheckerType ZTAPMProductChecker::type() const
{
    return ZTProductCheckerTypeSaleable;
}

bool ZTAPMProductChecker::isValidBoxStyle(const ZTProductType&, const ZTArticleVariants&) const
{
    return true;
}
