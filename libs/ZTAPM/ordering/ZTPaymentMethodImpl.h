#ifndef ZTPAYMENTMETHODIMPL_H
#define ZTPAYMENTMETHODIMPL_H

#include "ZTAddressLayoutType.h"
#include "ZTPaymentClass.h"

#include <QMap>
#include <QSharedData>
#include <QString>

// Body of ZTPaymentMethod; private to the library.
class ZTPaymentMethodImpl : public QSharedData
{
public:
    ZTPaymentMethodImpl();
    ZTPaymentMethodImpl(const ZTPaymentMethodImpl& theOther);
    ~ZTPaymentMethodImpl();

    bool operator==(const ZTPaymentMethodImpl& theOther) const;

    QString myName;
    QString myBrand;
    bool myIsBlockable = false;
    bool myIsFormBasedPayment = false;
    bool myShow2FactorHint = false;
    bool myAllowsFormBasedPaymentRetry = true;
    bool myAllowsDifferentShippingAddress = false;
    bool myNeedsPassword = false;
    bool myIsEWallet = false;
    qint32 myId = -1;
    // What the billing address of a layout must add; ordered, so that walking it is stable.
    QMap<ZTAddressLayoutType, QString> myAuthorizations;
    bool myShowBillingAddressOnPaymentAndShippingScreen = false;
    ZTPaymentClass myPayClass;
};

#endif // ZTPAYMENTMETHODIMPL_H
