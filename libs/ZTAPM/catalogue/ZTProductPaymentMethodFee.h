#ifndef ZTPRODUCTPAYMENTMETHODFEE_H
#define ZTPRODUCTPAYMENTMETHODFEE_H

#include "ZTPaymentId.h"
#include "ZTProductAbstract.h"

// What paying by one payment method costs.
class ZTAPM_EXPORT ZTProductPaymentMethodFee : public ZTProductAbstract
{
public:
    explicit ZTProductPaymentMethodFee(const QDomElement& theElement);
    ~ZTProductPaymentMethodFee() override;

    ZTPaymentId paymentId() const;

private:
    const ZTPaymentId myPaymentId;
};

#endif // ZTPRODUCTPAYMENTMETHODFEE_H
