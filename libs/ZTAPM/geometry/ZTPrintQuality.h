#ifndef ZTPRINTQUALITY_H
#define ZTPRINTQUALITY_H

#include "ztapm_export.h"

#include <QSize>

class QDomElement;

// How sharp an article's print is and from which resolution a picture counts as good (green) or
// acceptable (yellow).
class ZTAPM_EXPORT ZTPrintQuality
{
public:
    ZTPrintQuality();
    ZTPrintQuality(int thePrintDPI, int theDPIForGreen, int theDPIForYellow, int theMinimumFontSizePT);
    ZTPrintQuality(const ZTPrintQuality& other);
    ZTPrintQuality(ZTPrintQuality&& other) noexcept;
    ZTPrintQuality& operator=(const ZTPrintQuality& other);
    ZTPrintQuality& operator=(ZTPrintQuality&& other) noexcept;
    virtual ~ZTPrintQuality();

    bool operator==(const ZTPrintQuality& other) const;
    bool operator!=(const ZTPrintQuality& other) const;

    int printDPI() const;
    int dpiForGreen() const;
    int dpiForYellow() const;
    int minimumFontSizePT() const;

    // 2 green, 1 yellow, 0 red; -1 when nothing can be said (no pixels per millimetre).
    int qualityScaleForPixelPerMM(double thePixelPerMM) const;
    // A size in millimetres in printer dots, rounded half away from zero.
    QSize printSizeInPixel(const QSize& theSizeInMM) const;

    // From the article's print_quality child, else its size child, else the defaults.
    static ZTPrintQuality createFromXTCI(const QDomElement& theElement);

private:
    int myPrintDPI = 300;
    int myDPIForGreen = 150;
    int myDPIForYellow = 90;
    int myMinimumFontSizePT = 6;
};

#endif // ZTPRINTQUALITY_H
