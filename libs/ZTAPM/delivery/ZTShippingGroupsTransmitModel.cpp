#include "ZTShippingGroupsTransmitModel.h"

ZTShippingGroupsTransmitModel::ZTShippingGroupsTransmitModel(ZTShippingGroupsTransmitModelEnum theValue)
    : ZTEnumWrapper<ZTShippingGroupsTransmitModelEnum>(theValue)
{}

ZTShippingGroupsTransmitModel::ZTShippingGroupsTransmitModel(const QString& theText)
{
    setValue(theText);
}

void ZTShippingGroupsTransmitModel::fillTable(
    ZTEnumToStringTable<ZTShippingGroupsTransmitModelEnum>* theTable) const
{
    theTable->insert(QString(), ZTShippingGroupsTransmitModelNotGiven);
    theTable->insert(QStringLiteral("0"), ZTShippingGroupsTransmitModelArticleGroupCombination);
    theTable->insert(QStringLiteral("1"), ZTShippingGroupsTransmitModelSeparate);
}
