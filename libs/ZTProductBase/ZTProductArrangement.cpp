#include "ZTProductArrangement.h"

#include "ZTKeywordTableFiller.h"

ZTProductArrangement::ZTProductArrangement(ZTProductArrangementEnum theValue)
    : ZTEnumWrapper<ZTProductArrangementEnum>(theValue)
{}

ZTProductArrangement::ZTProductArrangement(const QString& theText)
{
    setValue(theText);
}

void ZTProductArrangement::fillTable(ZTEnumToStringTable<ZTProductArrangementEnum>* theTable) const
{
    ZTKeywordTableFiller<ZTProductArrangementEnum>(theTable)
        .add("prints", ZTProductArrangementPrints)
        .add("single", ZTProductArrangementSingle)
        .add("folded", ZTProductArrangementFolded)
        .add("calendar", ZTProductArrangementCalendar)
        .add("book", ZTProductArrangementBook);
}
