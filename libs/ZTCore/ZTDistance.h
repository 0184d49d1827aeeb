#ifndef ZTDISTANCE_H
#define ZTDISTANCE_H

#include "ZTDistanceUnit.h"
#include "ztcore_export.h"

#include <QDebug>

// A length, kept as one double in the base unit that the engine calls pixels: exactly 10 pixels
// per millimetre, which is 254 pixels per inch. The base is finer than any print resolution the
// documents describe, so rounding a length to whole pixels never loses a visible amount.
class ZTCORE_EXPORT ZTDistance
{
public:
    static constexpr double pixelsPerMillimetre = 10.0;
    // The longest length a document may give, either way: 1 km. Sizes are added (a page and its
    // strips on both sides) and scaled to print resolutions in int arithmetic, so that single
    // lengths must stay far below the int range; ZTXMLParser::readDistance refuses longer ones.
    static constexpr double maxPixels = 1000.0 * 1000.0 * pixelsPerMillimetre;

    ZTDistance();
    // theValue in theUnit; the unit is converted away at once.
    ZTDistance(double theValue, const ZTDistanceUnit& theUnit);
    ZTDistance(const ZTDistance& other);
    ZTDistance& operator=(const ZTDistance& other);
    virtual ~ZTDistance();

    static ZTDistance fromPixels(double thePixels);
    static ZTDistance fromMillimetres(double theMillimetres);
    static ZTDistance fromValue(double theValue, const ZTDistanceUnit& theUnit);

    // The length in theUnit.
    virtual double value(const ZTDistanceUnit& theUnit) const;
    double pixels() const { return myPixels; }
    // The base value rounded to whole pixels, halves away from zero; beyond the int range the
    // nearest end of it.
    int roundedPixels() const;
    // The base value cut to whole pixels, towards zero; beyond the int range the nearest end.
    int truncatedPixels() const;
    void setValue(double theValue, const ZTDistanceUnit& theUnit);

    virtual bool operator==(const ZTDistance& other) const;
    virtual bool operator!=(const ZTDistance& other) const;
    virtual bool operator<(const ZTDistance& other) const;
    ZTDistance operator+(const ZTDistance& other) const;
    ZTDistance operator-(const ZTDistance& other) const;
    ZTDistance operator*(double theFactor) const;

private:
    double myPixels = 0.0;
};

ZTCORE_EXPORT QDebug operator<<(QDebug debug, const ZTDistance& theDistance);

#endif // ZTDISTANCE_H
