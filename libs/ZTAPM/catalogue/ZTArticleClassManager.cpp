#include "ZTArticleClassManager.h"

#include "ZTAPMDataBase.h"
#include "ZTProductList.h"

bool ZTArticleClassManager::isActive(const ZTArticleClass& theClass) const
{
    return !ZTSingleton<ZTAPMDataBase>::instance()->productsForArticleClass(theClass).isEmpty();
}

QList<ZTArticleClass> ZTArticleClassManager::activeArticleClasses() const
{
    QList<ZTArticleClass> result;
    for (ZTArticleClassEnum bit : ZTArticleClass(ZTArticleClassAllArticles).splitToBitsSorted()) {
        if (isActive(bit))
            result.append(bit);
    }
    return result;
}
