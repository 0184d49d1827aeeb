#include "ZTProductPaymentMethodFee.h"

#include <QDomElement>

ZTProductPaymentMethodFee::ZTProductPaymentMethodFee(const QDomElement& theElement)
    : ZTProductAbstract(theElement), myPaymentId(theElement.attribute(QStringLiteral("pay_method_id")))
{}

ZTProductPaymentMethodFee::~ZTProductPaymentMethodFee() = default;

ZTPaymentId ZTProductPaymentMethodFee::paymentId() const
{
    return myPaymentId;
}
