#ifndef ZTSHIPPINGGROUPSTRANSFERCALCULATIONMODEL_H
#define ZTSHIPPINGGROUPSTRANSFERCALCULATIONMODEL_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// How the transfer costs of several shipping groups combine; a bit set.
enum ZTShippingGroupsTransferCalculationModelEnum : qint32 {
    ZTShippingGroupsTransferCalculationNotGiven = 0,
    ZTShippingGroupsTransferCalculationSummarized = 1,
    ZTShippingGroupsTransferCalculationMaxOnly = 2,
};

class ZTAPM_EXPORT ZTShippingGroupsTransferCalculationModel
    : public ZTEnumWrapper<ZTShippingGroupsTransferCalculationModelEnum>
{
public:
    ZTShippingGroupsTransferCalculationModel(
        ZTShippingGroupsTransferCalculationModelEnum theValue = ZTShippingGroupsTransferCalculationNotGiven);
    explicit ZTShippingGroupsTransferCalculationModel(const QString& theText);

    void
    fillTable(ZTEnumToStringTable<ZTShippingGroupsTransferCalculationModelEnum>* theTable) const override;
};

#endif // ZTSHIPPINGGROUPSTRANSFERCALCULATIONMODEL_H
