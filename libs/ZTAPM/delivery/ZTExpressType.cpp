#include "ZTExpressType.h"

#include "ZTAPMDataBase.h"
#include "ZTExpressKey.h"
#include "ZTProductAbstract.h"

#include <QCoreApplication>

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

QString ZTExpressType::humanReadableName(const ZTShippingGroupId& theShippingGroupId) const
{
    if (hasValue(ZTExpressTypeStandard))
        return QCoreApplication::translate("ZTExpressType", "Standardversand");
    if (hasValue(ZTExpressTypeExpress)) {
        const ZTProductAbstract* fee = ZTSingleton<ZTAPMDataBase>::instance()->expressFeeProduct(
            ZTExpressKey(theShippingGroupId, *this));
        return fee ? fee->name() : QString();
    }
    return QString();
}
