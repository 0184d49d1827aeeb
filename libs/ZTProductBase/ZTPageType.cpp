#include "ZTPageType.h"

#include "ZTKeywordTableFiller.h"

ZTPageType::ZTPageType(ZTPageTypeEnum theValue) : ZTEnumWrapper<ZTPageTypeEnum>(theValue)
{}

ZTPageType::ZTPageType(const QString& theText)
{
    setValue(theText);
}

void ZTPageType::fillTable(ZTEnumToStringTable<ZTPageTypeEnum>* theTable) const
{
    ZTKeywordTableFiller<ZTPageTypeEnum>(theTable)
        .add("spine", ZTPageTypeSpine)
        .add("front_flyleaf", ZTPageTypeFrontFlyleaf)
        .add("back_flyleaf", ZTPageTypeBackFlyleaf)
        .add("page", ZTPageTypePage)
        .add("title_page", ZTPageTypeTitlePage)
        .add("cover_front", ZTPageTypeCoverFront)
        .add("cover_back", ZTPageTypeCoverBack)
        .add("cover_inside_front", ZTPageTypeCoverInsideFront)
        .add("cover_inside_back", ZTPageTypeCoverInsideBack)
        .add("cover_spread", ZTPageTypeCoverSpread)
        .add("door_backprint", ZTPageTypeDoorBackPrint)
        .add("jacket_spine", ZTPageTypeJacketSpine)
        .add("slipcase_spine", ZTPageTypeSlipcaseSpine)
        .add("jacket", ZTPageTypeJacket)
        .add("slipcase", ZTPageTypeSlipcase)
        .add("pano_base", ZTPageTypePanoBase)
        .add("pano_wing", ZTPageTypePanoWing)
        .add("door_backprint_page", ZTPageTypeDoorBackPrintPage)
        .add("pano_base_page", ZTPageTypePanoBasePage)
        .add("pano_wing_page", ZTPageTypePanoWingPage);
}
