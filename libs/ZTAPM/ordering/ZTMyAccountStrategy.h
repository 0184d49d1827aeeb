#ifndef ZTMYACCOUNTSTRATEGY_H
#define ZTMYACCOUNTSTRATEGY_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// Where a customer edits the account: in the engine's own dialog or on a page of the key
// account. An unknown keyword is value 0, which permits neither.
enum ZTMyAccountStrategyEnum : qint32 {
    ZTMyAccountStrategyUnknown = 0,
    ZTMyAccountStrategyDefault = 1,
    ZTMyAccountStrategyGotoUrl = 2,
};

class ZTAPM_EXPORT ZTMyAccountStrategy : public ZTEnumWrapper<ZTMyAccountStrategyEnum>
{
public:
    ZTMyAccountStrategy(ZTMyAccountStrategyEnum theValue = ZTMyAccountStrategyDefault);
    explicit ZTMyAccountStrategy(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTMyAccountStrategyEnum>* theTable) const override;
};

#endif // ZTMYACCOUNTSTRATEGY_H
