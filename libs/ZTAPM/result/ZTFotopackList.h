#ifndef ZTFOTOPACKLIST_H
#define ZTFOTOPACKLIST_H

#include "ZTFotopack.h"
#include "ztapm_export.h"

#include <QList>

class QDomElement;

// The photo packs of the customer, as the host receives them; the engine neither fills nor
// reads the list itself.
class ZTAPM_EXPORT ZTFotopackList : public QList<ZTFotopack>
{
public:
    using QList<ZTFotopack>::QList;

    // Replaces the list by the valid "photopack" children of theElement's child "photopacks",
    // sorted by ZTFotopack::operator<; packs that stand in neither order keep their document
    // order. Expired packs and packs of unknown articles are dropped.
    void update(const QDomElement& theElement);

    int totalInitialAmount() const;
    int totalResidualAmount() const;
    // The packs of the article, in order.
    ZTFotopackList filter(const ZTArticleId& theArticleId) const;
    int totalResidualAmount(const ZTArticleId& theArticleId) const;
};

#endif // ZTFOTOPACKLIST_H
