#ifndef ZTAPMPRICEVALUES_H
#define ZTAPMPRICEVALUES_H

#include "ZTAPMPriceKey.h"
#include "ZTAPMPriceValue.h"
#include "ztapm_export.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <utility>

// An article's price table: one row per order source, discount level and model. Lookups are
// exact; a missing row is an invalid value.
class ZTAPM_EXPORT ZTAPMPriceValues
{
public:
    using Rows = QHash<ZTAPMPriceKey, ZTAPMPriceValue>;

    ZTAPMPriceValues();
    ZTAPMPriceValues(const ZTAPMPriceValues& theOther);
    ZTAPMPriceValues& operator=(const ZTAPMPriceValues& theOther);
    virtual ~ZTAPMPriceValues();

    ZTAPMPriceValue value(const ZTAPMPriceKey& theKey) const;
    int maxDiscountLevel() const { return myMaxDiscountLevel; }
    QList<ZTAPMPriceKey> keys() const { return myValues.keys(); }
    // All rows, for walks that need keys and values together.
    const Rows& rows() const { return myValues; }
    int count() const { return int(myValues.size()); }
    // The levels that rows of this order source and model stand at, ascending; empty if none.
    // Walks over levels go through these, so their work depends on the rows, not on the numbers.
    QList<int> levels(const ZTOrderSource& theOrderSource, const ZTDiscountModel& theModel) const;
    bool isEmpty() const { return myValues.isEmpty(); }

    // Replaces a row of an equal key and raises the maximum level to the value's level.
    void insert(const ZTAPMPriceKey& theKey, const ZTAPMPriceValue& theValue);
    // Inserts a default row if absent; leaves the maximum level alone.
    ZTAPMPriceValue& operator[](const ZTAPMPriceKey& theKey);
    // Takes over the rows of theOther, which win on equal keys; returns the result.
    ZTAPMPriceValues unite(const ZTAPMPriceValues& theOther);
    void clear();

    bool operator==(const ZTAPMPriceValues& theOther) const;
    bool operator!=(const ZTAPMPriceValues& theOther) const;

    // The highest quantity of the row of theKey: one below the next level's lower bound, -1 if
    // there is no valid next level.
    int countItemsAtUpperBound(const ZTAPMPriceKey& theKey) const;
    // Documents give lower bounds only; a copy with every row's upper bound filled in.
    ZTAPMPriceValues fixedUpperLimits() const;
    // The same on this table, for a reader that has no use for the table without the bounds.
    void fixUpperLimits();
    // For every order source that has "w" rows, a copy in which all its rows are "w" rows;
    // "y" rows remember their origin.
    ZTAPMPriceValues fixedDiscountModelW() const;
    // The step above for one order source, applied to thePrices when this table has "w" rows
    // for it.
    ZTAPMPriceValues fixedDiscountModelW(const ZTAPMPriceValues& thePrices,
                                         const ZTOrderSource& theOrderSource) const;

    QSet<ZTDiscountModel> discountModels() const;
    bool containsDiscountModel(const ZTOrderSource& theOrderSource, const ZTDiscountModel& theModel) const;
    // The limit of the level 1 "w" row of the order source, or a default limit.
    ZTDiscountLimit fotoBasePackageLimit(const ZTOrderSource& theOrderSource) const;

private:
    // Order source and model of a key, the address of one ladder.
    using LadderId = std::pair<std::pair<int, int>, int>;
    static LadderId ladderId(const ZTAPMPriceKey& theKey);
    static LadderId ladderId(const ZTOrderSource& theOrderSource, const ZTDiscountModel& theModel);
    void addLevel(const ZTAPMPriceKey& theKey);

    struct Ladder
    {
        LadderId id;
        QList<int> levels; // ascending
    };
    // For the search of a ladder by id.
    static bool ladderBefore(const Ladder& theLadder, const LadderId& theId);

    Rows myValues;
    // Every key's level by ladder, kept with the rows; the ladders ascend by id. A table has a
    // handful of ladders, and a sorted list holds them in a fraction of a hash's memory, which
    // counts when every article of a catalogue keeps its table.
    QList<Ladder> myLevels;
    qint32 myMaxDiscountLevel = 0;
};

#endif // ZTAPMPRICEVALUES_H
