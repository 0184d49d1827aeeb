#ifndef ZTDISTANCEUNIT_H
#define ZTDISTANCEUNIT_H

#include "ZTEnumToStringTable.h"
#include "ztcore_export.h"

// The unit of a length in a document. Not a bit set: a length has exactly one unit. The numbers
// are written into documents, so they never change.
enum ZTDistanceUnitEnum : qint32 {
    ZTDistanceUnitInvalid = 0,
    ZTDistanceUnitPixel = 1,
    ZTDistanceUnitMillimetre = 2,
    ZTDistanceUnitCentimetre = 3,
    ZTDistanceUnitInch = 4,
    ZTDistanceUnitPoint = 5,
};

class ZTCORE_EXPORT ZTDistanceUnit : public ZTEnumWrapper<ZTDistanceUnitEnum>
{
public:
    ZTDistanceUnit(ZTDistanceUnitEnum theValue = ZTDistanceUnitInvalid);
    // Decodes one keyword ("mm", "inch", "2", ...). An unknown keyword warns and gives the
    // millimetre, the unit of nearly every document; an empty text gives the millimetre silently.
    explicit ZTDistanceUnit(const QString& theText);

    // How many base pixels one of this unit is (see ZTDistance). An invalid unit counts as the
    // pixel itself, so that a value passes through unchanged.
    double pixelsPerUnit() const;

    void fillTable(ZTEnumToStringTable<ZTDistanceUnitEnum>* theTable) const override;
};

#endif // ZTDISTANCEUNIT_H
