#include "ZTPageSizeDataPanoWing.h"

ZTPageSizeDataPanoWing::ZTPageSizeDataPanoWing() = default;

ZTPageSizeDataPanoWing::ZTPageSizeDataPanoWing(const QSize& thePageSize, const ZTBleedMargin& theBleedMargins)
    : ZTPageSizeData(thePageSize, theBleedMargins)
{}

ZTPageSizeDataPanoWing::ZTPageSizeDataPanoWing(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                                               const ZTArticleClass& theArticleClass,
                                               const ZTPageSizeData& theDefaults)
    : ZTPageSizeData(theElement, theUnit, theArticleClass, theDefaults)
{
    readPanoramaPartWidth(theElement, QStringLiteral("wing_width"), theUnit);
}

ZTPageSizeDataPanoWing::ZTPageSizeDataPanoWing(const ZTPageSizeDataPanoWing& other) = default;
ZTPageSizeDataPanoWing::ZTPageSizeDataPanoWing(ZTPageSizeDataPanoWing&& other) noexcept = default;
ZTPageSizeDataPanoWing& ZTPageSizeDataPanoWing::operator=(const ZTPageSizeDataPanoWing& other) = default;
ZTPageSizeDataPanoWing& ZTPageSizeDataPanoWing::operator=(ZTPageSizeDataPanoWing&& other) noexcept = default;
ZTPageSizeDataPanoWing::~ZTPageSizeDataPanoWing() = default;
