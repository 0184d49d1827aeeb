#include "ZTOrientation.h"

#include "ZTKeywordTableFiller.h"

#include <QDomElement>

#include <cmath>

ZTOrientation::ZTOrientation(ZTOrientationEnum theValue) : ZTEnumWrapper<ZTOrientationEnum>(theValue)
{}

ZTOrientation::ZTOrientation(const QString& theText)
{
    setValue(theText);
}

double ZTOrientation::defaultWidthHeightRatio() const
{
    double logSum = 0.0;
    int count = 0;
    for (ZTOrientationEnum bit : splitToBitsSorted()) {
        double ratio = 1.0;
        switch (bit) {
        case ZTOrientationPortrait:
            ratio = 3.0 / 4.0;
            break;
        case ZTOrientationLandscape:
            ratio = 4.0 / 3.0;
            break;
        case ZTOrientationPanorama:
            ratio = 2.0;
            break;
        case ZTOrientationVerticalPanorama:
            ratio = 0.5;
            break;
        default:
            // Square, and bits without a shape, count as square.
            break;
        }
        logSum += std::log(ratio);
        ++count;
    }
    return count == 0 ? 1.0 : std::exp(logSum / count);
}

void ZTOrientation::toTemplates2Format(QDomElement& theElement) const
{
    if (!isNull())
        theElement.setAttribute(QStringLiteral("orientation"), encodeCSV());
}

void ZTOrientation::fillTable(ZTEnumToStringTable<ZTOrientationEnum>* theTable) const
{
    ZTKeywordTableFiller<ZTOrientationEnum>(theTable)
        .add("portrait", ZTOrientationPortrait)
        .add("landscape", ZTOrientationLandscape)
        .add("square", ZTOrientationSquare)
        .add("panorama", ZTOrientationPanorama)
        .add("vertical_panorama", ZTOrientationVerticalPanorama)
        .add("all", ZTOrientationAll);
}
