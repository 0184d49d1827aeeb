#ifndef ZTSHIPPINGGROUPSTRANSMITMODEL_H
#define ZTSHIPPINGGROUPSTRANSMITMODEL_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// How the orders of several shipping groups are sent to the server.
enum ZTShippingGroupsTransmitModelEnum : qint32 {
    ZTShippingGroupsTransmitModelNotGiven = 0,
    ZTShippingGroupsTransmitModelArticleGroupCombination = 1,
    ZTShippingGroupsTransmitModelSeparate = 2,
};

class ZTAPM_EXPORT ZTShippingGroupsTransmitModel : public ZTEnumWrapper<ZTShippingGroupsTransmitModelEnum>
{
public:
    ZTShippingGroupsTransmitModel(
        ZTShippingGroupsTransmitModelEnum theValue = ZTShippingGroupsTransmitModelNotGiven);
    explicit ZTShippingGroupsTransmitModel(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTShippingGroupsTransmitModelEnum>* theTable) const override;
};

#endif // ZTSHIPPINGGROUPSTRANSMITMODEL_H
