#ifndef ZTTRANSFERMODEL_H
#define ZTTRANSFERMODEL_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// Which calculation prices the transfer (shipping) costs of a group.
enum ZTTransferModelEnum : qint32 {
    ZTTransferModelNone = -1,
    ZTTransferModelPerBill = 1,
    ZTTransferModelPerBasket = 2,
};

class ZTAPM_EXPORT ZTTransferModel : public ZTEnumWrapper<ZTTransferModelEnum>
{
public:
    ZTTransferModel(ZTTransferModelEnum theValue = ZTTransferModelNone);
    explicit ZTTransferModel(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTTransferModelEnum>* theTable) const override;
};

#endif // ZTTRANSFERMODEL_H
