#include "ZTMaterialType.h"

#include "ZTKeywordTableFiller.h"

ZTMaterialType::ZTMaterialType(ZTMaterialTypeEnum theValue) : ZTEnumWrapper<ZTMaterialTypeEnum>(theValue)
{}

ZTMaterialType::ZTMaterialType(const QString& theText)
{
    setValue(theText);
}

void ZTMaterialType::fillTable(ZTEnumToStringTable<ZTMaterialTypeEnum>* theTable) const
{
    // The same text is read as a paper type and as a material type; the definition tells of a
    // keyword that both lack.
    theTable->setTellsUnknownKeywords(false);
    ZTKeywordTableFiller<ZTMaterialTypeEnum>(theTable)
        .add("poster_paper", ZTMaterialTypePosterPaper)
        .add("wood", ZTMaterialTypeWood)
        .add("acrylic", ZTMaterialTypeAcrylic)
        .add("canvas", ZTMaterialTypeCanvas)
        .add("aluminium", ZTMaterialTypeAluminium)
        .alias("aluminum", ZTMaterialTypeAluminium)
        .add("cardboard", ZTMaterialTypeCardboard);
}
