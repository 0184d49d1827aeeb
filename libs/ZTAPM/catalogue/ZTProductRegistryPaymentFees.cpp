#include "ZTProductRegistryPaymentFees.h"

#include <QDomElement>

ZTProductRegistryPaymentFees::ZTProductRegistryPaymentFees()
    : ZTProductRegistryFeeMap(QStringLiteral("pay_method_fee"))
{}

ZTProductRegistryPaymentFees::~ZTProductRegistryPaymentFees() = default;

ZTProductAbstract* ZTProductRegistryPaymentFees::paymentFeeProduct(const ZTPaymentId& thePaymentId) const
{
    return productUnder(thePaymentId);
}

ZTPaymentId ZTProductRegistryPaymentFees::keyOf(const QDomElement& theElement) const
{
    return ZTPaymentId(theElement.attribute(QStringLiteral("pay_method_id")));
}
