#include "ZTDeliveryType.h"

ZTDeliveryType::ZTDeliveryType(ZTDeliveryTypeEnum theValue) : ZTEnumWrapper<ZTDeliveryTypeEnum>(theValue)
{}

ZTDeliveryType::ZTDeliveryType(const QString& theText)
{
    setValue(theText);
}

void ZTDeliveryType::fillTable(ZTEnumToStringTable<ZTDeliveryTypeEnum>* theTable) const
{
    theTable->insert(QString(), ZTDeliveryTypeNotGiven);
    theTable->insert(QStringLiteral("0"), ZTDeliveryTypePointOfSale);
    theTable->insert(QStringLiteral("1"), ZTDeliveryTypeMailOrder);
    theTable->setDefaultValue(ZTDeliveryTypeUndecodable);
}

bool ZTDeliveryType::isValid() const
{
    return myValue != ZTDeliveryTypeUndecodable;
}

QList<ZTDeliveryType> ZTDeliveryType::allDeliveryTypes()
{
    static const QList<ZTDeliveryType> all{ZTDeliveryTypePointOfSale, ZTDeliveryTypeMailOrder};
    return all;
}

QString ZTDeliveryType::toLogString() const
{
    switch (myValue) {
    case ZTDeliveryTypePointOfSale:
        return QStringLiteral("point of sale");
    case ZTDeliveryTypeMailOrder:
        return QStringLiteral("mail order");
    case ZTDeliveryTypeNotGiven:
        return QStringLiteral("not given");
    default:
        return QStringLiteral("unknown");
    }
}
