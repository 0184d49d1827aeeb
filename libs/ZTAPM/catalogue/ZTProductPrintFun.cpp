#include "ZTProductPrintFun.h"

#include "ZTAPMDataBase.h"

ZTProductPrintFun::ZTProductPrintFun(const QDomElement& theElement) : ZTProductAbstract(theElement)
{}

ZTProductPrintFun::~ZTProductPrintFun() = default;

void ZTProductPrintFun::update(const QDomElement& theElement)
{
    ZTProductAbstract::update(theElement);
    // Runs only on a later reading, never while the data base is being constructed, so asking
    // for its instance here cannot dead-lock.
    const int before = pageIncrement();
    const int after = pageIncrement();
    if (before != after)
        ZTSingleton<ZTAPMDataBase>::instance()->pleaseRestartTheSoftware();
}

ZTPageCountOrganization ZTProductPrintFun::pageCountOrganization() const
{
    return articleDefinition().pageCountOrganization();
}

int ZTProductPrintFun::minPages() const
{
    return pageCountOrganization().minPages();
}

int ZTProductPrintFun::maxPages() const
{
    return pageCountOrganization().maxPages();
}

int ZTProductPrintFun::pageIncrement() const
{
    return pageCountOrganization().pageIncrement();
}
