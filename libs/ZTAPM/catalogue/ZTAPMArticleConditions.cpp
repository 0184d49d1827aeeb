#include "ZTAPMArticleConditions.h"

#include <QDomElement>

ZTAPMArticleConditions::ZTAPMArticleConditions(ZTAPMArticleConditionsEnum theValue)
    : ZTEnumWrapper<ZTAPMArticleConditionsEnum>(theValue)
{}

ZTAPMArticleConditions::ZTAPMArticleConditions(const QString& theText)
{
    setValue(theText);
}

void ZTAPMArticleConditions::fillTable(ZTEnumToStringTable<ZTAPMArticleConditionsEnum>* theTable) const
{
    theTable->insert(QStringLiteral("passepartoutRequiredForGlass"),
                     ZTAPMArticleConditionPassepartoutRequiredForGlass);
    theTable->insert(QStringLiteral("finishingfoilAndFrameNotAllowed"),
                     ZTAPMArticleConditionSpotColorAndFrameNotAllowed);
    theTable->insert(QStringLiteral("mapsIncluded"), ZTAPMArticleConditionGeoMapsIncluded);
    theTable->insert(QStringLiteral("giftBoxAndGiftServiceNotAllowed"),
                     ZTAPMArticleConditionGiftBoxAndGiftServiceNotAllowed);
    theTable->insert(QStringLiteral("memorabiliaPocketAndSlipcaseNotAllowed"),
                     ZTAPMArticleConditionMemorabiliaPocketAndSlipcaseNotAllowed);
    theTable->insert(QStringLiteral("memorabiliaPocketAndFlyleafNotAllowed"),
                     ZTAPMArticleConditionMemorabiliaPocketAndFlyleafNotAllowed);
    theTable->insert(QStringLiteral("calendarRailAndGiftServiceNotAllowed"),
                     ZTAPMArticleConditionCalendarRailAndGiftServiceNotAllowed);
    theTable->insert(QStringLiteral("wallHolderAndFrameNotAllowed"),
                     ZTAPMArticleConditionWallholderAndFrameNotAllowed);
    theTable->insert(QStringLiteral("frameOverridesRequiredWallHolder"),
                     ZTAPMArticleConditionFrameOverridesRequiredWallHolder);
    theTable->insert(QStringLiteral("designRequired"), ZTAPMArticleConditionDesignRequired);
}

ZTAPMArticleConditions ZTAPMArticleConditions::createFromXTCI(const QDomElement& theElement)
{
    const QString conditionTag = QStringLiteral("further_condition");
    ZTAPMArticleConditions result;
    const QDomElement conditions = theElement.firstChildElement(QStringLiteral("further_conditions"));
    for (QDomElement condition = conditions.firstChildElement(conditionTag); !condition.isNull();
         condition = condition.nextSiblingElement(conditionTag)) {
        const ZTAPMArticleConditions decoded(condition.attribute(QStringLiteral("condition")));
        if (!decoded.isNull())
            result |= decoded;
    }
    return result;
}

namespace {

// The add-ons that a condition forbids together.
constexpr ZTArticleClassEnum giftBoxesAndGiftServices =
    ZTArticleClassEnum(ZTArticleClassBookGiftBox | ZTArticleClassBookGiftService |
                       ZTArticleClassCalendarGiftBox | ZTArticleClassCalendarGiftService);
constexpr ZTArticleClassEnum memorabiliaPocketAndSlipcase =
    ZTArticleClassEnum(ZTArticleClassMemorabiliaPocket | ZTArticleClassSlipcase);
constexpr ZTArticleClassEnum memorabiliaPocketAndFlyleaf =
    ZTArticleClassEnum(ZTArticleClassMemorabiliaPocket | ZTArticleClassFlyleafAndInsideCover);
constexpr ZTArticleClassEnum calendarStripAndGiftService =
    ZTArticleClassEnum(ZTArticleClassCalendarStrip | ZTArticleClassCalendarGiftService);

static_assert(giftBoxesAndGiftServices == Q_INT64_C(0x81c00000000), "gift boxes and gift services");
static_assert(memorabiliaPocketAndSlipcase == Q_INT64_C(0x20000004000), "memorabilia pocket and slipcase");
static_assert(memorabiliaPocketAndFlyleaf == Q_INT64_C(0x22000000000), "memorabilia pocket and flyleaf");
static_assert(calendarStripAndGiftService == Q_INT64_C(0x80040000000), "calendar strip and gift service");

} // namespace

ZTArticleClass ZTAPMArticleConditions::articleClasses(const ZTAPMArticleConditions& theCondition)
{
    switch (theCondition.value()) {
    case ZTAPMArticleConditionGiftBoxAndGiftServiceNotAllowed:
        return ZTArticleClass(giftBoxesAndGiftServices);
    case ZTAPMArticleConditionMemorabiliaPocketAndSlipcaseNotAllowed:
        return ZTArticleClass(memorabiliaPocketAndSlipcase);
    case ZTAPMArticleConditionMemorabiliaPocketAndFlyleafNotAllowed:
        return ZTArticleClass(memorabiliaPocketAndFlyleaf);
    case ZTAPMArticleConditionCalendarRailAndGiftServiceNotAllowed:
        return ZTArticleClass(calendarStripAndGiftService);
    default:
        return ZTArticleClass(ZTArticleClassEnum(0));
    }
}

bool ZTAPMArticleConditions::glassRequiresPassepartout() const
{
    return matches(ZTAPMArticleConditionPassepartoutRequiredForGlass);
}

bool ZTAPMArticleConditions::spotColorAndFrameNotAllowed() const
{
    return matches(ZTAPMArticleConditionSpotColorAndFrameNotAllowed);
}

bool ZTAPMArticleConditions::geoMapsIncluded() const
{
    return matches(ZTAPMArticleConditionGeoMapsIncluded);
}

bool ZTAPMArticleConditions::giftBoxAndGiftServiceNotAllowed() const
{
    return matches(ZTAPMArticleConditionGiftBoxAndGiftServiceNotAllowed);
}

bool ZTAPMArticleConditions::memorabiliaPocketAndSlipcaseNotAllowed() const
{
    return matches(ZTAPMArticleConditionMemorabiliaPocketAndSlipcaseNotAllowed);
}

bool ZTAPMArticleConditions::memorabiliaPocketAndFlyleafNotAllowed() const
{
    return matches(ZTAPMArticleConditionMemorabiliaPocketAndFlyleafNotAllowed);
}

bool ZTAPMArticleConditions::wallholderAndFrameNotAllowed() const
{
    return matches(ZTAPMArticleConditionWallholderAndFrameNotAllowed);
}

bool ZTAPMArticleConditions::frameOverridesRequiredWallHolder() const
{
    return matches(ZTAPMArticleConditionFrameOverridesRequiredWallHolder);
}

bool ZTAPMArticleConditions::designRequired() const
{
    return matches(ZTAPMArticleConditionDesignRequired);
}
