#ifndef ZTAPMSHIPPINGGROUP_H
#define ZTAPMSHIPPINGGROUP_H

#include "ZTFotoPaperType.h"
#include "ZTKeyAccountDataType.h"
#include "ZTShippingGroupId.h"
#include "ZTTransferModel.h"
#include "ztapm_export.h"

#include <QDateTime>
#include <QExplicitlySharedDataPointer>
#include <QList>
#include <QString>

class QDomElement;
class ZTAPMShippingGroupImpl;

// One shipping group of the ordering details: one bill, one price list tab and one set of change
// stamps. A thin handle on a body that nothing changes after parsing; copies share it.
class ZTAPM_EXPORT ZTAPMShippingGroup
{
public:
    // Invalid, at tab position -1.
    ZTAPMShippingGroup();
    // A "group" element; thePriceListTabPosition is its place among its siblings.
    ZTAPMShippingGroup(const QDomElement& theElement, int thePriceListTabPosition);
    ZTAPMShippingGroup(const ZTAPMShippingGroup& theOther);
    ZTAPMShippingGroup(ZTAPMShippingGroup&& theOther) noexcept;
    ZTAPMShippingGroup& operator=(const ZTAPMShippingGroup& theOther);
    ZTAPMShippingGroup& operator=(ZTAPMShippingGroup&& theOther) noexcept;
    virtual ~ZTAPMShippingGroup();

    bool operator==(const ZTAPMShippingGroup& theOther) const;
    bool operator!=(const ZTAPMShippingGroup& theOther) const { return !(*this == theOther); }

    ZTShippingGroupId id() const;
    // The stamp of products, prices or delivery times; invalid for any other type.
    QDateTime lastChange(const ZTKeyAccountDataType& theType) const;
    int maxOrderItems() const;
    // Empty for an invalid group, whatever the document said.
    QString name() const;
    ZTTransferModel transferModel() const;
    int priceListTabPosition() const;
    bool isBrand() const;
    QList<ZTFotoPaperType> fotoPaperTypes() const;
    // The only paper, else the usual one of the group's class if offered, else the first.
    ZTFotoPaperType defaultFotoPaperType() const;
    bool isValid() const;

    // Private body, exposed for the comparator on bodies.
    const ZTAPMShippingGroupImpl* impl() const { return d.data(); }

private:
    QExplicitlySharedDataPointer<ZTAPMShippingGroupImpl> d;
};

// Price-list order: by tab position, compared as signed integers.
ZTAPM_EXPORT bool lessThanPriceListTabPosition(const ZTAPMShippingGroup& theFirst,
                                               const ZTAPMShippingGroup& theSecond);
ZTAPM_EXPORT bool lessThanPriceListTabPosition(const ZTAPMShippingGroupImpl* theFirst,
                                               const ZTAPMShippingGroupImpl* theSecond);

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTAPMShippingGroup& theGroup);

#endif // ZTAPMSHIPPINGGROUP_H
