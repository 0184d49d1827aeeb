#include "ZTTransferModel.h"

ZTTransferModel::ZTTransferModel(ZTTransferModelEnum theValue) : ZTEnumWrapper<ZTTransferModelEnum>(theValue)
{}

ZTTransferModel::ZTTransferModel(const QString& theText)
{
    setValue(theText);
}

void ZTTransferModel::fillTable(ZTEnumToStringTable<ZTTransferModelEnum>* theTable) const
{
    theTable->insert(QStringLiteral("-1"), ZTTransferModelNone);
    theTable->insert(QStringLiteral("1"), ZTTransferModelPerBill);
    theTable->insert(QStringLiteral("2"), ZTTransferModelPerBasket);
    theTable->setDefaultValue(ZTTransferModelNone);
}
