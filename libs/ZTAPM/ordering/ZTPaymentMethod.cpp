#include "ZTPaymentMethod.h"

#include "ZTAPMDataBase.h"
#include "ZTPaymentMethodImpl.h"
#include "ZTXMLBuilder.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>
#include <QRegularExpressionValidator>
#include <QStringList>

namespace {

constexpr qint32 creditCardsMetaId = 1;
constexpr qint32 onlineTransfersMetaId = 9;
constexpr qint32 applePayId = 40;

bool isBillingLayout(const ZTAddressLayoutType& theLayout)
{
    return theLayout == ZTAddressLayoutTypeBillingPrivate || theLayout == ZTAddressLayoutTypeBillingCompany;
}

QDomElement appendElement(QDomElement& theParent, const QString& theName,
                          const ZTPaymentMethod::Attributes& theAttributes)
{
    QDomElement element = ZTXMLBuilder::buildDomElement(theParent, theName);
    for (const auto& attribute : theAttributes)
        ZTXMLBuilder::addAttribute(element, attribute.first, attribute.second);
    return element;
}

} // namespace

ZTPaymentMethod::ZTPaymentMethod() : d(new ZTPaymentMethodImpl)
{}

ZTPaymentMethod::ZTPaymentMethod(const ZTPaymentClass& thePayClass, const QDomElement& theElement)
    : d(new ZTPaymentMethodImpl)
{
    const auto flag = [&theElement](const char* theName, bool theDefault) {
        return ZTXMLParser::boolAttribute(theElement, QLatin1String(theName), theDefault);
    };
    d->myName = theElement.attribute(QStringLiteral("name"));
    d->myBrand = theElement.attribute(QStringLiteral("brand"));
    d->myIsBlockable = flag("blockable", false);
    d->myIsFormBasedPayment = flag("form_based", false);
    d->myShow2FactorHint = flag("two_factor_hint", false);
    d->myAllowsFormBasedPaymentRetry = flag("repeatable", true);
    d->myAllowsDifferentShippingAddress = flag("allows_shipping_address", false);
    d->myNeedsPassword = flag("needs_password", false);
    d->myIsEWallet = flag("e_wallet", false);
    d->myId = ZTXMLParser::intAttribute(theElement, QStringLiteral("id"), 0);
    // Exactly two names, for the private and the company billing address; anything else means
    // no additional number.
    const QStringList fields = theElement.attribute(QStringLiteral("billing_address_fields"))
                                   .split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (fields.size() == 2) {
        d->myAuthorizations.insert(ZTAddressLayoutTypeBillingPrivate, fields.at(0));
        d->myAuthorizations.insert(ZTAddressLayoutTypeBillingCompany, fields.at(1));
    }
    d->myShowBillingAddressOnPaymentAndShippingScreen = flag("show_billing_address", false);
    d->myPayClass = thePayClass;
}

ZTPaymentMethod::ZTPaymentMethod(const ZTPaymentMethod& theOther) = default;
ZTPaymentMethod::ZTPaymentMethod(ZTPaymentMethod&& theOther) noexcept = default;
ZTPaymentMethod& ZTPaymentMethod::operator=(const ZTPaymentMethod& theOther) = default;
ZTPaymentMethod& ZTPaymentMethod::operator=(ZTPaymentMethod&& theOther) noexcept = default;
ZTPaymentMethod::~ZTPaymentMethod() = default;

bool ZTPaymentMethod::operator==(const ZTPaymentMethod& theOther) const
{
    return d == theOther.d || *d == *theOther.d;
}

bool ZTPaymentMethod::operator!=(const ZTPaymentMethod& theOther) const
{
    return !(*this == theOther);
}

ZTPaymentId ZTPaymentMethod::paymentId() const
{
    switch (d->myPayClass.value()) {
    case ZTPaymentClassCreditCard:
        return ZTPaymentId(creditCardsMetaId);
    case ZTPaymentClassOnlineTransfer:
        return ZTPaymentId(onlineTransfersMetaId);
    case ZTPaymentClassNone:
        return ZTPaymentId();
    default:
        return ZTPaymentId(d->myId);
    }
}

int ZTPaymentMethod::id() const
{
    return d->myId;
}

bool ZTPaymentMethod::isValid() const
{
    return paymentId().isValid();
}

QString ZTPaymentMethod::name() const
{
    return d->myName;
}

QString ZTPaymentMethod::brand() const
{
    return d->myBrand;
}

bool ZTPaymentMethod::isBlockable() const
{
    return d->myIsBlockable;
}

bool ZTPaymentMethod::isPOS() const
{
    return paymentId().isPOS();
}

bool ZTPaymentMethod::isApplePay() const
{
    return d->myId == applePayId;
}

bool ZTPaymentMethod::allowsDifferentShippingAddress() const
{
    return d->myAllowsDifferentShippingAddress;
}

bool ZTPaymentMethod::allowsFormBasedPaymentRetry() const
{
    return d->myAllowsFormBasedPaymentRetry;
}

bool ZTPaymentMethod::isFormBasedPayment() const
{
    return d->myIsFormBasedPayment;
}

bool ZTPaymentMethod::needsPassword() const
{
    return d->myNeedsPassword;
}

bool ZTPaymentMethod::showBillingAddressOnPaymentAndShippingScreen() const
{
    return d->myShowBillingAddressOnPaymentAndShippingScreen;
}

bool ZTPaymentMethod::isEWallet() const
{
    return d->myIsEWallet;
}

bool ZTPaymentMethod::show2FactorHint() const
{
    return d->myShow2FactorHint;
}

ZTPaymentClass ZTPaymentMethod::payClass() const
{
    return d->myPayClass;
}

bool ZTPaymentMethod::needsAuthorization() const
{
    return !d->myAuthorizations.isEmpty();
}

QString ZTPaymentMethod::authorization(const ZTAddressLayoutType& theLayout) const
{
    return d->myAuthorizations.value(theLayout);
}

QString ZTPaymentMethod::authorizationText(const ZTAddressLayoutType& theLayout) const
{
    if (!isKlarna())
        return QString();
    if (theLayout == ZTAddressLayoutTypeBillingPrivate)
        return tr("Bitte geben Sie bei der Bezahlung mit Klarna die Personennummer an:");
    if (theLayout == ZTAddressLayoutTypeBillingCompany)
        return tr("Bitte geben Sie bei der Bezahlung mit Klarna die Handelsregisternummer an:");
    return QString();
}

QRegularExpressionValidator*
ZTPaymentMethod::authorizationValidator(const ZTAddressLayoutType& theLayout) const
{
    if (!isKlarna() || !isBillingLayout(theLayout))
        return nullptr;
    return new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[^\\s]+")), nullptr);
}

QString ZTPaymentMethod::authorizationValueName() const
{
    return isKlarna() ? QStringLiteral("additional_authorization_id") : QString();
}

QString ZTPaymentMethod::orderConfirmationHint() const
{
    switch (paymentId().id()) {
    case ZTPaymentId::klarnaId:
        return tr("Die Klarna-Rechnung wird im Rahmen der Auftragsbearbeitung erstellt und Ihnen per "
                  "E-Mail zugesandt.");
    // Paid at the point of sale, or in ways that do not debit an account on shipping.
    case 0:
    case 3:
    case 8:
        return QString();
    default:
        return tr("Die Belastung Ihres Kontos erfolgt mit Versand der Ware.");
    }
}

QString ZTPaymentMethod::toString() const
{
    if (d->myPayClass == ZTPaymentClassPayMethod)
        return QString::number(d->myId);
    if (d->myPayClass == ZTPaymentClassCreditCard || d->myPayClass == ZTPaymentClassOnlineTransfer)
        return QStringLiteral("%1_%2").arg(d->myPayClass.encode()).arg(d->myId);
    return QString();
}

QString ZTPaymentMethod::logoFileName() const
{
    return toString() + QStringLiteral(".svg");
}

ZTProductAbstract* ZTPaymentMethod::paymentFeeProduct() const
{
    return ZTAPMDataBase::instance()->paymentFeeProduct(*this);
}

void ZTPaymentMethod::setPaymentProperties(const ZTPaymentMethod& theMetaMethod)
{
    const ZTPaymentMethodImpl& meta = *theMetaMethod.d;
    d->myIsFormBasedPayment = meta.myIsFormBasedPayment;
    d->myShow2FactorHint = meta.myShow2FactorHint;
    d->myAllowsFormBasedPaymentRetry = meta.myAllowsFormBasedPaymentRetry;
    d->myAllowsDifferentShippingAddress = meta.myAllowsDifferentShippingAddress;
    d->myNeedsPassword = meta.myNeedsPassword;
    d->myIsEWallet = meta.myIsEWallet;
}

ZTPaymentMethod::Attributes ZTPaymentMethod::extendedPaymentInfoAttributes() const
{
    if (!isFormBasedPayment())
        return Attributes();
    Attributes attributes{{QStringLiteral("paymethod_id"), paymentId().toString()},
                          {QStringLiteral("template"), QStringLiteral("no")},
                          {QStringLiteral("force_server_side_url_calculation"), QStringLiteral("yes")}};
    if (d->myPayClass == ZTPaymentClassCreditCard)
        attributes.append({QStringLiteral("cc_brand"), brand()});
    else if (d->myPayClass == ZTPaymentClassOnlineTransfer)
        attributes.append({QStringLiteral("otf_brand"), brand()});
    return attributes;
}

ZTPaymentMethod::Attributes ZTPaymentMethod::applePaymentInfoAttributes(const QString& theToken) const
{
    return Attributes{{QStringLiteral("paymethod_id"), paymentId().toString()},
                      {QStringLiteral("force_server_side_url_calculation"), QStringLiteral("yes")},
                      {QStringLiteral("e_wallet_payment_token"), theToken}};
}

ZTPaymentMethod::Attributes ZTPaymentMethod::orderHeaderPaymentAttributes() const
{
    Attributes attributes{{QStringLiteral("id"), paymentId().toString()}};
    // A fixed word of the order format that unlocks such methods on the server, not a secret
    // of the user.
    if (needsPassword())
        attributes.append({QStringLiteral("password"), QStringLiteral("larkham")});
    return attributes;
}

void ZTPaymentMethod::buildExtendedPaymentInfo(QDomElement& theParent) const
{
    if (isFormBasedPayment())
        appendElement(theParent, QStringLiteral("form_based_payment_info"), extendedPaymentInfoAttributes());
}

void ZTPaymentMethod::buildAppplePaymentInfo(QDomElement& theParent, const QString& theToken) const
{
    appendElement(theParent, QStringLiteral("e_wallet_payment_info"), applePaymentInfoAttributes(theToken));
}

QDomElement ZTPaymentMethod::buildOrderHeaderPayment(QDomElement& theParent) const
{
    return appendElement(theParent, QStringLiteral("pay_method"), orderHeaderPaymentAttributes());
}

bool ZTPaymentMethod::isKlarna() const
{
    return paymentId().isKlarna();
}

QDebug operator<<(QDebug theDebug, const ZTPaymentMethod& theMethod)
{
    QDebugStateSaver saver(theDebug);
    theDebug.nospace() << "ZTPaymentMethod(" << theMethod.paymentId().id() << ", " << theMethod.id() << ", "
                       << theMethod.name() << ", " << theMethod.brand() << ')';
    return theDebug;
}
