#ifndef ZTMATERIALTYPE_H
#define ZTMATERIALTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

// What wall decor or a picture box is made of, from the attribute "material" of an article's
// type; one material per value. Papers of books and calendars are ZTPaperType, which reads the
// same attribute.
enum ZTMaterialTypeEnum : qint32 {
    ZTMaterialTypeNone = 0,
    ZTMaterialTypePosterPaper = 1,
    ZTMaterialTypeWood = 2,
    ZTMaterialTypeAcrylic = 4,
    ZTMaterialTypeCanvas = 8,
    ZTMaterialTypeAluminium = 16,
    ZTMaterialTypeCardboard = 32,
};

class ZTPRODUCTBASE_EXPORT ZTMaterialType : public ZTEnumWrapper<ZTMaterialTypeEnum>
{
public:
    ZTMaterialType(ZTMaterialTypeEnum theValue = ZTMaterialTypeNone);
    explicit ZTMaterialType(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTMaterialTypeEnum>* theTable) const override;
};

#endif // ZTMATERIALTYPE_H
