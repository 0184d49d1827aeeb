#include "ZTClientStrategyException.h"

#include "ZTClientStrategyExceptionImpl.h"
#include "ZTCrypto.h"
#include "ZTXMLParser.h"

#include <QDomElement>
#include <QUrlQuery>

namespace {

QUrl redirectUrlOf(const QUrl& theLoginUrl)
{
    return QUrl(QUrlQuery(theLoginUrl).queryItemValue(QStringLiteral("redirect_uri"), QUrl::FullyDecoded));
}

} // namespace

ZTClientStrategyException::ZTClientStrategyException() : d(new ZTClientStrategyExceptionImpl)
{}

ZTClientStrategyException::ZTClientStrategyException(const ZTClientStrategyException& theOther) = default;
ZTClientStrategyException::ZTClientStrategyException(ZTClientStrategyException&& theOther) noexcept = default;
ZTClientStrategyException&
ZTClientStrategyException::operator=(const ZTClientStrategyException& theOther) = default;
ZTClientStrategyException&
ZTClientStrategyException::operator=(ZTClientStrategyException&& theOther) noexcept = default;
ZTClientStrategyException::~ZTClientStrategyException() = default;

void ZTClientStrategyException::setValues(const QDomElement& theElement)
{
    if (theElement.tagName() != QLatin1String("client_strategy_exception"))
        return;
    const QString defaultKeyword = QStringLiteral("default");
    const auto text = [&theElement](const QString& theName, const QString& theDefault = QString()) {
        return ZTXMLParser::attribute(theElement, theName, theDefault, true);
    };
    d->myUserInsertStrategy = ZTForgottenPasswordStrategy(
        theElement.attribute(QStringLiteral("userinsert_strategy"), defaultKeyword));
    d->myUserInsertTarget = text(QStringLiteral("userinsert_target"));
    d->myPasswordStrategy = ZTForgottenPasswordStrategy(
        theElement.attribute(QStringLiteral("password_strategy"), defaultKeyword));
    d->myPasswordTarget = text(QStringLiteral("password_target"));
    d->myConnectStrategy =
        ZTConnectStrategy(theElement.attribute(QStringLiteral("connect_strategy"), defaultKeyword));
    d->myConnectTarget = QUrl(text(QStringLiteral("connect_target")));
    d->myMyAccountStrategy =
        ZTMyAccountStrategy(theElement.attribute(QStringLiteral("my_account_strategy"), defaultKeyword));
    d->myMyAccountUrl = QUrl(text(QStringLiteral("my_account_target")));
    d->myShowAGBCheckbox = ZTXMLParser::boolAttribute(theElement, QStringLiteral("show_agb_checkbox"), true);
    d->myAppId = text(QStringLiteral("app_id"));
    d->myAppSecret = text(QStringLiteral("app_sec"));
    d->myLoginPattern =
        text(QStringLiteral("login_pattern"), ZTClientStrategyExceptionImpl::defaultLoginPattern());
}

bool ZTClientStrategyException::operator==(const ZTClientStrategyException& theOther) const
{
    return d == theOther.d || *d == *theOther.d;
}

bool ZTClientStrategyException::operator!=(const ZTClientStrategyException& theOther) const
{
    return !(*this == theOther);
}

bool ZTClientStrategyException::isDefault() const
{
    return *this == ZTClientStrategyException();
}

ZTForgottenPasswordStrategy ZTClientStrategyException::userInsertStrategy() const
{
    return d->myUserInsertStrategy;
}

QString ZTClientStrategyException::userInsertTarget() const
{
    return d->myUserInsertTarget;
}

ZTForgottenPasswordStrategy ZTClientStrategyException::passwordStrategy() const
{
    return d->myPasswordStrategy;
}

QString ZTClientStrategyException::passwordTarget() const
{
    return d->myPasswordTarget;
}

ZTConnectStrategy ZTClientStrategyException::connectStrategy() const
{
    return d->myConnectStrategy;
}

QUrl ZTClientStrategyException::connectTarget() const
{
    return d->myConnectTarget;
}

ZTMyAccountStrategy ZTClientStrategyException::myAccountStrategy() const
{
    return d->myMyAccountStrategy;
}

QUrl ZTClientStrategyException::myAccountUrl() const
{
    return d->myMyAccountUrl;
}

bool ZTClientStrategyException::showAGBCheckbox() const
{
    return d->myShowAGBCheckbox;
}

QString ZTClientStrategyException::appId() const
{
    return d->myAppId;
}

QString ZTClientStrategyException::appSecret() const
{
    return d->myAppSecret;
}

QString ZTClientStrategyException::loginPattern() const
{
    return d->myLoginPattern;
}

bool ZTClientStrategyException::isSSOLogin() const
{
    return d->myConnectStrategy.matches(ZTConnectStrategySSO);
}

bool ZTClientStrategyException::canModifyAccountData() const
{
    if (d->myMyAccountStrategy.matches(ZTMyAccountStrategyDefault))
        return true;
    if (d->myMyAccountStrategy.matches(ZTMyAccountStrategyGotoUrl))
        return d->myMyAccountUrl.isValid();
    return false;
}

QUrl ZTClientStrategyException::tarnquillLoginUrl() const
{
    QUrl url(d->myUserInsertTarget, QUrl::TolerantMode);
    QUrlQuery query(url);
    // The document carries the client id enciphered; the key lies with the host.
    query.addQueryItem(QStringLiteral("client_id"), ZTCrypto().decryptDES(appId()));
    url.setQuery(query);
    return url;
}

QUrl ZTClientStrategyException::omboLoginUrl() const
{
    return tarnquillLoginUrl();
}

QUrl ZTClientStrategyException::loginUrl() const
{
    if (d->myConnectStrategy == ZTConnectStrategyTarnquillOAuth2)
        return tarnquillLoginUrl();
    if (d->myConnectStrategy == ZTConnectStrategyOmboOpenConnect)
        return omboLoginUrl();
    return QUrl();
}

QUrl ZTClientStrategyException::tarnquillRedirectUrl() const
{
    return redirectUrlOf(tarnquillLoginUrl());
}

QUrl ZTClientStrategyException::omboRedirectUrl() const
{
    return redirectUrlOf(omboLoginUrl());
}

QUrl ZTClientStrategyException::redirectUrl() const
{
    if (d->myConnectStrategy == ZTConnectStrategyTarnquillOAuth2)
        return tarnquillRedirectUrl();
    if (d->myConnectStrategy == ZTConnectStrategyOmboOpenConnect)
        return omboRedirectUrl();
    return QUrl();
}
