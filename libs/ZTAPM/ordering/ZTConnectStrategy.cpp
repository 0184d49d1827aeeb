#include "ZTConnectStrategy.h"

ZTConnectStrategy::ZTConnectStrategy(ZTConnectStrategyEnum theValue)
    : ZTEnumWrapper<ZTConnectStrategyEnum>(theValue)
{}

ZTConnectStrategy::ZTConnectStrategy(const QString& theText)
{
    setValue(theText);
}

void ZTConnectStrategy::fillTable(ZTEnumToStringTable<ZTConnectStrategyEnum>* theTable) const
{
    theTable->insert(QStringLiteral("default"), ZTConnectStrategyDefault);
    theTable->insert(QStringLiteral("velmorat-oauth2"), ZTConnectStrategyVelmoratOAuth2);
    theTable->insert(QStringLiteral("tarnquill-oauth2"), ZTConnectStrategyTarnquillOAuth2);
    theTable->insert(QStringLiteral("ombo-openconnect"), ZTConnectStrategyOmboOpenConnect);
    theTable->setDefaultValue(ZTConnectStrategyDefault);
}
