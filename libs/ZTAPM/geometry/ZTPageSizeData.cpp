#include "ZTPageSizeData.h"

#include "ZTArticleClass.h"
#include "ZTDistance.h"
#include "ZTXMLParser.h"

#include <QDomElement>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

// Only the three print classes have crop forms.
constexpr ZTArticleClassEnum printClasses =
    ZTArticleClassEnum(ZTArticleClassPrints | ZTArticleClassPremiumPrints | ZTArticleClassEnlargements);

int roundedMillimetres(int thePixels)
{
    return int(
        std::lround(ZTDistance::fromPixels(thePixels).value(ZTDistanceUnit(ZTDistanceUnitMillimetre))));
}

bool hasBoth(const QDomElement& theElement, const QString& theFirst, const QString& theSecond)
{
    return theElement.hasAttribute(theFirst) && theElement.hasAttribute(theSecond);
}

} // namespace

ZTPageSizeData::ZTPageSizeData() = default;

ZTPageSizeData::ZTPageSizeData(const QSize& thePageSize, const ZTBleedMargin& theBleedMargins)
    : myPageSize(thePageSize), myBleedMargins(theBleedMargins)
{}

ZTPageSizeData::ZTPageSizeData(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                               const ZTArticleClass& theArticleClass, const ZTPageSizeData& theDefaults)
{
    // Each step relies on the one before: the page size includes the extra strips, and the crop
    // forms look at the finished page size.
    readExtraPageSize(theElement, theUnit, theDefaults);
    readPageSize(theElement, theUnit, theDefaults);
    readBleedMargins(theElement, theUnit, theDefaults);
    myAllowsVariableWidth =
        ZTXMLParser::boolAttribute(theElement, QStringLiteral("variable_length_allowed"), false);
    myMaxWidth = readPixels(theElement, QStringLiteral("max_width"), theUnit, 0.0);
    readSupportedCropTypes(theElement, theUnit, theArticleClass);
}

ZTPageSizeData::ZTPageSizeData(const ZTPageSizeData& other) = default;
ZTPageSizeData::ZTPageSizeData(ZTPageSizeData&& other) noexcept = default;
ZTPageSizeData& ZTPageSizeData::operator=(const ZTPageSizeData& other) = default;
ZTPageSizeData& ZTPageSizeData::operator=(ZTPageSizeData&& other) noexcept = default;
ZTPageSizeData::~ZTPageSizeData() = default;

bool ZTPageSizeData::operator==(const ZTPageSizeData& other) const
{
    return myPageSize == other.myPageSize && myExtraPageSize == other.myExtraPageSize &&
           myBleedMargins == other.myBleedMargins && myAllowsVariableWidth == other.myAllowsVariableWidth &&
           myMaxWidth == other.myMaxWidth && myCropTypeLengths == other.myCropTypeLengths;
}

bool ZTPageSizeData::operator!=(const ZTPageSizeData& other) const
{
    return !(*this == other);
}

QSize ZTPageSizeData::pageSizeInPixel() const
{
    return myPageSize;
}

void ZTPageSizeData::setPageSizeInPixel(const QSize& theSize)
{
    myPageSize = theSize;
}

QSize ZTPageSizeData::extraPageSizeInPixel() const
{
    return myExtraPageSize;
}

void ZTPageSizeData::setExtraPageSizeInPixel(const QSize& theSize)
{
    myExtraPageSize = theSize;
}

ZTBleedMargin ZTPageSizeData::pageBleedMarginsInPixel() const
{
    return myBleedMargins;
}

void ZTPageSizeData::setPageBleedMarginsInPixel(const ZTBleedMargin& theBleedMargins)
{
    myBleedMargins = theBleedMargins;
}

QSize ZTPageSizeData::pageSizeInMM() const
{
    return QSize(roundedMillimetres(myPageSize.width()), roundedMillimetres(myPageSize.height()));
}

QSize ZTPageSizeData::pageSizeInMM(const ZTCropType& theCropType) const
{
    return QSize(roundedMillimetres(length(theCropType)), roundedMillimetres(myPageSize.height()));
}

int ZTPageSizeData::length(const ZTCropType& theCropType) const
{
    return myCropTypeLengths.value(theCropType, 0);
}

QSet<ZTCropType> ZTPageSizeData::supportedCropTypes() const
{
    QSet<ZTCropType> result;
    result.reserve(myCropTypeLengths.size());
    for (auto it = myCropTypeLengths.cbegin(); it != myCropTypeLengths.cend(); ++it)
        result.insert(it.key());
    return result;
}

int ZTPageSizeData::maxEdgeLengthInPixels() const
{
    return std::max(myPageSize.width(), myPageSize.height());
}

int ZTPageSizeData::maxPageWidthInPixel() const
{
    return std::max(maxEdgeLengthInPixels(), myMaxWidth);
}

bool ZTPageSizeData::allowsVariableWidth() const
{
    return myAllowsVariableWidth;
}

void ZTPageSizeData::reducePageSize(const QSize& theReduction)
{
    myPageSize -= theReduction;
}

double ZTPageSizeData::printSizeRatio() const
{
    const int longer = std::max(myPageSize.width(), myPageSize.height());
    const int shorter = std::min(myPageSize.width(), myPageSize.height());
    if (shorter == 0)
        return double(longer);
    return double(longer) / double(shorter);
}

bool ZTPageSizeData::printSizeIs2By3() const
{
    const double ratio = printSizeRatio();
    return std::abs(ratio - 4.0 / 3.0) >= std::abs(ratio - 3.0 / 2.0);
}

bool ZTPageSizeData::printSizeIs3By4() const
{
    const double ratio = printSizeRatio();
    return std::abs(ratio - 3.0 / 2.0) > std::abs(ratio - 4.0 / 3.0);
}

QStringList ZTPageSizeData::badLengths(const QDomElement& theElement, const ZTDistanceUnit& theUnit)
{
    static const QStringList names{
        QStringLiteral("extra_width_left_right"),
        QStringLiteral("extra_height_top_bottom"),
        QStringLiteral("width"),
        QStringLiteral("height"),
        QStringLiteral("bleed_left_right"),
        QStringLiteral("bleed_top_bottom"),
        QStringLiteral("max_width"),
        QStringLiteral("frame_size_width"),
        QStringLiteral("pano_16_to_9_width"),
        QStringLiteral("base_width"),
        QStringLiteral("wing_width"),
    };
    QStringList result;
    for (const QString& name : names) {
        // The parser gives its default for a bad value without a word; two defaults tell.
        if (theElement.hasAttribute(name) && ZTXMLParser::readDistance(theElement, name, 0.0, theUnit) !=
                                                 ZTXMLParser::readDistance(theElement, name, -1.0, theUnit))
            result.append(QStringLiteral("%1=\"%2\"").arg(name, theElement.attribute(name)));
    }
    return result;
}

int ZTPageSizeData::readPixels(const QDomElement& theElement, const QString& theName,
                               const ZTDistanceUnit& theUnit, double theDefault)
{
    return ZTXMLParser::readDistance(theElement, theName, theDefault, theUnit).roundedPixels();
}

std::optional<QSize> ZTPageSizeData::readPixelPair(const QDomElement& theElement, const QString& theFirst,
                                                   const QString& theSecond, const ZTDistanceUnit& theUnit)
{
    if (!hasBoth(theElement, theFirst, theSecond))
        return std::nullopt;
    return QSize(readPixels(theElement, theFirst, theUnit, 0.0),
                 readPixels(theElement, theSecond, theUnit, 0.0));
}

void ZTPageSizeData::readExtraPageSize(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                                       const ZTPageSizeData& theDefaults)
{
    myExtraPageSize = readPixelPair(theElement, QStringLiteral("extra_width_left_right"),
                                    QStringLiteral("extra_height_top_bottom"), theUnit)
                          .value_or(theDefaults.myExtraPageSize);
}

void ZTPageSizeData::readPageSize(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                                  const ZTPageSizeData& theDefaults)
{
    const std::optional<QSize> size =
        readPixelPair(theElement, QStringLiteral("width"), QStringLiteral("height"), theUnit);
    // The extra strips lie on both sides; the defaults' size contains its strips already.
    myPageSize = size ? *size + 2 * myExtraPageSize : theDefaults.myPageSize;
}

void ZTPageSizeData::readBleedMargins(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                                      const ZTPageSizeData& theDefaults)
{
    const std::optional<QSize> margins = readPixelPair(theElement, QStringLiteral("bleed_left_right"),
                                                       QStringLiteral("bleed_top_bottom"), theUnit);
    myBleedMargins =
        margins ? ZTBleedMargin(margins->width(), margins->height()) : theDefaults.myBleedMargins;
}

void ZTPageSizeData::readSupportedCropTypes(const QDomElement& theElement, const ZTDistanceUnit& theUnit,
                                            const ZTArticleClass& theArticleClass)
{
    static const QHash<ZTCropType, QString> keys{
        {ZTCropType(ZTCropTypeFrame), QStringLiteral("frame_size_width")},
        {ZTCropType(ZTCropTypePanorama16To9), QStringLiteral("pano_16_to_9_width")},
    };

    myCropTypeLengths.clear();
    if (theElement.isNull() || !theArticleClass.matches(printClasses))
        return;

    // The plain attribute values, without the extra strips.
    const int height = readPixels(theElement, QStringLiteral("height"), theUnit, 0.0);
    const int width = readPixels(theElement, QStringLiteral("width"), theUnit, 0.0);
    const int maxWidth = readPixels(theElement, QStringLiteral("max_width"), theUnit,
                                    ZTDistance::fromPixels(width).value(theUnit));

    if (width == height && theArticleClass.matches(ZTArticleClassPremiumPrints))
        myCropTypeLengths.insert(ZTCropType(ZTCropTypeSquare), width);

    if (theArticleClass.matches(ZTArticleClassEnlargements)) {
        if (printSizeIs2By3())
            myCropTypeLengths.insert(ZTCropType(ZTCropTypeRatio2To3), width);
        if (printSizeIs3By4())
            myCropTypeLengths.insert(ZTCropType(ZTCropTypeRatio3To4), width);
    } else {
        myCropTypeLengths.insert(ZTCropType(ZTCropTypeStandard), maxWidth);
    }

    for (auto it = keys.cbegin(); it != keys.cend(); ++it) {
        if (theElement.hasAttribute(it.value()))
            myCropTypeLengths.insert(it.key(), readPixels(theElement, it.value(), theUnit, 0.0));
    }
}

void ZTPageSizeData::readPanoramaPartWidth(const QDomElement& theElement, const QString& theName,
                                           const ZTDistanceUnit& theUnit)
{
    if (theElement.hasAttribute(theName))
        myPageSize = QSize(readPixels(theElement, theName, theUnit, 0.0), myPageSize.height());
    else
        myPageSize = QSize(-1, -1);
}
