#ifndef ZTPRODUCTLIST_H
#define ZTPRODUCTLIST_H

#include "ZTDiscountLimitSet.h"
#include "ztapm_export.h"

#include <QList>

class QString;
class ZTArticleClass;
class ZTDiscountLimitListKey;
class ZTProductAbstract;
class ZTShippingGroupId;

// The list in which the catalogue answers. It owns nothing: the products belong to the
// registries. Elements may be null unless withoutNullPointers() was applied.
class ZTAPM_EXPORT ZTProductList : public QList<ZTProductAbstract*>
{
public:
    ZTProductList();
    ZTProductList(const QList<ZTProductAbstract*>& theProducts);
    ZTProductList(std::initializer_list<ZTProductAbstract*> theProducts);

    // Same size, and every element of other occurs here; order and multiplicity do not count.
    bool operator==(const ZTProductList& other) const;
    bool operator!=(const ZTProductList& other) const { return !(*this == other); }

    // Prints, enlargements and pre-assembled articles, and whatever the product checkers accept.
    ZTProductList filterValid() const;
    ZTProductList withoutNullPointers() const;
    ZTProductList withoutDeprecatedProducts() const;
    ZTProductList filter(const ZTArticleClass& theClass) const;
    ZTProductList filter(const ZTShippingGroupId& theShippingGroupId) const;

    // By name, numbers at the front of names compared as numbers.
    void sort();

    // The union of the elements' limits for the key's price key, reduced to what a ladder shows.
    ZTDiscountLimitSet discountLimits(const ZTDiscountLimitListKey& theKey) const;
};

// True when a sorts before b: names that both begin with a number go by that number, then by
// length; otherwise by length, then letters ignoring case.
ZTAPM_EXPORT bool sortByNumber(const QString& a, const QString& b);
// sortByNumber on the names; equal names fall back on the addresses, a fixed order for one run.
ZTAPM_EXPORT bool sortProductByNumber(ZTProductAbstract* a, ZTProductAbstract* b);

#endif // ZTPRODUCTLIST_H
