#include "ZTArticleVariants.h"

#include <algorithm>

ZTArticleVariants::ZTArticleVariants() = default;

ZTArticleVariants::ZTArticleVariants(const QList<int>& theIds)
{
    for (int id : theIds)
        insert(id);
}

ZTArticleVariants::ZTArticleVariants(const ZTArticleVariants& other) = default;
ZTArticleVariants& ZTArticleVariants::operator=(const ZTArticleVariants& other) = default;
ZTArticleVariants::~ZTArticleVariants() = default;

void ZTArticleVariants::insert(int theId)
{
    if (theId <= 0)
        return;
    const auto position = std::lower_bound(myIds.begin(), myIds.end(), theId);
    if (position == myIds.end() || *position != theId)
        myIds.insert(position, theId);
}

bool ZTArticleVariants::contains(int theId) const
{
    return std::binary_search(myIds.cbegin(), myIds.cend(), theId);
}

QDebug operator<<(QDebug debug, const ZTArticleVariants& theVariants)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTArticleVariants" << theVariants.ids();
    return debug;
}
