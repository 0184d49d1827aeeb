#include "ZTPaymentMethodImpl.h"

ZTPaymentMethodImpl::ZTPaymentMethodImpl() = default;
ZTPaymentMethodImpl::ZTPaymentMethodImpl(const ZTPaymentMethodImpl& theOther) = default;
ZTPaymentMethodImpl::~ZTPaymentMethodImpl() = default;

bool ZTPaymentMethodImpl::operator==(const ZTPaymentMethodImpl& theOther) const
{
    return myName == theOther.myName && myBrand == theOther.myBrand &&
           myIsBlockable == theOther.myIsBlockable && myIsFormBasedPayment == theOther.myIsFormBasedPayment &&
           myShow2FactorHint == theOther.myShow2FactorHint &&
           myAllowsFormBasedPaymentRetry == theOther.myAllowsFormBasedPaymentRetry &&
           myAllowsDifferentShippingAddress == theOther.myAllowsDifferentShippingAddress &&
           myNeedsPassword == theOther.myNeedsPassword && myIsEWallet == theOther.myIsEWallet &&
           myId == theOther.myId && myAuthorizations == theOther.myAuthorizations &&
           myShowBillingAddressOnPaymentAndShippingScreen ==
               theOther.myShowBillingAddressOnPaymentAndShippingScreen &&
           myPayClass == theOther.myPayClass;
}
