#ifndef ZTPAGESIZEDATA_H
#define ZTPAGESIZEDATA_H

#include "ZTBleedMargin.h"
#include "ZTCropType.h"
#include "ztapm_export.h"

#include <QHash>
#include <QSet>
#include <QSize>
#include <QStringList>

#include <optional>

class QDomElement;
class ZTArticleClass;
class ZTDistanceUnit;

// The geometry of one part of an article (page, cover, panorama page) in pixels: the page size
// with the strips the product adds outside, the bleed, and for prints the length of each crop
// form.
class ZTAPM_EXPORT ZTPageSizeData
{
public:
    ZTPageSizeData();
    ZTPageSizeData(const QSize& thePageSize, const ZTBleedMargin& theBleedMargins);
    // Sizes, extra strips and bleed come in pairs; a pair that is not complete in theElement is
    // taken from theDefaults.
    ZTPageSizeData(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                   const ZTArticleClass& theArticleClass, const ZTPageSizeData& theDefaults);
    ZTPageSizeData(const ZTPageSizeData& other);
    ZTPageSizeData(ZTPageSizeData&& other) noexcept;
    ZTPageSizeData& operator=(const ZTPageSizeData& other);
    ZTPageSizeData& operator=(ZTPageSizeData&& other) noexcept;
    virtual ~ZTPageSizeData();

    bool operator==(const ZTPageSizeData& other) const;
    bool operator!=(const ZTPageSizeData& other) const;

    QSize pageSizeInPixel() const;
    void setPageSizeInPixel(const QSize& theSize);
    QSize extraPageSizeInPixel() const;
    void setExtraPageSizeInPixel(const QSize& theSize);
    ZTBleedMargin pageBleedMarginsInPixel() const;
    void setPageBleedMarginsInPixel(const ZTBleedMargin& theBleedMargins);

    QSize pageSizeInMM() const;
    // The crop length as width (0 if the crop form is not offered), the page height as height.
    QSize pageSizeInMM(const ZTCropType& theCropType) const;
    int length(const ZTCropType& theCropType) const;
    QSet<ZTCropType> supportedCropTypes() const;

    int maxEdgeLengthInPixels() const;
    int maxPageWidthInPixel() const;
    bool allowsVariableWidth() const;

    // Not clamped: a reduction larger than the size leaves it negative.
    void reducePageSize(const QSize& theReduction);

    // Longer side over shorter side; the longer side itself if the shorter is 0.
    double printSizeRatio() const;
    // Which of 2:3 and 3:4 the size is nearer to; a tie counts as 2:3.
    bool printSizeIs2By3() const;
    bool printSizeIs3By4() const;

    // The length attributes of a size element that are there but hold no length, or one longer
    // than ZTDistance::maxPixels, each as name="value". Such a length reads as 0, like any
    // malformed one; the reader of the article reports them.
    static QStringList badLengths(const QDomElement& theElement, const ZTDistanceUnit& theUnit);

protected:
    static int readPixels(const QDomElement& theElement, const QString& theName,
                          const ZTDistanceUnit& theUnit, double theDefault);
    // Both lengths of a pair, in pixels; nothing unless the element gives both.
    static std::optional<QSize> readPixelPair(const QDomElement& theElement, const QString& theFirst,
                                              const QString& theSecond, const ZTDistanceUnit& theUnit);
    void readPageSize(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                      const ZTPageSizeData& theDefaults);
    void readExtraPageSize(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                           const ZTPageSizeData& theDefaults);
    void readBleedMargins(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                          const ZTPageSizeData& theDefaults);
    void readSupportedCropTypes(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                                const ZTArticleClass& theArticleClass);
    // The page width replaced by the named attribute; -1 by -1 without it.
    void readPanoramaPartWidth(const QDomElement& theElement, const QString& theName,
                               const ZTDistanceUnit& theUnit);

private:
    QSize myPageSize{0, 0};
    QSize myExtraPageSize{0, 0};
    ZTBleedMargin myBleedMargins;
    bool myAllowsVariableWidth = false;
    int myMaxWidth = 0;
    QHash<ZTCropType, int> myCropTypeLengths;
};

#endif // ZTPAGESIZEDATA_H
