#include "ZTClientStrategyExceptionImpl.h"

ZTClientStrategyExceptionImpl::ZTClientStrategyExceptionImpl() : myLoginPattern(defaultLoginPattern())
{}

ZTClientStrategyExceptionImpl::ZTClientStrategyExceptionImpl(const ZTClientStrategyExceptionImpl& theOther) =
    default;
ZTClientStrategyExceptionImpl::~ZTClientStrategyExceptionImpl() = default;

bool ZTClientStrategyExceptionImpl::operator==(const ZTClientStrategyExceptionImpl& theOther) const
{
    return myUserInsertStrategy == theOther.myUserInsertStrategy &&
           myUserInsertTarget == theOther.myUserInsertTarget &&
           myPasswordStrategy == theOther.myPasswordStrategy &&
           myPasswordTarget == theOther.myPasswordTarget && myConnectStrategy == theOther.myConnectStrategy &&
           myConnectTarget == theOther.myConnectTarget &&
           myMyAccountStrategy == theOther.myMyAccountStrategy && myMyAccountUrl == theOther.myMyAccountUrl &&
           myShowAGBCheckbox == theOther.myShowAGBCheckbox && myAppId == theOther.myAppId &&
           myAppSecret == theOther.myAppSecret && myLoginPattern == theOther.myLoginPattern;
}

QString ZTClientStrategyExceptionImpl::defaultLoginPattern()
{
    // Something, an at sign, something, a dot, something: a plausible e-mail address.
    return QStringLiteral(".+@.+\\..+");
}
