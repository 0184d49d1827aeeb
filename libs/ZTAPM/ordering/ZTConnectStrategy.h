#ifndef ZTCONNECTSTRATEGY_H
#define ZTCONNECTSTRATEGY_H

#include "ZTEnumToStringTable.h"
#include "ztapm_export.h"

// How a customer logs in: the engine's own login or the single sign-on of a retailer. Any
// unknown keyword is the engine's own login.
enum ZTConnectStrategyEnum : qint32 {
    ZTConnectStrategyDefault = 0,
    ZTConnectStrategyVelmoratOAuth2 = 1,
    ZTConnectStrategyTarnquillOAuth2 = 2,
    ZTConnectStrategyOmboOpenConnect = 4,
    // Every single sign-on.
    ZTConnectStrategySSO = 7,
};

class ZTAPM_EXPORT ZTConnectStrategy : public ZTEnumWrapper<ZTConnectStrategyEnum>
{
public:
    ZTConnectStrategy(ZTConnectStrategyEnum theValue = ZTConnectStrategyDefault);
    explicit ZTConnectStrategy(const QString& theText);

    void fillTable(ZTEnumToStringTable<ZTConnectStrategyEnum>* theTable) const override;
};

#endif // ZTCONNECTSTRATEGY_H
