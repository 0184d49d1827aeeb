#include "ZTExpressType.h"

ZTExpressType::ZTExpressType(ZTExpressTypeEnum theValue) : ZTEnumWrapper<ZTExpressTypeEnum>(theValue)
{}

ZTExpressType::ZTExpressType(const QString& theText)
{
    setValue(theText);
}

void ZTExpressType::fillTable(ZTEnumToStringTable<ZTExpressTypeEnum>* theTable) const
{
    theTable->insert(QString(), ZTExpressTypeNone);
    theTable->insert(QStringLiteral("0"), ZTExpressTypeStandard);
    theTable->insert(QStringLiteral("3"), ZTExpressTypeExpress);
    theTable->setUnknownKeyword(QStringLiteral("ExpressableType_UNKNOWN"));
}

QString ZTExpressType::iconName() const
{
    return matches(ZTExpressTypeExpress) ? QStringLiteral("ico_express_delivery_checkout") : QString();
}
