#include "ZTKeyAccountDataType.h"

ZTKeyAccountDataType::ZTKeyAccountDataType(ZTKeyAccountDataTypeEnum theValue)
    : ZTEnumWrapper<ZTKeyAccountDataTypeEnum>(theValue)
{}

ZTKeyAccountDataType::ZTKeyAccountDataType(const QString& theText)
{
    setValue(theText);
}

void ZTKeyAccountDataType::fillTable(ZTEnumToStringTable<ZTKeyAccountDataTypeEnum>* theTable) const
{
    theTable->insert(QStringLiteral("products"), ZTKeyAccountDataTypeProducts);
    theTable->insert(QStringLiteral("2"), ZTKeyAccountDataTypeProducts);
    theTable->insert(QStringLiteral("prices"), ZTKeyAccountDataTypePrices);
    theTable->insert(QStringLiteral("4"), ZTKeyAccountDataTypePrices);
    theTable->insert(QStringLiteral("deliverytimes"), ZTKeyAccountDataTypeDeliveryTimes);
    theTable->insert(QStringLiteral("delivery_times"), ZTKeyAccountDataTypeDeliveryTimes);
    theTable->insert(QStringLiteral("8"), ZTKeyAccountDataTypeDeliveryTimes);
    theTable->setDefaultValue(ZTKeyAccountDataTypeNone);
    theTable->setUnknownKeyword(QStringLiteral("KeyAccountDataType_UNKNOWN"));
}
