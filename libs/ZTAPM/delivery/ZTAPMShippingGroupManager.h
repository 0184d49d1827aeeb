#ifndef ZTAPMSHIPPINGGROUPMANAGER_H
#define ZTAPMSHIPPINGGROUPMANAGER_H

#include "ZTAPMShippingGroup.h"
#include "ZTFotoPaperType.h"
#include "ZTKeyAccountDataType.h"
#include "ZTShippingGroupId.h"
#include "ZTShippingGroupIdList.h"
#include "ZTSingleton.h"
#include "ZTTransferModel.h"
#include "ztapm_export.h"

#include <QDateTime>
#include <QList>
#include <QMap>

class QDomElement;
class ZTArticleClass;

// The shipping groups of the current ordering details, by id. Filled by the ordering details on
// each reading and asked on the main thread only, so it has no lock. Until the first reading
// every question answers as for an unknown group.
class ZTAPM_EXPORT ZTAPMShippingGroupManager : public ZTSingleton<ZTAPMShippingGroupManager>
{
public:
    // Rebuilds the map from the "group" children of the "groups" element. Nothing is filtered:
    // a group with an invalid id is kept too. A later group of the same id replaces the earlier
    // one with its own tab position.
    void update(const QDomElement& theGroups);

    // Whether the map has the id, valid group or not.
    bool hasShippingGroup(const ZTShippingGroupId& theId) const;
    // A default group (invalid, tab position -1) for an unknown id.
    ZTAPMShippingGroup shippingGroup(const ZTShippingGroupId& theId) const;
    QString shippingGroupName(const ZTShippingGroupId& theId) const;
    int maxOrderItems(const ZTShippingGroupId& theId) const;
    ZTTransferModel transferModel(const ZTShippingGroupId& theId) const;
    bool isBrand(const ZTShippingGroupId& theId) const;
    QList<ZTFotoPaperType> fotoPaperTypes(const ZTShippingGroupId& theId) const;
    QList<ZTFotoPaperType> fotoPaperTypes(const ZTArticleClass& theClass) const;
    // Paper 0 for an unknown group.
    ZTFotoPaperType defaultFotoPaperType(const ZTShippingGroupId& theId) const;
    int priceListTabPosition(const ZTShippingGroupId& theId) const;
    // The latest stamp of the type over all groups; invalid when there is no group.
    QDateTime lastChange(const ZTKeyAccountDataType& theType) const;

    // In ascending id order.
    ZTShippingGroupIdList shippingGroupIDs() const;
    QList<ZTAPMShippingGroup> shippingGroups() const;
    // The groups that can be ordered: a name and at least one live article. In id order.
    QList<ZTAPMShippingGroup> activeShippingGroups() const;
    // The active groups in price-list order; equal positions keep their id order.
    QList<ZTAPMShippingGroup> sortedShippingGroups() const;
    // A copy in price-list order; unknown ids (position -1) come first, in their given order.
    ZTShippingGroupIdList sortShippingGroupIds(const ZTShippingGroupIdList& theIds) const;

private:
    friend class ZTSingleton<ZTAPMShippingGroupManager>;
    ZTAPMShippingGroupManager();
    ~ZTAPMShippingGroupManager() override;

    QMap<ZTShippingGroupId, ZTAPMShippingGroup> myShippingGroups;
};

// Price-list order of two ids, looked up through the manager.
ZTAPM_EXPORT bool lessThanShippingGroupId(const ZTShippingGroupId& theFirst,
                                          const ZTShippingGroupId& theSecond);

#endif // ZTAPMSHIPPINGGROUPMANAGER_H
