#ifndef ZTPAYMENTCLASS_H
#define ZTPAYMENTCLASS_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// The group a payment method belongs to. Credit cards and online transfers are families: one
// meta method of the ordinary group stands for all their members. An unknown code is an
// ordinary method.
enum ZTPaymentClassEnum : qint32 {
    ZTPaymentClassNone = 0,
    ZTPaymentClassCreditCard = 1,
    ZTPaymentClassPayMethod = 2,
    ZTPaymentClassOnlineTransfer = 4,
    // The families.
    ZTPaymentClassMeta = ZTPaymentClassCreditCard | ZTPaymentClassOnlineTransfer,
};

class ZTAPM_EXPORT ZTPaymentClass : public ZTEnumWrapper<ZTPaymentClassEnum>
{
public:
    ZTPaymentClass(ZTPaymentClassEnum theValue = ZTPaymentClassNone);
    explicit ZTPaymentClass(const QString& theText);

    // The element of the ordering-details document that lists the class's methods:
    // "pay_methods", "credit_cards" or "online_transfer_methods"; empty for any other value.
    QString xtciNodeName() const;
    // A family, whose members share one payment id.
    bool isMetaClass() const;

    void fillTable(ZTEnumToStringTable<ZTPaymentClassEnum>* theTable) const override;
};

#endif // ZTPAYMENTCLASS_H
