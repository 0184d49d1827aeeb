#ifndef ZTOCRBILLCOUPONLIST_H
#define ZTOCRBILLCOUPONLIST_H

#include "ZTOCRBillCoupon.h"
#include "ztapm_export.h"

#include <QList>

class QDomElement;

// The coupons of a bill, or of a whole order once the bills' lists are united.
class ZTAPM_EXPORT ZTOCRBillCouponList : public QList<ZTOCRBillCoupon>
{
public:
    using QList<ZTOCRBillCoupon>::QList;

    // Appends a coupon for each valid child "coupon_sum", in document order; one that is no
    // number or below 0 is dropped.
    void readCoupons(const QDomElement& theElement);
    // All values, those of defective coupons too.
    ZTMoney totalValue() const;
    // Every coupon of this code.
    void markCouponAsDefective(const QString& theCode);
    // The coupons that still count: not defective and with a value above 0.
    ZTOCRBillCouponList filterDefective() const;
    ZTOCRBillCouponList filterUserCoupons() const;
    // Adds the coupons of theOther in their order: one whose code this list holds adds its value
    // to the first coupon of that code, any other is appended. Coupons without a code are
    // merged among each other too.
    ZTOCRBillCouponList& unite(const ZTOCRBillCouponList& theOther);
};

#endif // ZTOCRBILLCOUPONLIST_H
