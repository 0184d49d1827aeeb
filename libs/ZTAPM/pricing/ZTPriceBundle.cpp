#include "ZTPriceBundle.h"

#include <QDebug>

ZTPriceBundle::ZTPriceBundle() : myArticleId(0)
{}

ZTPriceBundle::ZTPriceBundle(const ZTArticleId& theArticleId, const ZTMoney& thePrice,
                             const ZTMoney& theNonOfferPrice, int theMinCount)
    : myArticleId(theArticleId), myPrice(thePrice), myNonOfferPrice(theNonOfferPrice), myMinCount(theMinCount)
{}

ZTPriceBundle::ZTPriceBundle(const ZTPriceBundle& theOther) = default;
ZTPriceBundle& ZTPriceBundle::operator=(const ZTPriceBundle& theOther) = default;
ZTPriceBundle::~ZTPriceBundle() = default;

bool ZTPriceBundle::operator==(const ZTPriceBundle& theOther) const
{
    return myArticleId == theOther.myArticleId && myPrice == theOther.myPrice &&
           myNonOfferPrice == theOther.myNonOfferPrice && myMinCount == theOther.myMinCount;
}

bool ZTPriceBundle::operator!=(const ZTPriceBundle& theOther) const
{
    return !(*this == theOther);
}

bool ZTPriceBundle::operator<(const ZTPriceBundle& theOther) const
{
    if (myPrice != theOther.myPrice)
        return myPrice < theOther.myPrice;
    return myNonOfferPrice > theOther.myNonOfferPrice;
}

QDebug operator<<(QDebug theDebug, const ZTPriceBundle& theBundle)
{
    theDebug << theBundle.articleId() << theBundle.price() << theBundle.nonOfferPrice()
             << theBundle.minCount();
    return theDebug;
}
