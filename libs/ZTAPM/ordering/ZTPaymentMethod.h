#ifndef ZTPAYMENTMETHOD_H
#define ZTPAYMENTMETHOD_H

#include "ZTAddressLayoutType.h"
#include "ZTPaymentClass.h"
#include "ZTPaymentId.h"
#include "ztapm_export.h"

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QSharedDataPointer>
#include <QString>

class QDebug;
class QDomElement;
class QRegularExpressionValidator;
class ZTPaymentMethodImpl;
class ZTProductAbstract;

// What an order can be paid with: the flags that steer the order dialogs, the texts of the
// method and the fragments that a chosen method puts into the order. Members of the credit card
// and online transfer families have brands and share the payment id of their meta method.
// Copy on write.
class ZTAPM_EXPORT ZTPaymentMethod
{
    Q_DECLARE_TR_FUNCTIONS(ZTPaymentMethod)

public:
    // Invalid: no class, id -1.
    ZTPaymentMethod();
    // Reads a method of thePayClass from its element, whatever its tag. A missing "id" gives 0.
    ZTPaymentMethod(const ZTPaymentClass& thePayClass, const QDomElement& theElement);
    ZTPaymentMethod(const ZTPaymentMethod& theOther);
    ZTPaymentMethod(ZTPaymentMethod&& theOther) noexcept;
    ZTPaymentMethod& operator=(const ZTPaymentMethod& theOther);
    ZTPaymentMethod& operator=(ZTPaymentMethod&& theOther) noexcept;
    ~ZTPaymentMethod();

    // Every field, the class included.
    bool operator==(const ZTPaymentMethod& theOther) const;
    bool operator!=(const ZTPaymentMethod& theOther) const;

    // The id under which the method is permitted and remembered: 1 for every credit card, 9 for
    // every online transfer, invalid without a class, else the method's own id.
    ZTPaymentId paymentId() const;
    // The method's own number, also for a family member.
    int id() const;
    bool isValid() const;

    QString name() const;
    QString brand() const;
    bool isBlockable() const;
    // Paid at the point of sale (payment id 0).
    bool isPOS() const;
    bool isApplePay() const;
    bool allowsDifferentShippingAddress() const;
    bool allowsFormBasedPaymentRetry() const;
    bool isFormBasedPayment() const;
    bool needsPassword() const;
    bool showBillingAddressOnPaymentAndShippingScreen() const;
    bool isEWallet() const;
    bool show2FactorHint() const;
    ZTPaymentClass payClass() const;

    // Whether the billing address must carry an additional number for this method.
    bool needsAuthorization() const;
    // The field name that the layout's billing address must add; empty if none.
    QString authorization(const ZTAddressLayoutType& theLayout) const;
    // The prompt for the additional number (Klarna only); empty otherwise.
    QString authorizationText(const ZTAddressLayoutType& theLayout) const;
    // A new validator for the additional number of a billing layout (Klarna only), or null.
    // The caller owns it.
    QRegularExpressionValidator* authorizationValidator(const ZTAddressLayoutType& theLayout) const;
    // The name under which the order carries the additional number; empty if there is none.
    QString authorizationValueName() const;
    // What the order confirmation says about the debit.
    QString orderConfirmationHint() const;
    // A name independent of the key account: the id for an ordinary method, the family's code
    // and the own id ("1_7") for a family member, empty without a class.
    QString toString() const;
    QString logoFileName() const;

    // The fee product of the payment id, or null.
    ZTProductAbstract* paymentFeeProduct() const;

    // Takes over from theMetaMethod what a family member shares with its meta method: the
    // form-based payment, its retry and two-factor hint, a different shipping address, the
    // password and the e-wallet.
    void setPaymentProperties(const ZTPaymentMethod& theMetaMethod);

    // The attributes of the order fragments below, in the order in which they are written. A
    // QDomElement forgets that order (it keeps attributes in a per-process seeded hash), so a
    // writer that must give the same bytes in every process takes the attributes from here.
    using Attributes = QList<QPair<QString, QString>>;
    // Of "form_based_payment_info"; empty unless the method is form-based.
    Attributes extendedPaymentInfoAttributes() const;
    // Of "e_wallet_payment_info".
    Attributes applePaymentInfoAttributes(const QString& theToken) const;
    // Of "pay_method".
    Attributes orderHeaderPaymentAttributes() const;

    // Appends "form_based_payment_info" to theParent for a form-based method; nothing otherwise.
    void buildExtendedPaymentInfo(QDomElement& theParent) const;
    // Appends "e_wallet_payment_info" with theToken to theParent.
    void buildAppplePaymentInfo(QDomElement& theParent, const QString& theToken) const;
    // Appends and returns "pay_method", the payment of the order header.
    QDomElement buildOrderHeaderPayment(QDomElement& theParent) const;

private:
    bool isKlarna() const;

    QSharedDataPointer<ZTPaymentMethodImpl> d;
};

// Payment id, own id, name, brand.
ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTPaymentMethod& theMethod);

#endif // ZTPAYMENTMETHOD_H
