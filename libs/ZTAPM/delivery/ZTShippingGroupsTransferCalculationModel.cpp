#include "ZTShippingGroupsTransferCalculationModel.h"

ZTShippingGroupsTransferCalculationModel::ZTShippingGroupsTransferCalculationModel(
    ZTShippingGroupsTransferCalculationModelEnum theValue)
    : ZTEnumWrapper<ZTShippingGroupsTransferCalculationModelEnum>(theValue)
{}

ZTShippingGroupsTransferCalculationModel::ZTShippingGroupsTransferCalculationModel(const QString& theText)
{
    setValue(theText);
}

void ZTShippingGroupsTransferCalculationModel::fillTable(
    ZTEnumToStringTable<ZTShippingGroupsTransferCalculationModelEnum>* theTable) const
{
    theTable->insert(QString(), ZTShippingGroupsTransferCalculationNotGiven);
    theTable->insert(QStringLiteral("0"), ZTShippingGroupsTransferCalculationSummarized);
    theTable->insert(QStringLiteral("1"), ZTShippingGroupsTransferCalculationMaxOnly);
}
