#ifndef ZTAPMARTICLECONDITIONS_H
#define ZTAPMARTICLECONDITIONS_H

#include "ZTArticleClass.h"
#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

class QDomElement;

// Extra rules of an article, mostly which add-ons exclude each other; a bit set.
enum ZTAPMArticleConditionsEnum : qint32 {
    ZTAPMArticleConditionNone = 0,
    ZTAPMArticleConditionPassepartoutRequiredForGlass = 0x1,
    ZTAPMArticleConditionSpotColorAndFrameNotAllowed = 0x2,
    ZTAPMArticleConditionGeoMapsIncluded = 0x4,
    ZTAPMArticleConditionGiftBoxAndGiftServiceNotAllowed = 0x8,
    ZTAPMArticleConditionMemorabiliaPocketAndSlipcaseNotAllowed = 0x10,
    ZTAPMArticleConditionMemorabiliaPocketAndFlyleafNotAllowed = 0x20,
    ZTAPMArticleConditionCalendarRailAndGiftServiceNotAllowed = 0x40,
    ZTAPMArticleConditionWallholderAndFrameNotAllowed = 0x80,
    ZTAPMArticleConditionFrameOverridesRequiredWallHolder = 0x100,
    ZTAPMArticleConditionDesignRequired = 0x200,
};

class ZTAPM_EXPORT ZTAPMArticleConditions : public ZTEnumWrapper<ZTAPMArticleConditionsEnum>
{
public:
    ZTAPMArticleConditions(ZTAPMArticleConditionsEnum theValue = ZTAPMArticleConditionNone);
    explicit ZTAPMArticleConditions(const QString& theText);

    // All further_condition entries of an article element, joined.
    static ZTAPMArticleConditions createFromXTCI(const QDomElement& theElement);

    // The add-on classes that one exclusion rule speaks of; 0 for any other rule and for a value
    // of several rules.
    static ZTArticleClass articleClasses(const ZTAPMArticleConditions& theCondition);

    bool glassRequiresPassepartout() const;
    bool spotColorAndFrameNotAllowed() const;
    bool geoMapsIncluded() const;
    bool giftBoxAndGiftServiceNotAllowed() const;
    bool memorabiliaPocketAndSlipcaseNotAllowed() const;
    bool memorabiliaPocketAndFlyleafNotAllowed() const;
    bool wallholderAndFrameNotAllowed() const;
    bool frameOverridesRequiredWallHolder() const;
    bool designRequired() const;

    void fillTable(ZTEnumToStringTable<ZTAPMArticleConditionsEnum>* theTable) const override;
};

#endif // ZTAPMARTICLECONDITIONS_H
