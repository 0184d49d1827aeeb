#ifndef ZTPAGESIZEDATAPANOWING_H
#define ZTPAGESIZEDATAPANOWING_H

#include "ZTPageSizeData.h"
#include "ztapm_export.h"

// The wing (folded-out part) of a panorama page of a book: the page geometry with the width of the
// attribute "wing_width". Without that attribute the size is -1 by -1, which tells that the
// article can have no panorama pages.
class ZTAPM_EXPORT ZTPageSizeDataPanoWing : public ZTPageSizeData
{
public:
    ZTPageSizeDataPanoWing();
    ZTPageSizeDataPanoWing(const QSize& thePageSize, const ZTBleedMargin& theBleedMargins);
    ZTPageSizeDataPanoWing(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                           const ZTArticleClass& theArticleClass, const ZTPageSizeData& theDefaults);
    ZTPageSizeDataPanoWing(const ZTPageSizeDataPanoWing& other);
    ZTPageSizeDataPanoWing(ZTPageSizeDataPanoWing&& other) noexcept;
    ZTPageSizeDataPanoWing& operator=(const ZTPageSizeDataPanoWing& other);
    ZTPageSizeDataPanoWing& operator=(ZTPageSizeDataPanoWing&& other) noexcept;
    ~ZTPageSizeDataPanoWing() override;
};

#endif // ZTPAGESIZEDATAPANOWING_H
