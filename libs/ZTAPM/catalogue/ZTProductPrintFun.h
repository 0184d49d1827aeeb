#ifndef ZTPRODUCTPRINTFUN_H
#define ZTPRODUCTPRINTFUN_H

#include "ZTPageCountOrganization.h"
#include "ZTProductAbstract.h"

// A designed article with pages: books, calendars, cards, wall art.
class ZTAPM_EXPORT ZTProductPrintFun : public ZTProductAbstract
{
public:
    explicit ZTProductPrintFun(const QDomElement& theElement);
    ~ZTProductPrintFun() override;

    // Also asks for a restart when the page increment is seen to change under the reading:
    // open documents were laid out for the old one.
    void update(const QDomElement& theElement) override;

    ZTPageCountOrganization pageCountOrganization() const;
    int minPages() const;
    int maxPages() const;
    int pageIncrement() const;
};

#endif // ZTPRODUCTPRINTFUN_H
