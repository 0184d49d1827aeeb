#ifndef ZTEXPRESSTYPELIST_H
#define ZTEXPRESSTYPELIST_H

#include "ZTExpressType.h"
#include "ztapm_export.h"

#include <QList>
#include <QSet>

#include <initializer_list>

class ZTAPMPriceKey;
class ZTShippingGroupId;

// A list of express types, as a shipping group offers them. Order and duplicates are kept; the
// set operations below say where they matter.
class ZTAPM_EXPORT ZTExpressTypeList : public QList<ZTExpressType>
{
public:
    ZTExpressTypeList();
    ZTExpressTypeList(const QList<ZTExpressType>& theList);
    ZTExpressTypeList(const QList<ZTExpressTypeEnum>& theList);
    ZTExpressTypeList(std::initializer_list<ZTExpressTypeEnum> theValues);
    ZTExpressTypeList(const ZTExpressTypeList& other);
    ZTExpressTypeList(ZTExpressTypeList&& other) noexcept;
    ZTExpressTypeList& operator=(const ZTExpressTypeList& other);
    ZTExpressTypeList& operator=(ZTExpressTypeList&& other) noexcept;
    virtual ~ZTExpressTypeList();

    // What counts as an express option: express alone. Standard shipping is always possible and
    // therefore not asked for.
    static ZTExpressTypeList allExpressTypes();
    // What the catalogue offers for the group under the key; see ZTAPMDataBase.
    static ZTExpressTypeList supportedExpressTypes(const ZTShippingGroupId& theShippingGroupId,
                                                   const ZTAPMPriceKey& thePriceKey);

    ZTExpressTypeList sorted() const;
    // Drops every entry (all occurrences) that other contains; returns the result.
    ZTExpressTypeList& filterOut(const ZTExpressTypeList& other);
    // The entries of this list that other contains, in this list's order, duplicates kept.
    ZTExpressTypeList intersection(const ZTExpressTypeList& other) const;
    QSet<ZTExpressType> asSet() const;
};

#endif // ZTEXPRESSTYPELIST_H
