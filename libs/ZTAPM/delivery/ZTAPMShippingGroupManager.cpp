#include "ZTAPMShippingGroupManager.h"

#include "ZTAPMDataBase.h"
#include "ZTArticleClass.h"

#include <QDomElement>

#include <algorithm>

ZTAPMShippingGroupManager::ZTAPMShippingGroupManager() = default;

ZTAPMShippingGroupManager::~ZTAPMShippingGroupManager() = default;

void ZTAPMShippingGroupManager::update(const QDomElement& theGroups)
{
    myShippingGroups.clear();
    // Counts every "group" element, so a replaced duplicate leaves a gap in the positions.
    int position = 0;
    for (QDomElement element = theGroups.firstChildElement(QStringLiteral("group")); !element.isNull();
         element = element.nextSiblingElement(QStringLiteral("group"))) {
        const ZTAPMShippingGroup group(element, position++);
        myShippingGroups.insert(group.id(), group);
    }
}

bool ZTAPMShippingGroupManager::hasShippingGroup(const ZTShippingGroupId& theId) const
{
    return myShippingGroups.contains(theId);
}

ZTAPMShippingGroup ZTAPMShippingGroupManager::shippingGroup(const ZTShippingGroupId& theId) const
{
    const auto found = myShippingGroups.constFind(theId);
    return found == myShippingGroups.cend() ? ZTAPMShippingGroup() : found.value();
}

QString ZTAPMShippingGroupManager::shippingGroupName(const ZTShippingGroupId& theId) const
{
    return shippingGroup(theId).name();
}

int ZTAPMShippingGroupManager::maxOrderItems(const ZTShippingGroupId& theId) const
{
    return shippingGroup(theId).maxOrderItems();
}

ZTTransferModel ZTAPMShippingGroupManager::transferModel(const ZTShippingGroupId& theId) const
{
    return shippingGroup(theId).transferModel();
}

bool ZTAPMShippingGroupManager::isBrand(const ZTShippingGroupId& theId) const
{
    return shippingGroup(theId).isBrand();
}

QList<ZTFotoPaperType> ZTAPMShippingGroupManager::fotoPaperTypes(const ZTShippingGroupId& theId) const
{
    return shippingGroup(theId).fotoPaperTypes();
}

QList<ZTFotoPaperType> ZTAPMShippingGroupManager::fotoPaperTypes(const ZTArticleClass& theClass) const
{
    return fotoPaperTypes(theClass.shippingGroup());
}

ZTFotoPaperType ZTAPMShippingGroupManager::defaultFotoPaperType(const ZTShippingGroupId& theId) const
{
    if (!hasShippingGroup(theId))
        return ZTFotoPaperType();
    return shippingGroup(theId).defaultFotoPaperType();
}

int ZTAPMShippingGroupManager::priceListTabPosition(const ZTShippingGroupId& theId) const
{
    return shippingGroup(theId).priceListTabPosition();
}

QDateTime ZTAPMShippingGroupManager::lastChange(const ZTKeyAccountDataType& theType) const
{
    QDateTime latest;
    for (const ZTAPMShippingGroup& group : myShippingGroups) {
        const QDateTime stamp = group.lastChange(theType);
        if (stamp > latest)
            latest = stamp;
    }
    return latest;
}

ZTShippingGroupIdList ZTAPMShippingGroupManager::shippingGroupIDs() const
{
    return ZTShippingGroupIdList(myShippingGroups.keys());
}

QList<ZTAPMShippingGroup> ZTAPMShippingGroupManager::shippingGroups() const
{
    return myShippingGroups.values();
}

QList<ZTAPMShippingGroup> ZTAPMShippingGroupManager::activeShippingGroups() const
{
    QList<ZTAPMShippingGroup> result;
    ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
    for (const ZTAPMShippingGroup& group : myShippingGroups) {
        if (!group.name().isEmpty() && !dataBase->productsForShippingGroup(group.id()).isEmpty())
            result.append(group);
    }
    return result;
}

QList<ZTAPMShippingGroup> ZTAPMShippingGroupManager::sortedShippingGroups() const
{
    QList<ZTAPMShippingGroup> result = activeShippingGroups();
    std::stable_sort(result.begin(), result.end(),
                     [](const ZTAPMShippingGroup& theFirst, const ZTAPMShippingGroup& theSecond) {
                         return lessThanPriceListTabPosition(theFirst, theSecond);
                     });
    return result;
}

ZTShippingGroupIdList
ZTAPMShippingGroupManager::sortShippingGroupIds(const ZTShippingGroupIdList& theIds) const
{
    ZTShippingGroupIdList result = theIds;
    std::stable_sort(result.begin(), result.end(), &lessThanShippingGroupId);
    return result;
}

bool lessThanShippingGroupId(const ZTShippingGroupId& theFirst, const ZTShippingGroupId& theSecond)
{
    const ZTAPMShippingGroupManager* manager = ZTSingleton<ZTAPMShippingGroupManager>::instance();
    return manager->priceListTabPosition(theFirst) < manager->priceListTabPosition(theSecond);
}
