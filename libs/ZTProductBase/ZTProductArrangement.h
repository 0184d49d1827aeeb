#ifndef ZTPRODUCTARRANGEMENT_H
#define ZTPRODUCTARRANGEMENT_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

// How the pages of an article are put together, from the attribute "arrangement" of its type; it
// decides which product an article becomes. One arrangement per value.
enum ZTProductArrangementEnum : qint32 {
    ZTProductArrangementNone = 0,
    // Loose photo prints; their class comes from the shipping group.
    ZTProductArrangementPrints = 1,
    // One motif on one object: wall decor, gifts, boxes.
    ZTProductArrangementSingle = 4,
    // A folded card.
    ZTProductArrangementFolded = 8,
    // Sheets bound at one edge, turned one by one.
    ZTProductArrangementCalendar = 16,
    // Pages bound into a book.
    ZTProductArrangementBook = 32,
};

class ZTPRODUCTBASE_EXPORT ZTProductArrangement : public ZTEnumWrapper<ZTProductArrangementEnum>
{
public:
    ZTProductArrangement(ZTProductArrangementEnum theValue = ZTProductArrangementNone);
    explicit ZTProductArrangement(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTProductArrangementEnum>* theTable) const override;
};

#endif // ZTPRODUCTARRANGEMENT_H
