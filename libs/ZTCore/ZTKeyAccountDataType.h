#ifndef ZTKEYACCOUNTDATATYPE_H
#define ZTKEYACCOUNTDATATYPE_H

#include "ZTEnumToStringTable.h"
#include "ztcore_export.h"

// The documents of a key account that the server publishes and the client downloads one by one.
// A bit set, so that a host can name several at once ("products, prices").
enum ZTKeyAccountDataTypeEnum : qint32 {
    ZTKeyAccountDataTypeNone = 0,
    ZTKeyAccountDataTypeProducts = 2,
    ZTKeyAccountDataTypePrices = 4,
    ZTKeyAccountDataTypeDeliveryTimes = 8,
};

class ZTCORE_EXPORT ZTKeyAccountDataType : public ZTEnumWrapper<ZTKeyAccountDataTypeEnum>
{
public:
    ZTKeyAccountDataType(ZTKeyAccountDataTypeEnum theValue = ZTKeyAccountDataTypeNone);
    // Keywords or a comma-separated list of them; unknown ones count as nothing.
    explicit ZTKeyAccountDataType(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTKeyAccountDataTypeEnum>* theTable) const override;
};

#endif // ZTKEYACCOUNTDATATYPE_H
