#ifndef ZTSPACEMAGNITUDE_H
#define ZTSPACEMAGNITUDE_H

#include "ZTEnumToStringTable.h"
#include "ztproductbase_export.h"

// The size class of a printed area, from an address label to a wall. The values grow with the
// size, so that two classes compare as their values; 0 is an unknown size (no minimum in a
// restriction). Each is one bit, which keeps the keyword lists of logs readable.
enum ZTSpaceMagnitudeEnum : qint32 {
    ZTSpaceMagnitudeNone = 0,
    // Up to 100 cm², about 10 x 10 cm.
    ZTSpaceMagnitudeExtraSmall = 1,
    // Up to 315 cm², about A5.
    ZTSpaceMagnitudeSmall = 2,
    // Up to 630 cm², about A4.
    ZTSpaceMagnitudeMedium = 4,
    // Up to 1250 cm², about A3.
    ZTSpaceMagnitudeLarge = 8,
    // Up to 2500 cm², about A2.
    ZTSpaceMagnitudeExtraLarge = 16,
    // Above that.
    ZTSpaceMagnitudeHuge = 32,
};

class ZTPRODUCTBASE_EXPORT ZTSpaceMagnitude : public ZTEnumWrapper<ZTSpaceMagnitudeEnum>
{
public:
    ZTSpaceMagnitude(ZTSpaceMagnitudeEnum theValue = ZTSpaceMagnitudeNone);
    explicit ZTSpaceMagnitude(const QString& theText);

    // The class of an area; 0 for an area of 0 or below.
    static ZTSpaceMagnitude fromSquareCentimeters(int theArea);

    void fillTable(ZTEnumToStringTable<ZTSpaceMagnitudeEnum>* theTable) const override;
};

#endif // ZTSPACEMAGNITUDE_H
