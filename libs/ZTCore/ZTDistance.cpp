#include "ZTDistance.h"

#include <cmath>

ZTDistance::ZTDistance() = default;

ZTDistance::ZTDistance(double theValue, const ZTDistanceUnit& theUnit)
    : myPixels(theValue * theUnit.pixelsPerUnit())
{}

ZTDistance::ZTDistance(const ZTDistance& other) = default;

ZTDistance& ZTDistance::operator=(const ZTDistance& other) = default;

ZTDistance::~ZTDistance() = default;

ZTDistance ZTDistance::fromPixels(double thePixels)
{
    return ZTDistance(thePixels, ZTDistanceUnit(ZTDistanceUnitPixel));
}

ZTDistance ZTDistance::fromMillimetres(double theMillimetres)
{
    return ZTDistance(theMillimetres, ZTDistanceUnit(ZTDistanceUnitMillimetre));
}

ZTDistance ZTDistance::fromValue(double theValue, const ZTDistanceUnit& theUnit)
{
    return ZTDistance(theValue, theUnit);
}

double ZTDistance::value(const ZTDistanceUnit& theUnit) const
{
    return myPixels / theUnit.pixelsPerUnit();
}

int ZTDistance::roundedPixels() const
{
    return int(std::lround(myPixels));
}

void ZTDistance::setValue(double theValue, const ZTDistanceUnit& theUnit)
{
    myPixels = theValue * theUnit.pixelsPerUnit();
}

bool ZTDistance::operator==(const ZTDistance& other) const
{
    return myPixels == other.myPixels;
}

bool ZTDistance::operator!=(const ZTDistance& other) const
{
    return myPixels != other.myPixels;
}

bool ZTDistance::operator<(const ZTDistance& other) const
{
    return myPixels < other.myPixels;
}

ZTDistance ZTDistance::operator+(const ZTDistance& other) const
{
    return fromPixels(myPixels + other.myPixels);
}

ZTDistance ZTDistance::operator-(const ZTDistance& other) const
{
    return fromPixels(myPixels - other.myPixels);
}

ZTDistance ZTDistance::operator*(double theFactor) const
{
    return fromPixels(myPixels * theFactor);
}

QDebug operator<<(QDebug debug, const ZTDistance& theDistance)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTDistance(" << theDistance.pixels()
                    << " px = " << theDistance.value(ZTDistanceUnit(ZTDistanceUnitMillimetre)) << " mm)";
    return debug;
}
