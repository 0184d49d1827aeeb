#include "ZTArticleIdSet.h"

ZTArticleIdSet::ZTArticleIdSet() = default;

ZTArticleIdSet::ZTArticleIdSet(std::initializer_list<ZTArticleId> theIds) : QSet<ZTArticleId>(theIds)
{}

ZTArticleIdSet::ZTArticleIdSet(const QSet<ZTArticleId>& theIds) : QSet<ZTArticleId>(theIds)
{}

ZTArticleIdSet::ZTArticleIdSet(const ZTArticleIdSet& other) = default;
ZTArticleIdSet& ZTArticleIdSet::operator=(const ZTArticleIdSet& other) = default;
ZTArticleIdSet::~ZTArticleIdSet() = default;
