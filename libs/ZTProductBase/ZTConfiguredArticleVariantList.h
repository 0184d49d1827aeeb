#ifndef ZTCONFIGUREDARTICLEVARIANTLIST_H
#define ZTCONFIGUREDARTICLEVARIANTLIST_H

#include "ZTConfiguredArticleVariant.h"
#include "ztproductbase_export.h"

#include <QList>

class QDomElement;

// The variants of one article, in document order. Read from the article element:
//   <variants>
//     <variant id="1" name="Classic white"/>
//     <variant id="2" name="Linen grey"/>
//   </variants>
// A variant without a positive id, or with an id already listed, is skipped; one warning per
// article names them all.
class ZTPRODUCTBASE_EXPORT ZTConfiguredArticleVariantList : public QList<ZTConfiguredArticleVariant>
{
public:
    ZTConfiguredArticleVariantList();
    explicit ZTConfiguredArticleVariantList(const QDomElement& theArticle);
    ZTConfiguredArticleVariantList(const ZTConfiguredArticleVariantList& other);
    ZTConfiguredArticleVariantList& operator=(const ZTConfiguredArticleVariantList& other);
    virtual ~ZTConfiguredArticleVariantList();

    // The variant with this id, or a default-made, invalid one.
    ZTConfiguredArticleVariant variant(int theId) const;
    bool containsId(int theId) const;
};

#endif // ZTCONFIGUREDARTICLEVARIANTLIST_H
