#include "ZTCropType.h"

#include "ZTKeywordTableFiller.h"

ZTCropType::ZTCropType(ZTCropTypeEnum theValue) : ZTEnumWrapper<ZTCropTypeEnum>(theValue)
{}

ZTCropType::ZTCropType(const QString& theText)
{
    setValue(theText);
}

void ZTCropType::fillTable(ZTEnumToStringTable<ZTCropTypeEnum>* theTable) const
{
    ZTKeywordTableFiller<ZTCropTypeEnum>(theTable)
        .add("standard", ZTCropTypeStandard)
        .add("frame", ZTCropTypeFrame)
        .add("square", ZTCropTypeSquare)
        .add("pano_16_to_9", ZTCropTypePanorama16To9)
        .add("ratio_2_to_3", ZTCropTypeRatio2To3)
        .add("ratio_3_to_4", ZTCropTypeRatio3To4);
}
