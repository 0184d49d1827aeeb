#ifndef ZTPAGESIZEDATAPANOBASE_H
#define ZTPAGESIZEDATAPANOBASE_H

#include "ZTPageSizeData.h"
#include "ztapm_export.h"

// The base (middle part) of a panorama page of a book: the page geometry with the width of the
// attribute "base_width". Without that attribute the size is -1 by -1, which tells that the
// article can have no panorama pages.
class ZTAPM_EXPORT ZTPageSizeDataPanoBase : public ZTPageSizeData
{
public:
    ZTPageSizeDataPanoBase();
    ZTPageSizeDataPanoBase(const QSize& thePageSize, const ZTBleedMargin& theBleedMargins);
    ZTPageSizeDataPanoBase(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                           const ZTArticleClass& theArticleClass, const ZTPageSizeData& theDefaults);
    ZTPageSizeDataPanoBase(const ZTPageSizeDataPanoBase& other);
    ZTPageSizeDataPanoBase(ZTPageSizeDataPanoBase&& other) noexcept;
    ZTPageSizeDataPanoBase& operator=(const ZTPageSizeDataPanoBase& other);
    ZTPageSizeDataPanoBase& operator=(ZTPageSizeDataPanoBase&& other) noexcept;
    ~ZTPageSizeDataPanoBase() override;
};

#endif // ZTPAGESIZEDATAPANOBASE_H
