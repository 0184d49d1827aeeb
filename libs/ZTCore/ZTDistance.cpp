#include "ZTDistance.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

namespace {

// Clamped first: a double beyond the int range has no int value, and converting it is undefined.
int clampedToInt(double thePixels)
{
    if (std::isnan(thePixels))
        return 0;
    return int(std::clamp(thePixels, double(std::numeric_limits<int>::min()),
                          double(std::numeric_limits<int>::max())));
}

} // namespace

int ZTDistance::roundedPixels() const
{
    return clampedToInt(std::round(myPixels));
}

int ZTDistance::truncatedPixels() const
{
    return clampedToInt(std::trunc(myPixels));
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
