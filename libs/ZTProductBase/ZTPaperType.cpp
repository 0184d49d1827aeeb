#include "ZTPaperType.h"

#include "ZTKeywordTableFiller.h"

ZTPaperType::ZTPaperType(ZTPaperTypeEnum theValue) : ZTEnumWrapper<ZTPaperTypeEnum>(theValue)
{}

ZTPaperType::ZTPaperType(const QString& theText)
{
    setValue(theText);
}

void ZTPaperType::fillTable(ZTEnumToStringTable<ZTPaperTypeEnum>* theTable) const
{
    // The same text is read as a paper type and as a material type; the definition tells of a
    // keyword that both lack.
    theTable->setTellsUnknownKeywords(false);
    ZTKeywordTableFiller<ZTPaperTypeEnum>(theTable)
        .add("matt", ZTPaperTypeMatt)
        .alias("matte", ZTPaperTypeMatt)
        .add("glossy", ZTPaperTypeGlossy)
        .add("silk", ZTPaperTypeSilk)
        .add("premium_matt", ZTPaperTypePremiumMatt)
        .add("premium_glossy", ZTPaperTypePremiumGlossy)
        .add("recycled", ZTPaperTypeRecycled)
        .add("fine_art", ZTPaperTypeFineArt);
}
