#include "ZTDiscountLimitImpl.h"

ZTDiscountLimitImpl::ZTDiscountLimitImpl() = default;
ZTDiscountLimitImpl::ZTDiscountLimitImpl(const ZTDiscountLimitImpl& theOther) = default;
ZTDiscountLimitImpl::~ZTDiscountLimitImpl() = default;
