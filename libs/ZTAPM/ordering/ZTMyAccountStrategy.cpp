#include "ZTMyAccountStrategy.h"

ZTMyAccountStrategy::ZTMyAccountStrategy(ZTMyAccountStrategyEnum theValue)
    : ZTEnumWrapper<ZTMyAccountStrategyEnum>(theValue)
{}

ZTMyAccountStrategy::ZTMyAccountStrategy(const QString& theText)
{
    setValue(theText);
}

void ZTMyAccountStrategy::fillTable(ZTEnumToStringTable<ZTMyAccountStrategyEnum>* theTable) const
{
    theTable->insert(QStringLiteral("default"), ZTMyAccountStrategyDefault);
    theTable->insert(QStringLiteral("goto_url"), ZTMyAccountStrategyGotoUrl);
    theTable->setDefaultValue(ZTMyAccountStrategyUnknown);
}
