#ifndef ZTPRODUCTREGISTRYPAYMENTFEES_H
#define ZTPRODUCTREGISTRYPAYMENTFEES_H

#include "ZTPaymentId.h"
#include "ZTProductRegistryFeeMap.h"

// Payment method fees by payment id. Rebuilt on every reading.
class ZTAPM_EXPORT ZTProductRegistryPaymentFees : public ZTProductRegistryFeeMap<ZTPaymentId>
{
public:
    ZTProductRegistryPaymentFees();
    ~ZTProductRegistryPaymentFees() override;

    ZTProductAbstract* paymentFeeProduct(const ZTPaymentId& thePaymentId) const;

protected:
    // The element's pay_method_id.
    ZTPaymentId keyOf(const QDomElement& theElement) const override;
};

#endif // ZTPRODUCTREGISTRYPAYMENTFEES_H
