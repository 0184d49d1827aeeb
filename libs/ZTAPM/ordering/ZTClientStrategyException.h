#ifndef ZTCLIENTSTRATEGYEXCEPTION_H
#define ZTCLIENTSTRATEGYEXCEPTION_H

#include "ZTConnectStrategy.h"
#include "ZTForgottenPasswordStrategy.h"
#include "ZTMyAccountStrategy.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>
#include <QString>
#include <QUrl>

class QDomElement;
class ZTClientStrategyExceptionImpl;

// Where a key account departs from the engine's own account handling: registration, password
// recovery, login (possibly a retailer's single sign-on) and account editing. Copy on write.
class ZTAPM_EXPORT ZTClientStrategyException
{
public:
    // The engine's own handling throughout, the terms checkbox shown, an e-mail login pattern.
    ZTClientStrategyException();
    ZTClientStrategyException(const ZTClientStrategyException& theOther);
    ZTClientStrategyException(ZTClientStrategyException&& theOther) noexcept;
    ZTClientStrategyException& operator=(const ZTClientStrategyException& theOther);
    ZTClientStrategyException& operator=(ZTClientStrategyException&& theOther) noexcept;
    virtual ~ZTClientStrategyException();

    // Reads every field from a "client_strategy_exception" element; a missing attribute sets its
    // default, so nothing of a former reading survives. Any other element, a null one too,
    // changes nothing.
    void setValues(const QDomElement& theElement);

    bool operator==(const ZTClientStrategyException& theOther) const;
    bool operator!=(const ZTClientStrategyException& theOther) const;
    // Equal to a newly made exception.
    bool isDefault() const;

    ZTForgottenPasswordStrategy userInsertStrategy() const;
    QString userInsertTarget() const;
    ZTForgottenPasswordStrategy passwordStrategy() const;
    QString passwordTarget() const;
    ZTConnectStrategy connectStrategy() const;
    QUrl connectTarget() const;
    ZTMyAccountStrategy myAccountStrategy() const;
    QUrl myAccountUrl() const;
    bool showAGBCheckbox() const;
    // As the document holds it: enciphered.
    QString appId() const;
    // Carried for the host; the engine does not use it.
    QString appSecret() const;
    QString loginPattern() const;

    // Login by any retailer's single sign-on.
    bool isSSOLogin() const;
    // The engine's own account dialog, or a valid account page of the key account.
    bool canModifyAccountData() const;

    // The user-insert target (the authorization address of the single sign-on) with the
    // deciphered app id as query item "client_id".
    QUrl tarnquillLoginUrl() const;
    QUrl omboLoginUrl() const;
    // The login URL of the connect strategy; empty for the engine's own login and for the first
    // retailer, whose login the host runs without a URL from the engine.
    QUrl loginUrl() const;
    // The query item "redirect_uri" of the respective login URL; empty if there is none.
    QUrl tarnquillRedirectUrl() const;
    QUrl omboRedirectUrl() const;
    QUrl redirectUrl() const;

private:
    QSharedDataPointer<ZTClientStrategyExceptionImpl> d;
};

#endif // ZTCLIENTSTRATEGYEXCEPTION_H
