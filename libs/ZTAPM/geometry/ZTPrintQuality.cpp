#include "ZTPrintQuality.h"

#include "ZTXMLParser.h"

#include <QDomElement>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr double mmPerInch = 25.4;
constexpr int defaultPrintDPI = 300;
constexpr int defaultDPIForGreen = 150;
constexpr int defaultDPIForYellow = 90;
constexpr int defaultMinimumFontSizePT = 6;
} // namespace

ZTPrintQuality::ZTPrintQuality() = default;

ZTPrintQuality::ZTPrintQuality(int thePrintDPI, int theDPIForGreen, int theDPIForYellow,
                               int theMinimumFontSizePT)
    : myPrintDPI(thePrintDPI)
    , myDPIForGreen(theDPIForGreen)
    , myDPIForYellow(theDPIForYellow)
    , myMinimumFontSizePT(theMinimumFontSizePT)
{}

ZTPrintQuality::ZTPrintQuality(const ZTPrintQuality& other) = default;
ZTPrintQuality::ZTPrintQuality(ZTPrintQuality&& other) noexcept = default;
ZTPrintQuality& ZTPrintQuality::operator=(const ZTPrintQuality& other) = default;
ZTPrintQuality& ZTPrintQuality::operator=(ZTPrintQuality&& other) noexcept = default;
ZTPrintQuality::~ZTPrintQuality() = default;

bool ZTPrintQuality::operator==(const ZTPrintQuality& other) const
{
    return myPrintDPI == other.myPrintDPI && myDPIForGreen == other.myDPIForGreen &&
           myDPIForYellow == other.myDPIForYellow && myMinimumFontSizePT == other.myMinimumFontSizePT;
}

bool ZTPrintQuality::operator!=(const ZTPrintQuality& other) const
{
    return !(*this == other);
}

int ZTPrintQuality::printDPI() const
{
    return myPrintDPI;
}

int ZTPrintQuality::dpiForGreen() const
{
    return myDPIForGreen;
}

int ZTPrintQuality::dpiForYellow() const
{
    return myDPIForYellow;
}

int ZTPrintQuality::minimumFontSizePT() const
{
    return myMinimumFontSizePT;
}

int ZTPrintQuality::qualityScaleForPixelPerMM(double thePixelPerMM) const
{
    if (thePixelPerMM <= 0.0)
        return -1;
    // Multiplied, never divided: a resolution of exactly the threshold must reach it.
    const double dpi = mmPerInch * thePixelPerMM;
    if (dpi >= double(myDPIForGreen))
        return 2;
    if (dpi >= double(myDPIForYellow))
        return 1;
    return 0;
}

QSize ZTPrintQuality::printSizeInPixel(const QSize& theSizeInMM) const
{
    const double factor = double(myPrintDPI) / mmPerInch;
    // A resolution from the document may be absurd; the size then ends at the edge of the int
    // range instead of converting a double that no int holds.
    const auto pixels = [factor](int theMillimetres) {
        return int(std::clamp(std::round(theMillimetres * factor), double(std::numeric_limits<int>::min()),
                              double(std::numeric_limits<int>::max())));
    };
    return QSize(pixels(theSizeInMM.width()), pixels(theSizeInMM.height()));
}

ZTPrintQuality ZTPrintQuality::createFromXTCI(const QDomElement& theElement)
{
    // The two places name the font attribute differently.
    QDomElement source = theElement.firstChildElement(QStringLiteral("print_quality"));
    QString fontAttribute = QStringLiteral("pt_minimum_fontsize");
    if (source.isNull()) {
        source = theElement.firstChildElement(QStringLiteral("size"));
        fontAttribute = QStringLiteral("minimum_fontsize");
    }
    if (source.isNull())
        return ZTPrintQuality();
    return ZTPrintQuality(
        ZTXMLParser::intAttribute(source, QStringLiteral("dpi"), defaultPrintDPI),
        ZTXMLParser::intAttribute(source, QStringLiteral("dpi_green"), defaultDPIForGreen),
        ZTXMLParser::intAttribute(source, QStringLiteral("dpi_yellow"), defaultDPIForYellow),
        ZTXMLParser::intAttribute(source, fontAttribute, defaultMinimumFontSizePT));
}
