#include "ZTAPMPriceValues.h"

#include <QVarLengthArray>

#include <algorithm>
#include <climits>

ZTAPMPriceValues::ZTAPMPriceValues() = default;
ZTAPMPriceValues::ZTAPMPriceValues(const ZTAPMPriceValues& theOther) = default;
ZTAPMPriceValues& ZTAPMPriceValues::operator=(const ZTAPMPriceValues& theOther) = default;
ZTAPMPriceValues::~ZTAPMPriceValues() = default;

ZTAPMPriceValue ZTAPMPriceValues::value(const ZTAPMPriceKey& theKey) const
{
    const auto it = myValues.constFind(theKey);
    return it != myValues.cend() ? it.value() : ZTAPMPriceValue();
}

ZTAPMPriceValues::LadderId ZTAPMPriceValues::ladderId(const ZTOrderSource& theOrderSource,
                                                      const ZTDiscountModel& theModel)
{
    return {{int(theOrderSource.inputSource().value()), int(theOrderSource.deliveryType().value())},
            int(theModel.value())};
}

ZTAPMPriceValues::LadderId ZTAPMPriceValues::ladderId(const ZTAPMPriceKey& theKey)
{
    return ladderId(theKey.orderSource(), theKey.discountModel());
}

bool ZTAPMPriceValues::ladderBefore(const Ladder& theLadder, const LadderId& theId)
{
    return theLadder.id < theId;
}

void ZTAPMPriceValues::addLevel(const ZTAPMPriceKey& theKey)
{
    const LadderId id = ladderId(theKey);
    auto ladder = std::lower_bound(myLevels.begin(), myLevels.end(), id, ladderBefore);
    if (ladder == myLevels.end() || ladder->id != id)
        ladder = myLevels.insert(ladder, Ladder{id, {}});
    QList<int>& levels = ladder->levels;
    const auto it = std::lower_bound(levels.begin(), levels.end(), theKey.discountLevel());
    if (it == levels.end() || *it != theKey.discountLevel())
        levels.insert(it, theKey.discountLevel());
}

QList<int> ZTAPMPriceValues::levels(const ZTOrderSource& theOrderSource,
                                    const ZTDiscountModel& theModel) const
{
    const LadderId id = ladderId(theOrderSource, theModel);
    const auto ladder = std::lower_bound(myLevels.cbegin(), myLevels.cend(), id, ladderBefore);
    return ladder != myLevels.cend() && ladder->id == id ? ladder->levels : QList<int>();
}

void ZTAPMPriceValues::insert(const ZTAPMPriceKey& theKey, const ZTAPMPriceValue& theValue)
{
    myValues.insert(theKey, theValue);
    addLevel(theKey);
    myMaxDiscountLevel = std::max(myMaxDiscountLevel, qint32(theValue.discountLevel()));
}

ZTAPMPriceValue& ZTAPMPriceValues::operator[](const ZTAPMPriceKey& theKey)
{
    addLevel(theKey);
    return myValues[theKey];
}

ZTAPMPriceValues ZTAPMPriceValues::unite(const ZTAPMPriceValues& theOther)
{
    if (theOther.myValues.isEmpty() || &theOther == this || myValues.isSharedWith(theOther.myValues))
        return *this;
    if (myValues.isEmpty()) {
        myValues = theOther.myValues;
        myLevels = theOther.myLevels;
    } else {
        for (auto it = theOther.myValues.cbegin(); it != theOther.myValues.cend(); ++it) {
            myValues.insert(it.key(), it.value());
            addLevel(it.key());
        }
    }
    for (const ZTAPMPriceValue& value : std::as_const(myValues))
        myMaxDiscountLevel = std::max(myMaxDiscountLevel, qint32(value.discountLevel()));
    return *this;
}

void ZTAPMPriceValues::clear()
{
    myValues.clear();
    myLevels.clear();
    myMaxDiscountLevel = 0;
}

bool ZTAPMPriceValues::operator==(const ZTAPMPriceValues& theOther) const
{
    // QHash's own comparison: same size, every key present with an equal value.
    return myMaxDiscountLevel == theOther.myMaxDiscountLevel && myValues == theOther.myValues;
}

bool ZTAPMPriceValues::operator!=(const ZTAPMPriceValues& theOther) const
{
    return !(*this == theOther);
}

int ZTAPMPriceValues::countItemsAtUpperBound(const ZTAPMPriceKey& theKey) const
{
    // The highest level has no level above it, and a bound of the smallest integer has no
    // quantity below it: the upper bound then stays at that integer.
    if (theKey.discountLevel() == INT_MAX)
        return -1;
    ZTAPMPriceKey nextLevel(theKey);
    nextLevel.setDiscountLevel(theKey.discountLevel() + 1);
    const ZTAPMPriceValue next = value(nextLevel);
    if (!next.isValid())
        return -1;
    return next.lowerLimit() == INT_MIN ? INT_MIN : next.lowerLimit() - 1;
}

ZTAPMPriceValues ZTAPMPriceValues::fixedUpperLimits() const
{
    ZTAPMPriceValues result(*this);
    result.fixUpperLimits();
    return result;
}

void ZTAPMPriceValues::fixUpperLimits()
{
    // Every bound is looked up before any is set, so that each comes from the rows as they were.
    // The maximum level is that of the rows, as if each had been inserted anew.
    QVarLengthArray<int, 64> upperLimits;
    upperLimits.reserve(myValues.size());
    for (auto it = myValues.cbegin(); it != myValues.cend(); ++it) {
        upperLimits.append(countItemsAtUpperBound(it.key()));
        myMaxDiscountLevel = std::max(myMaxDiscountLevel, qint32(it.value().discountLevel()));
    }
    qsizetype row = 0;
    for (auto it = myValues.begin(); it != myValues.end(); ++it)
        it.value().setUpperLimit(upperLimits.at(row++));
}

ZTAPMPriceValues ZTAPMPriceValues::fixedDiscountModelW() const
{
    QList<ZTOrderSource> sources;
    for (auto it = myValues.cbegin(); it != myValues.cend(); ++it) {
        if (!sources.contains(it.key().orderSource()))
            sources.append(it.key().orderSource());
    }
    ZTAPMPriceValues result(*this);
    for (const ZTOrderSource& source : std::as_const(sources))
        result = fixedDiscountModelW(result, source);
    return result;
}

ZTAPMPriceValues ZTAPMPriceValues::fixedDiscountModelW(const ZTAPMPriceValues& thePrices,
                                                       const ZTOrderSource& theOrderSource) const
{
    if (!containsDiscountModel(theOrderSource, ZTDiscountModelFotoPackage))
        return thePrices;
    ZTAPMPriceValues result;
    for (auto it = thePrices.myValues.cbegin(); it != thePrices.myValues.cend(); ++it) {
        ZTAPMPriceKey key(it.key());
        ZTAPMPriceValue value(it.value());
        if (key.orderSource() == theOrderSource) {
            key.setDiscountModel(ZTDiscountModelFotoPackage);
            value.setDiscountModel(ZTDiscountModelFotoPackage);
        }
        result.insert(key, value);
    }
    return result;
}

QSet<ZTDiscountModel> ZTAPMPriceValues::discountModels() const
{
    // A table has a handful of models among many rows: a list finds them faster than a set.
    QVarLengthArray<ZTDiscountModel, 8> models;
    for (const ZTAPMPriceValue& value : myValues) {
        if (!models.contains(value.discountModel()))
            models.append(value.discountModel());
    }
    return QSet<ZTDiscountModel>(models.cbegin(), models.cend());
}

bool ZTAPMPriceValues::containsDiscountModel(const ZTOrderSource& theOrderSource,
                                             const ZTDiscountModel& theModel) const
{
    for (auto it = myValues.cbegin(); it != myValues.cend(); ++it) {
        if (it.key().orderSource() == theOrderSource && it.value().discountModel() == theModel)
            return true;
    }
    return false;
}

ZTDiscountLimit ZTAPMPriceValues::fotoBasePackageLimit(const ZTOrderSource& theOrderSource) const
{
    for (auto it = myValues.cbegin(); it != myValues.cend(); ++it) {
        const ZTAPMPriceKey& key = it.key();
        if (key.orderSource() == theOrderSource && key.discountLevel() == 1 &&
            key.discountModel() == ZTDiscountModelFotoPackage)
            return it.value().discountLimit();
    }
    return ZTDiscountLimit();
}
