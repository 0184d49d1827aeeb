#ifndef ZTARTICLEVARIANTS_H
#define ZTARTICLEVARIANTS_H

#include "ZTConfiguredArticleVariant.h"
#include "ztproductbase_export.h"

#include <QDebug>
#include <QList>

// The variants chosen for one product of an order, for instance the style of its box: the ids of
// ZTConfiguredArticleVariant, each once, in ascending order. Empty means the article's standard
// make.
class ZTPRODUCTBASE_EXPORT ZTArticleVariants
{
public:
    ZTArticleVariants();
    explicit ZTArticleVariants(const QList<int>& theIds);
    ZTArticleVariants(const ZTArticleVariants& other);
    ZTArticleVariants& operator=(const ZTArticleVariants& other);
    virtual ~ZTArticleVariants();

    // Ids of 0 and below are no variants and are ignored.
    void insert(int theId);
    void insert(const ZTConfiguredArticleVariant& theVariant) { insert(theVariant.id()); }

    QList<int> ids() const { return myIds; }
    bool contains(int theId) const;
    bool isEmpty() const { return myIds.isEmpty(); }

    bool operator==(const ZTArticleVariants& other) const { return myIds == other.myIds; }
    bool operator!=(const ZTArticleVariants& other) const { return myIds != other.myIds; }

private:
    QList<int> myIds;
};

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTArticleVariants& theVariants);

#endif // ZTARTICLEVARIANTS_H
