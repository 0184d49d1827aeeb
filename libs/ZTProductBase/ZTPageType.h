#ifndef ZTPAGETYPE_H
#define ZTPAGETYPE_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

// The kind of a page of a product, which decides its size; a bit set, tested with masks. A few
// bits qualify the content page: a door back print is "page, door_backprint" (1032), the parts
// of a panorama page are "page, pano_base" and "page, pano_wing".
enum ZTPageTypeEnum : qint32 {
    ZTPageTypeNone = 0,
    ZTPageTypeSpine = 0x1,
    ZTPageTypeFrontFlyleaf = 0x2,
    ZTPageTypeBackFlyleaf = 0x4,
    ZTPageTypePage = 0x8,
    ZTPageTypeTitlePage = 0x10,
    ZTPageTypeCoverFront = 0x20,
    ZTPageTypeCoverBack = 0x40,
    ZTPageTypeCoverInsideFront = 0x80,
    ZTPageTypeCoverInsideBack = 0x100,
    // Back, spine and front as one picture.
    ZTPageTypeCoverSpread = 0x200,
    ZTPageTypeDoorBackPrint = 0x400,
    ZTPageTypeJacketSpine = 0x10000,
    ZTPageTypeSlipcaseSpine = 0x20000,
    ZTPageTypeJacket = 0x40000,
    ZTPageTypeSlipcase = 0x80000,
    ZTPageTypePanoBase = 0x200000,
    ZTPageTypePanoWing = 0x400000,

    ZTPageTypeDoorBackPrintPage = ZTPageTypePage | ZTPageTypeDoorBackPrint,
    ZTPageTypePanoBasePage = ZTPageTypePage | ZTPageTypePanoBase,
    ZTPageTypePanoWingPage = ZTPageTypePage | ZTPageTypePanoWing,
    // Pages that take the spine's width, and pages that take the cover's size.
    ZTPageTypeAllSpines = ZTPageTypeSpine | ZTPageTypeJacketSpine | ZTPageTypeSlipcaseSpine,
    ZTPageTypeAllCovers = 0xf03e1,
};

class ZTPRODUCTBASE_EXPORT ZTPageType : public ZTEnumWrapper<ZTPageTypeEnum>
{
public:
    ZTPageType(ZTPageTypeEnum theValue = ZTPageTypeNone);
    explicit ZTPageType(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTPageTypeEnum>* theTable) const override;
};

#endif // ZTPAGETYPE_H
