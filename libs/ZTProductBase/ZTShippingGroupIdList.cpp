#include "ZTShippingGroupIdList.h"

ZTShippingGroupIdList::ZTShippingGroupIdList() = default;

ZTShippingGroupIdList::ZTShippingGroupIdList(const QList<ZTShippingGroupId>& theIds)
    : QList<ZTShippingGroupId>(theIds)
{}

ZTShippingGroupIdList::ZTShippingGroupIdList(std::initializer_list<ZTShippingGroupId> theIds)
    : QList<ZTShippingGroupId>(theIds)
{}

ZTShippingGroupIdList::ZTShippingGroupIdList(const ZTShippingGroupIdList& other) = default;

ZTShippingGroupIdList& ZTShippingGroupIdList::operator=(const ZTShippingGroupIdList& other) = default;

ZTShippingGroupIdList::~ZTShippingGroupIdList() = default;

QDebug operator<<(QDebug debug, const ZTShippingGroupIdList& theIds)
{
    return debug << static_cast<const QList<ZTShippingGroupId>&>(theIds);
}
