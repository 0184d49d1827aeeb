#ifndef ZTAPMBILLPOSITIONLIST_H
#define ZTAPMBILLPOSITIONLIST_H

#include "ZTAPMBillPositionAbstract.h"
#include "ZTArticleClass.h"
#include "ZTArticleId.h"

#include <QList>

class ZTAPMBillPosition;

// Positions in the order they were made. The list does not own them; a bill does.
class ZTAPM_EXPORT ZTAPMBillPositionList : public QList<ZTAPMBillPositionAbstract*>
{
public:
    ZTAPMBillPositionList();
    ZTAPMBillPositionList(const QList<ZTAPMBillPositionAbstract*>& thePositions);

    // The first entry of the product if it is a priced one. An unpriceable entry hides any
    // later entry of the same product: the product as a whole counts as not priced.
    ZTAPMBillPosition* position(const ZTProductAbstract* theProduct) const;
    // No entry marks an unpriceable article; true for an empty list.
    bool isValid() const;
    // Some entry's model shares a bit with theModel.
    bool containsDiscountModel(const ZTDiscountModel& theModel) const;
    // The first priced entry; null if none.
    ZTAPMBillPosition* any() const;
    ZTAPMBillPositionList filter(const ZTProductAbstract* theProduct) const;
    // The entries with a product whose class shares a bit with theClass.
    ZTAPMBillPositionList filter(const ZTArticleClass& theClass) const;
    // Keeps only the positions of the listed articles, in order; an empty list keeps all. The
    // positions taken out are not deleted: whoever owns them must still do so.
    void filterOutArticles(const QList<ZTArticleId>& theArticleIds);
};

#endif // ZTAPMBILLPOSITIONLIST_H
