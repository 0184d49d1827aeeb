#ifndef ZTSHIPPINGGROUPIDLIST_H
#define ZTSHIPPINGGROUPIDLIST_H

#include "ZTShippingGroupId.h"
#include "ztproductbase_export.h"

#include <QList>

// An ordered list of shipping group ids, such as the groups of an order in price list order.
class ZTPRODUCTBASE_EXPORT ZTShippingGroupIdList : public QList<ZTShippingGroupId>
{
public:
    ZTShippingGroupIdList();
    ZTShippingGroupIdList(const QList<ZTShippingGroupId>& theIds);
    ZTShippingGroupIdList(std::initializer_list<ZTShippingGroupId> theIds);
    ZTShippingGroupIdList(const ZTShippingGroupIdList& other);
    ZTShippingGroupIdList& operator=(const ZTShippingGroupIdList& other);
    virtual ~ZTShippingGroupIdList();
};

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTShippingGroupIdList& theIds);

#endif // ZTSHIPPINGGROUPIDLIST_H
