#include "ZTPaymentClass.h"

ZTPaymentClass::ZTPaymentClass(ZTPaymentClassEnum theValue) : ZTEnumWrapper<ZTPaymentClassEnum>(theValue)
{}

ZTPaymentClass::ZTPaymentClass(const QString& theText)
{
    setValue(theText);
}

void ZTPaymentClass::fillTable(ZTEnumToStringTable<ZTPaymentClassEnum>* theTable) const
{
    // A family's code is the payment id of its meta method.
    theTable->insert(QStringLiteral("1"), ZTPaymentClassCreditCard);
    theTable->insert(QStringLiteral("0"), ZTPaymentClassPayMethod);
    theTable->insert(QStringLiteral("9"), ZTPaymentClassOnlineTransfer);
    theTable->setDefaultValue(ZTPaymentClassPayMethod);
}

QString ZTPaymentClass::xtciNodeName() const
{
    switch (myValue) {
    case ZTPaymentClassCreditCard:
        return QStringLiteral("credit_cards");
    case ZTPaymentClassPayMethod:
        return QStringLiteral("pay_methods");
    case ZTPaymentClassOnlineTransfer:
        return QStringLiteral("online_transfer_methods");
    default:
        return QString();
    }
}

bool ZTPaymentClass::isMetaClass() const
{
    return matches(ZTPaymentClassMeta);
}
