#include "ZTDistanceUnit.h"

#include "ZTDistance.h"

ZTDistanceUnit::ZTDistanceUnit(ZTDistanceUnitEnum theValue) : ZTEnumWrapper<ZTDistanceUnitEnum>(theValue)
{}

ZTDistanceUnit::ZTDistanceUnit(const QString& theText)
{
    // One keyword only: the CSV decoding of the wrapper would OR two units into nonsense.
    myValue = decodeOneElement(theText);
}

double ZTDistanceUnit::pixelsPerUnit() const
{
    switch (myValue) {
    case ZTDistanceUnitPixel:
        return 1.0;
    case ZTDistanceUnitMillimetre:
        return ZTDistance::pixelsPerMillimetre;
    case ZTDistanceUnitCentimetre:
        return 10.0 * ZTDistance::pixelsPerMillimetre;
    case ZTDistanceUnitInch:
        return 25.4 * ZTDistance::pixelsPerMillimetre;
    case ZTDistanceUnitPoint:
        return 25.4 * ZTDistance::pixelsPerMillimetre / 72.0;
    case ZTDistanceUnitInvalid:
        break;
    }
    return 1.0;
}

void ZTDistanceUnit::fillTable(ZTEnumToStringTable<ZTDistanceUnitEnum>* theTable) const
{
    // The first keyword of each value is the one that encode() writes.
    theTable->insert(QStringLiteral("px"), ZTDistanceUnitPixel);
    theTable->insert(QStringLiteral("pixel"), ZTDistanceUnitPixel);
    theTable->insert(QStringLiteral("pixels"), ZTDistanceUnitPixel);
    theTable->insert(QStringLiteral("1"), ZTDistanceUnitPixel);
    theTable->insert(QStringLiteral("mm"), ZTDistanceUnitMillimetre);
    theTable->insert(QStringLiteral("millimetre"), ZTDistanceUnitMillimetre);
    theTable->insert(QStringLiteral("millimeter"), ZTDistanceUnitMillimetre);
    theTable->insert(QStringLiteral("2"), ZTDistanceUnitMillimetre);
    theTable->insert(QString(), ZTDistanceUnitMillimetre);
    theTable->insert(QStringLiteral("cm"), ZTDistanceUnitCentimetre);
    theTable->insert(QStringLiteral("centimetre"), ZTDistanceUnitCentimetre);
    theTable->insert(QStringLiteral("centimeter"), ZTDistanceUnitCentimetre);
    theTable->insert(QStringLiteral("3"), ZTDistanceUnitCentimetre);
    theTable->insert(QStringLiteral("in"), ZTDistanceUnitInch);
    theTable->insert(QStringLiteral("inch"), ZTDistanceUnitInch);
    theTable->insert(QStringLiteral("4"), ZTDistanceUnitInch);
    theTable->insert(QStringLiteral("pt"), ZTDistanceUnitPoint);
    theTable->insert(QStringLiteral("point"), ZTDistanceUnitPoint);
    theTable->insert(QStringLiteral("5"), ZTDistanceUnitPoint);
    theTable->setDefaultValue(ZTDistanceUnitMillimetre);
    theTable->setUnknownKeyword(QStringLiteral("DistanceUnit_UNKNOWN"));
}
