#include "ZTOCRBillCouponList.h"

#include <QDomElement>

#include <algorithm>

namespace {
const QString COUPON_NODE_NAME = QStringLiteral("coupon_sum");
} // namespace

void ZTOCRBillCouponList::readCoupons(const QDomElement& theElement)
{
    for (QDomElement child = theElement.firstChildElement(COUPON_NODE_NAME); !child.isNull();
         child = child.nextSiblingElement(COUPON_NODE_NAME)) {
        const ZTOCRBillCoupon coupon(child);
        if (coupon.isValid())
            append(coupon);
    }
}

ZTMoney ZTOCRBillCouponList::totalValue() const
{
    ZTMoney total(0);
    for (const ZTOCRBillCoupon& coupon : *this)
        total += coupon.value();
    return total;
}

void ZTOCRBillCouponList::markCouponAsDefective(const QString& theCode)
{
    for (ZTOCRBillCoupon& coupon : *this) {
        if (coupon.code() == theCode)
            coupon.setDefective(true);
    }
}

ZTOCRBillCouponList ZTOCRBillCouponList::filterDefective() const
{
    ZTOCRBillCouponList result;
    for (const ZTOCRBillCoupon& coupon : *this) {
        if (!coupon.isDefective() && coupon.value().hasPrice())
            result.append(coupon);
    }
    return result;
}

ZTOCRBillCouponList ZTOCRBillCouponList::filterUserCoupons() const
{
    ZTOCRBillCouponList result;
    for (const ZTOCRBillCoupon& coupon : *this) {
        if (coupon.isUserCoupon())
            result.append(coupon);
    }
    return result;
}

ZTOCRBillCouponList& ZTOCRBillCouponList::unite(const ZTOCRBillCouponList& theOther)
{
    // A copy, so that a list may be united with itself.
    const ZTOCRBillCouponList others = theOther;
    for (const ZTOCRBillCoupon& other : others) {
        auto same = std::find_if(begin(), end(), [&other](const ZTOCRBillCoupon& theCoupon) {
            return theCoupon.code() == other.code();
        });
        if (same == end()) {
            append(other);
            continue;
        }
        ZTMoney value = same->value();
        value += other.value();
        same->setValue(value);
    }
    return *this;
}
