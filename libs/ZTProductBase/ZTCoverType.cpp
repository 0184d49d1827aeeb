#include "ZTCoverType.h"

#include "ZTKeywordTableFiller.h"

ZTCoverType::ZTCoverType(ZTCoverTypeEnum theValue) : ZTEnumWrapper<ZTCoverTypeEnum>(theValue)
{}

ZTCoverType::ZTCoverType(const QString& theText)
{
    setValue(theText);
}

void ZTCoverType::fillTable(ZTEnumToStringTable<ZTCoverTypeEnum>* theTable) const
{
    ZTKeywordTableFiller<ZTCoverTypeEnum>(theTable)
        .add("softcover", ZTCoverTypeSoftcover)
        .add("hardcover", ZTCoverTypeHardcover)
        .add("fabric", ZTCoverTypeFabric)
        .add("wire_bound", ZTCoverTypeWireBound)
        .add("stapled", ZTCoverTypeStapled)
        .add("calendar_monthly", ZTCoverTypeCalendarMonthly)
        .add("calendar_twice_monthly", ZTCoverTypeCalendarTwiceMonthly)
        .add("calendar_single_sheet", ZTCoverTypeCalendarSingleSheet)
        .add("calendar_two_sheets", ZTCoverTypeCalendarTwoSheets)
        .add("calendar_weekly", ZTCoverTypeCalendarWeekly)
        .add("layflat", ZTCoverTypeLayFlat)
        .add("stretcher_frame", ZTCoverTypeStretcherFrame)
        .add("puzzle", ZTCoverTypePuzzle)
        .add("gallery_frame", ZTCoverTypeGalleryFrame)
        .add("foam_board", ZTCoverTypeFoamBoard)
        .add("magnet", ZTCoverTypeMagnet)
        .add("framed_print", ZTCoverTypeFramedPrint)
        .add("wallpaper", ZTCoverTypeWallpaper)
        .add("backlit", ZTCoverTypeBacklit)
        .add("photo_tiles", ZTCoverTypePhotoTiles)
        .add("poster_hanger", ZTCoverTypePosterHanger)
        .add("wooden_print", ZTCoverTypeWoodenPrint)
        .add("cushion", ZTCoverTypeCushion)
        .add("blanket", ZTCoverTypeBlanket)
        .add("shirt", ZTCoverTypeShirt)
        .add("wall_hanging", ZTCoverTypeWallHanging)
        .add("continuous", ZTCoverTypeContinuous);
}
