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
    ZTKeywordTableFiller<ZTMaterialTypeEnum>(theTable)
        .add("poster_paper", ZTMaterialTypePosterPaper)
        .add("wood", ZTMaterialTypeWood)
        .add("acrylic", ZTMaterialTypeAcrylic)
        .add("canvas", ZTMaterialTypeCanvas)
        .add("aluminium", ZTMaterialTypeAluminium)
        .alias("aluminum", ZTMaterialTypeAluminium)
        .add("cardboard", ZTMaterialTypeCardboard);
}
