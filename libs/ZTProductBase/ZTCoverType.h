#ifndef ZTCOVERTYPE_H
#define ZTCOVERTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

// How a product is made up: the cover of a book, the sheet count of a calendar, the mounting of
// wall decor, the form of a gift. A bit set of 32 unsigned bits, so that the highest bit is a bit
// like any other.
enum ZTCoverTypeEnum : quint32 {
    ZTCoverTypeNone = 0,
    ZTCoverTypeSoftcover = 0x1,
    ZTCoverTypeHardcover = 0x2,
    // Fabric or leather over board, without a printed cover.
    ZTCoverTypeFabric = 0x4,
    ZTCoverTypeWireBound = 0x8,
    ZTCoverTypeStapled = 0x10,
    // Calendars by their sheets: 13 (monthly), 25 (twice a month), 1, 2 and 53 (weekly).
    ZTCoverTypeCalendarMonthly = 0x20,
    ZTCoverTypeCalendarTwiceMonthly = 0x40,
    ZTCoverTypeCalendarSingleSheet = 0x80,
    ZTCoverTypeCalendarTwoSheets = 0x100,
    ZTCoverTypeCalendarWeekly = 0x200,
    // Pages that open flat, printed across the fold.
    ZTCoverTypeLayFlat = 0x400,
    ZTCoverTypeStretcherFrame = 0x800,
    ZTCoverTypePuzzle = 0x1000,
    ZTCoverTypeGalleryFrame = 0x2000,
    ZTCoverTypeFoamBoard = 0x4000,
    ZTCoverTypeMagnet = 0x8000,
    ZTCoverTypeFramedPrint = 0x10000,
    ZTCoverTypeWallpaper = 0x20000,
    ZTCoverTypeBacklit = 0x40000,
    ZTCoverTypePhotoTiles = 0x80000,
    ZTCoverTypePosterHanger = 0x100000,
    ZTCoverTypeWoodenPrint = 0x200000,
    ZTCoverTypeCushion = 0x400000,
    ZTCoverTypeBlanket = 0x800000,
    ZTCoverTypeShirt = 0x1000000,
    ZTCoverTypeWallHanging = 0x20000000,
    // The sheets of a calendar printed as one picture across the binding.
    ZTCoverTypeContinuous = 0x80000000,
};

class ZTPRODUCTBASE_EXPORT ZTCoverType : public ZTEnumWrapper<ZTCoverTypeEnum>
{
public:
    ZTCoverType(ZTCoverTypeEnum theValue = ZTCoverTypeNone);
    explicit ZTCoverType(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTCoverTypeEnum>* theTable) const override;
};

#endif // ZTCOVERTYPE_H
