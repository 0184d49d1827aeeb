#ifndef ZTARTICLEIDSET_H
#define ZTARTICLEIDSET_H

#include "ZTArticleId.h"
#include "ztapm_export.h"

#include <QSet>

#include <initializer_list>

// A set of article ids, such as the articles an add-on may be ordered with.
class ZTAPM_EXPORT ZTArticleIdSet : public QSet<ZTArticleId>
{
public:
    ZTArticleIdSet();
    ZTArticleIdSet(std::initializer_list<ZTArticleId> theIds);
    ZTArticleIdSet(const QSet<ZTArticleId>& theIds);
    ZTArticleIdSet(const ZTArticleIdSet& other);
    ZTArticleIdSet& operator=(const ZTArticleIdSet& other);
    virtual ~ZTArticleIdSet();
};

#endif // ZTARTICLEIDSET_H
