#ifndef ZTAPMORDERSTATISTIC_H
#define ZTAPMORDERSTATISTIC_H

#include "ZTMoney.h"
#include "ZTProductList.h"
#include "ztapm_export.h"

#include <QHash>
#include <QList>
#include <QPair>

class ZTAPMPriceKey;
class ZTArticleId;
class ZTProductAbstract;

// A basket: products with their numbers of pieces. The products are not owned. An entry once
// made stays, even at a number of 0 or below, so that a basket keeps every product it was told
// about and prices it.
class ZTAPM_EXPORT ZTAPMOrderStatistic
{
public:
    using Items = QHash<ZTProductAbstract*, int>;
    using Item = QPair<ZTProductAbstract*, int>;

    ZTAPMOrderStatistic();
    ZTAPMOrderStatistic(const ZTAPMOrderStatistic& theOther);
    ZTAPMOrderStatistic& operator=(const ZTAPMOrderStatistic& theOther);
    ~ZTAPMOrderStatistic();

    // Adds theCount to the product's number, which starts at 0; a negative count lowers it.
    void add(ZTProductAbstract* theProduct, int theCount);
    // The same for the catalogue's product of theId, which may be null: callers must not pass
    // unknown ids.
    void add(const ZTArticleId& theId, int theCount);
    // Adds every number of theOther times theFactor.
    void add(const ZTAPMOrderStatistic& theOther, int theFactor);

    int countItems(const ZTProductAbstract* theProduct, int theDefault) const;
    bool isEmpty() const { return myItems.isEmpty(); }
    Items items() const { return myItems; }
    // The entries in ascending article id, a null product first: the one order in which the
    // basket is walked wherever the walk decides something. Products of one article id share
    // their price info, so their order among themselves changes no result.
    QList<Item> itemsByArticleId() const;
    // The products in ascending article id, null ones included.
    ZTProductList products() const;
    // One piece of every product at its price under theKey, times its number. A product that
    // cannot be priced adds its -1 like any price.
    ZTMoney totalPrice(const ZTAPMPriceKey& theKey) const;

    bool operator==(const ZTAPMOrderStatistic& theOther) const { return myItems == theOther.myItems; }
    bool operator!=(const ZTAPMOrderStatistic& theOther) const { return myItems != theOther.myItems; }

private:
    Items myItems;
};

#endif // ZTAPMORDERSTATISTIC_H
