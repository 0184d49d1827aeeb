#include "ZTForgottenPasswordStrategy.h"

ZTForgottenPasswordStrategy::ZTForgottenPasswordStrategy(ZTForgottenPasswordStrategyEnum theValue)
    : ZTEnumWrapper<ZTForgottenPasswordStrategyEnum>(theValue)
{}

ZTForgottenPasswordStrategy::ZTForgottenPasswordStrategy(const QString& theText)
{
    setValue(theText);
}

void ZTForgottenPasswordStrategy::fillTable(
    ZTEnumToStringTable<ZTForgottenPasswordStrategyEnum>* theTable) const
{
    theTable->insert(QStringLiteral("default"), ZTForgottenPasswordStrategyDefault);
    theTable->insert(QStringLiteral("send_email"), ZTForgottenPasswordStrategySendEmail);
    theTable->insert(QStringLiteral("goto_url"), ZTForgottenPasswordStrategyGotoUrl);
    theTable->insert(QStringLiteral("just_press_button"), ZTForgottenPasswordStrategyJustPressButton);
    theTable->insert(QStringLiteral("contact_email"), ZTForgottenPasswordStrategyContactEmail);
    theTable->insert(QStringLiteral("none"), ZTForgottenPasswordStrategyNone);
    theTable->insert(QStringLiteral("singleuse"), ZTForgottenPasswordStrategySingleUse);
    theTable->setDefaultValue(ZTForgottenPasswordStrategyDefault);
}
