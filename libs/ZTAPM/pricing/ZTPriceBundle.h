#ifndef ZTPRICEBUNDLE_H
#define ZTPRICEBUNDLE_H

#include "ZTArticleId.h"
#include "ZTMoney.h"
#include "ztapm_export.h"

class QDebug;

// What one piece of an article costs from a quantity on, and what it would cost without the
// running offer (-1 if none runs).
class ZTAPM_EXPORT ZTPriceBundle
{
public:
    ZTPriceBundle();
    ZTPriceBundle(const ZTArticleId& theArticleId, const ZTMoney& thePrice, const ZTMoney& theNonOfferPrice,
                  int theMinCount);
    ZTPriceBundle(const ZTPriceBundle& theOther);
    ZTPriceBundle& operator=(const ZTPriceBundle& theOther);
    virtual ~ZTPriceBundle();

    const ZTArticleId& articleId() const { return myArticleId; }
    const ZTMoney& price() const { return myPrice; }
    const ZTMoney& nonOfferPrice() const { return myNonOfferPrice; }
    int minCount() const { return myMinCount; }

    bool operator==(const ZTPriceBundle& theOther) const;
    bool operator!=(const ZTPriceBundle& theOther) const;
    // Cheaper first; of equal prices the one with the higher non-offer price, the better
    // bargain, first. Article and quantity do not count.
    bool operator<(const ZTPriceBundle& theOther) const;

private:
    ZTArticleId myArticleId;
    ZTMoney myPrice;
    ZTMoney myNonOfferPrice;
    qint32 myMinCount = 0;
};

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTPriceBundle& theBundle);

#endif // ZTPRICEBUNDLE_H
