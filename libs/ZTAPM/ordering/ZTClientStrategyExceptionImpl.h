#ifndef ZTCLIENTSTRATEGYEXCEPTIONIMPL_H
#define ZTCLIENTSTRATEGYEXCEPTIONIMPL_H

#include "ZTConnectStrategy.h"
#include "ZTForgottenPasswordStrategy.h"
#include "ZTMyAccountStrategy.h"

#include <QSharedData>
#include <QString>
#include <QUrl>

// Body of ZTClientStrategyException; private to the library.
class ZTClientStrategyExceptionImpl : public QSharedData
{
public:
    ZTClientStrategyExceptionImpl();
    ZTClientStrategyExceptionImpl(const ZTClientStrategyExceptionImpl& theOther);
    ~ZTClientStrategyExceptionImpl();

    bool operator==(const ZTClientStrategyExceptionImpl& theOther) const;

    static QString defaultLoginPattern();

    ZTForgottenPasswordStrategy myUserInsertStrategy;
    QString myUserInsertTarget;
    ZTForgottenPasswordStrategy myPasswordStrategy;
    QString myPasswordTarget;
    ZTConnectStrategy myConnectStrategy;
    QUrl myConnectTarget;
    ZTMyAccountStrategy myMyAccountStrategy;
    QUrl myMyAccountUrl;
    bool myShowAGBCheckbox = true;
    QString myAppId;
    QString myAppSecret;
    QString myLoginPattern;
};

#endif // ZTCLIENTSTRATEGYEXCEPTIONIMPL_H
