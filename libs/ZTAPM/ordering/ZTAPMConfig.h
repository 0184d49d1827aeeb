#ifndef ZTAPMCONFIG_H
#define ZTAPMCONFIG_H

#include "ZTSingleton.h"
#include "ZTXMLConfig.h"
#include "ztapm_export.h"

#include <QStringList>

class ZTOrderSource;

// The engine's configuration file of the key account: the order source a session starts with.
class ZTAPM_EXPORT ZTAPMConfig : public ZTXMLConfig, public ZTSingleton<ZTAPMConfig>
{
    Q_OBJECT

public:
    // The attributes "inputSource" and "deliveryType" of "defaultOrderSource", as the enum
    // integers; -1 for what is missing, which makes an invalid source.
    ZTOrderSource defaultOrderSource() const;
    // The upper-case keyword of every discount model but 0, in the order of the models' values.
    QStringList supportedDiscountTypes() const;

private:
    friend class ZTSingleton<ZTAPMConfig>;
    ZTAPMConfig();
    ~ZTAPMConfig() override;
};

#endif // ZTAPMCONFIG_H
