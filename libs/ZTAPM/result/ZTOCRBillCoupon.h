#ifndef ZTOCRBILLCOUPON_H
#define ZTOCRBILLCOUPON_H

#include "ZTMoney.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>
#include <QString>

class QDomElement;
class ZTOCRBillCouponImpl;

// A coupon that the server accepted for a bill: its value and the code the user entered. A
// coupon without a code is one that the server granted by itself. The client can mark a coupon
// as defective when the order fails on it. Copy on write.
class ZTAPM_EXPORT ZTOCRBillCoupon
{
public:
    // Value -1 (not valid), no code.
    ZTOCRBillCoupon();
    ZTOCRBillCoupon(const QString& theCode, const ZTMoney& theValue);
    // A "coupon_sum": its own text is the value, -1 if it is no number; "code" the code.
    explicit ZTOCRBillCoupon(const QDomElement& theElement);
    ZTOCRBillCoupon(const ZTOCRBillCoupon& theOther);
    ZTOCRBillCoupon(ZTOCRBillCoupon&& theOther) noexcept;
    ZTOCRBillCoupon& operator=(const ZTOCRBillCoupon& theOther);
    ZTOCRBillCoupon& operator=(ZTOCRBillCoupon&& theOther) noexcept;
    virtual ~ZTOCRBillCoupon();

    // Value, code and defective flag.
    bool operator==(const ZTOCRBillCoupon& theOther) const;
    bool operator!=(const ZTOCRBillCoupon& theOther) const { return !(*this == theOther); }
    // Compares where the records lie, so that coupons can be kept in ordered containers; it
    // says nothing about their content.
    bool operator<(const ZTOCRBillCoupon& theOther) const;

    // A value of 0 or more.
    bool isValid() const;
    bool isDefective() const;
    void setDefective(bool theDefective);
    ZTMoney value() const;
    void setValue(const ZTMoney& theValue);
    QString code() const;
    bool isUserCoupon() const;
    // The code in bold for a message, "<b>CODE</b>"; empty without a code.
    QString codeInQuotes() const;

private:
    QSharedDataPointer<ZTOCRBillCouponImpl> d;
};

#endif // ZTOCRBILLCOUPON_H
