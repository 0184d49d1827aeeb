#ifndef ZTFOTOPAPERTYPE_H
#define ZTFOTOPAPERTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

#include <QList>

class ZTArticleClass;

// The photo paper a shipping group prints on; one paper per value.
enum ZTFotoPaperTypeEnum : qint32 {
    ZTFotoPaperTypeNone = 0,
    ZTFotoPaperTypeGlossy = 1,
    ZTFotoPaperTypeMatt = 2,
    ZTFotoPaperTypeSatin = 4,
    ZTFotoPaperTypePearl = 8,
    ZTFotoPaperTypeMetallic = 16,
};

class ZTPRODUCTBASE_EXPORT ZTFotoPaperType : public ZTEnumWrapper<ZTFotoPaperTypeEnum>
{
public:
    ZTFotoPaperType(ZTFotoPaperTypeEnum theValue = ZTFotoPaperTypeNone);
    explicit ZTFotoPaperType(const QString& theText);

    // The papers of a comma-separated list, in their order and each once. Empty entries are
    // skipped; unknown ones too, with one warning for the list. Empty text gives an empty list.
    static QList<ZTFotoPaperType> createFromXTCI(const QString& theText);

    // The usual paper of a class: glossy for prints, matt for everything else, 0 included.
    static ZTFotoPaperType defaultFor(const ZTArticleClass& theClass);

    void fillTable(ZTEnumToStringTable<ZTFotoPaperTypeEnum>* theTable) const override;
};

#endif // ZTFOTOPAPERTYPE_H
