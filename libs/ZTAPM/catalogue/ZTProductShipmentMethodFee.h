#ifndef ZTPRODUCTSHIPMENTMETHODFEE_H
#define ZTPRODUCTSHIPMENTMETHODFEE_H

#include "ZTProductAbstract.h"

// What one shipment method (a carrier, a delivery option) costs.
class ZTAPM_EXPORT ZTProductShipmentMethodFee : public ZTProductAbstract
{
public:
    explicit ZTProductShipmentMethodFee(const QDomElement& theElement);
    ~ZTProductShipmentMethodFee() override;

    // -1 when the element named none.
    int shippingMethodId() const;

private:
    const int myShippingMethodId;
};

#endif // ZTPRODUCTSHIPMENTMETHODFEE_H
