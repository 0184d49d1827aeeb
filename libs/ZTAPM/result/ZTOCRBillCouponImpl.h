#ifndef ZTOCRBILLCOUPONIMPL_H
#define ZTOCRBILLCOUPONIMPL_H

#include "ZTMoney.h"

#include <QSharedData>
#include <QString>

// Body of ZTOCRBillCoupon; private to the library.
class ZTOCRBillCouponImpl : public QSharedData
{
public:
    // True only if both the value and the code are less: no order of coupons, only a test that
    // one is below the other in every respect.
    bool operator<(const ZTOCRBillCouponImpl& theOther) const
    {
        return myValue < theOther.myValue && myCode < theOther.myCode;
    }

    ZTMoney myValue{-1};
    QString myCode;
    bool myIsDefective = false;
};

#endif // ZTOCRBILLCOUPONIMPL_H
