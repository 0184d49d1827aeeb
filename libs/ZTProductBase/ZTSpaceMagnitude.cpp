#include "ZTSpaceMagnitude.h"

#include "ZTKeywordTableFiller.h"

ZTSpaceMagnitude::ZTSpaceMagnitude(ZTSpaceMagnitudeEnum theValue)
    : ZTEnumWrapper<ZTSpaceMagnitudeEnum>(theValue)
{}

ZTSpaceMagnitude::ZTSpaceMagnitude(const QString& theText)
{
    setValue(theText);
}

ZTSpaceMagnitude ZTSpaceMagnitude::fromSquareCentimeters(int theArea)
{
    // The limits leave a little room above the paper formats, whose areas are not round.
    if (theArea <= 0)
        return ZTSpaceMagnitudeNone;
    if (theArea <= 100)
        return ZTSpaceMagnitudeExtraSmall;
    if (theArea <= 315)
        return ZTSpaceMagnitudeSmall;
    if (theArea <= 630)
        return ZTSpaceMagnitudeMedium;
    if (theArea <= 1250)
        return ZTSpaceMagnitudeLarge;
    if (theArea <= 2500)
        return ZTSpaceMagnitudeExtraLarge;
    return ZTSpaceMagnitudeHuge;
}

void ZTSpaceMagnitude::fillTable(ZTEnumToStringTable<ZTSpaceMagnitudeEnum>* theTable) const
{
    ZTKeywordTableFiller<ZTSpaceMagnitudeEnum>(theTable)
        .add("XS", ZTSpaceMagnitudeExtraSmall)
        .add("S", ZTSpaceMagnitudeSmall)
        .add("M", ZTSpaceMagnitudeMedium)
        .add("L", ZTSpaceMagnitudeLarge)
        .add("XL", ZTSpaceMagnitudeExtraLarge)
        .add("XXL", ZTSpaceMagnitudeHuge);
}
