#ifndef ZTCROPTYPE_H
#define ZTCROPTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

// The crop form of a photo print: how a picture is cut to the paper. A print size offers one or
// more of them, each with its own print length.
enum ZTCropTypeEnum : qint32 {
    ZTCropTypeNone = 0,
    // The picture fills the paper at its full, possibly variable, length.
    ZTCropTypeStandard = 1,
    // The picture sits inside a white frame on the paper.
    ZTCropTypeFrame = 2,
    ZTCropTypeSquare = 4,
    ZTCropTypePanorama16To9 = 8,
    ZTCropTypeRatio2To3 = 16,
    ZTCropTypeRatio3To4 = 32,
};

class ZTPRODUCTBASE_EXPORT ZTCropType : public ZTEnumWrapper<ZTCropTypeEnum>
{
public:
    ZTCropType(ZTCropTypeEnum theValue = ZTCropTypeNone);
    explicit ZTCropType(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTCropTypeEnum>* theTable) const override;
};

#endif // ZTCROPTYPE_H
