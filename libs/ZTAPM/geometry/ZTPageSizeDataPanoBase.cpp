#include "ZTPageSizeDataPanoBase.h"

ZTPageSizeDataPanoBase::ZTPageSizeDataPanoBase() = default;

ZTPageSizeDataPanoBase::ZTPageSizeDataPanoBase(const QSize& thePageSize, const ZTBleedMargin& theBleedMargins)
    : ZTPageSizeData(thePageSize, theBleedMargins)
{}

ZTPageSizeDataPanoBase::ZTPageSizeDataPanoBase(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                                               const ZTArticleClass& theArticleClass,
                                               const ZTPageSizeData& theDefaults)
    : ZTPageSizeData(theElement, theUnit, theArticleClass, theDefaults)
{
    readPanoramaPartWidth(theElement, QStringLiteral("base_width"), theUnit);
}

ZTPageSizeDataPanoBase::ZTPageSizeDataPanoBase(const ZTPageSizeDataPanoBase& other) = default;
ZTPageSizeDataPanoBase::ZTPageSizeDataPanoBase(ZTPageSizeDataPanoBase&& other) noexcept = default;
ZTPageSizeDataPanoBase& ZTPageSizeDataPanoBase::operator=(const ZTPageSizeDataPanoBase& other) = default;
ZTPageSizeDataPanoBase& ZTPageSizeDataPanoBase::operator=(ZTPageSizeDataPanoBase&& other) noexcept = default;
ZTPageSizeDataPanoBase::~ZTPageSizeDataPanoBase() = default;
