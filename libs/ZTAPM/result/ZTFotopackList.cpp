#include "ZTFotopackList.h"

#include <QDomElement>

#include <algorithm>

void ZTFotopackList::update(const QDomElement& theElement)
{
    clear();
    const QDomElement packs = theElement.firstChildElement(QStringLiteral("photopacks"));
    for (QDomElement child = packs.firstChildElement(QStringLiteral("photopack")); !child.isNull();
         child = child.nextSiblingElement(QStringLiteral("photopack"))) {
        const ZTFotopack pack(child);
        if (pack.isValid())
            append(pack);
    }
    // Stable, and a merge sort: the order of packs is not a strict weak one (see operator<), and
    // a merge never leaves the list for it.
    std::stable_sort(begin(), end());
}

int ZTFotopackList::totalInitialAmount() const
{
    int total = 0;
    for (const ZTFotopack& pack : *this)
        total += pack.initialAmount();
    return total;
}

int ZTFotopackList::totalResidualAmount() const
{
    int total = 0;
    for (const ZTFotopack& pack : *this)
        total += pack.residualAmount();
    return total;
}

ZTFotopackList ZTFotopackList::filter(const ZTArticleId& theArticleId) const
{
    ZTFotopackList result;
    for (const ZTFotopack& pack : *this) {
        if (pack.articleId() == theArticleId)
            result.append(pack);
    }
    return result;
}

int ZTFotopackList::totalResidualAmount(const ZTArticleId& theArticleId) const
{
    return filter(theArticleId).totalResidualAmount();
}
