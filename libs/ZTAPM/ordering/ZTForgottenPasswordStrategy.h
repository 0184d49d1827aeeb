#ifndef ZTFORGOTTENPASSWORDSTRATEGY_H
#define ZTFORGOTTENPASSWORDSTRATEGY_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// How a customer recovers a forgotten password, and also how a new customer registers. Any
// unknown keyword is the engine's own handling.
enum ZTForgottenPasswordStrategyEnum : qint32 {
    ZTForgottenPasswordStrategyDefault = 0,
    ZTForgottenPasswordStrategySendEmail = 1,
    ZTForgottenPasswordStrategyGotoUrl = 2,
    ZTForgottenPasswordStrategyJustPressButton = 4,
    ZTForgottenPasswordStrategyContactEmail = 8,
    ZTForgottenPasswordStrategyNone = 16,
    ZTForgottenPasswordStrategySingleUse = 32,
};

class ZTAPM_EXPORT ZTForgottenPasswordStrategy : public ZTEnumWrapper<ZTForgottenPasswordStrategyEnum>
{
public:
    ZTForgottenPasswordStrategy(
        ZTForgottenPasswordStrategyEnum theValue = ZTForgottenPasswordStrategyDefault);
    explicit ZTForgottenPasswordStrategy(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTForgottenPasswordStrategyEnum>* theTable) const override;
};

#endif // ZTFORGOTTENPASSWORDSTRATEGY_H
