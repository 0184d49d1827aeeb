#ifndef ZTDELIVERYTYPE_H
#define ZTDELIVERYTYPE_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// How the goods reach the customer.
enum ZTDeliveryTypeEnum : qint32 {
    ZTDeliveryTypeUndecodable = -2,
    ZTDeliveryTypeNotGiven = -1,
    ZTDeliveryTypePointOfSale = 0,
    ZTDeliveryTypeMailOrder = 1,
};

class ZTAPM_EXPORT ZTDeliveryType : public ZTEnumWrapper<ZTDeliveryTypeEnum>
{
public:
    ZTDeliveryType(ZTDeliveryTypeEnum theValue = ZTDeliveryTypeNotGiven);
    explicit ZTDeliveryType(const QString& theText);

    // Only an undecodable keyword is invalid; "not given" is a valid answer.
    bool isValid() const override;

    // Point of sale, then mail order.
    static QList<ZTDeliveryType> allDeliveryTypes();

    // "point of sale", "mail order", "not given" or "unknown": English words for logs and tools,
    // untranslated like the order source's log string; the dialogs have texts of their own.
    QString toLogString() const;

    void fillTable(ZTEnumToStringTable<ZTDeliveryTypeEnum>* theTable) const override;
};

#endif // ZTDELIVERYTYPE_H
