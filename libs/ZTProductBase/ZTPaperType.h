#ifndef ZTPAPERTYPE_H
#define ZTPAPERTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

// The paper of a book, calendar or card, from the attribute "material" of an article's type. The
// same attribute names the material of wall decor (ZTMaterialType); the two vocabularies have
// neither keywords nor values in common, so a text means something in at most one of them.
enum ZTPaperTypeEnum : qint32 {
    ZTPaperTypeNone = 0,
    ZTPaperTypeMatt = 0x100,
    ZTPaperTypeGlossy = 0x200,
    ZTPaperTypeSilk = 0x400,
    ZTPaperTypePremiumMatt = 0x800,
    ZTPaperTypePremiumGlossy = 0x1000,
    ZTPaperTypeRecycled = 0x2000,
    ZTPaperTypeFineArt = 0x4000,
};

class ZTPRODUCTBASE_EXPORT ZTPaperType : public ZTEnumWrapper<ZTPaperTypeEnum>
{
public:
    ZTPaperType(ZTPaperTypeEnum theValue = ZTPaperTypeNone);
    explicit ZTPaperType(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTPaperTypeEnum>* theTable) const override;
};

#endif // ZTPAPERTYPE_H
