#ifndef ZTPAYMENTID_H
#define ZTPAYMENTID_H

#include "ztapm_export.h"

#include <QHashFunctions>
#include <QString>

class QDebug;

// The number under which the server knows a payment method; -1 is no method.
class ZTAPM_EXPORT ZTPaymentId
{
public:
    static constexpr qint32 invalidId = -1;
    static constexpr qint32 pointOfSaleId = 0;
    static constexpr qint32 klarnaId = 25;

    ZTPaymentId();
    explicit ZTPaymentId(int theId);
    // Decimal text; anything else is the invalid id.
    explicit ZTPaymentId(const QString& theText);

    bool operator==(const ZTPaymentId& other) const { return myId == other.myId; }
    bool operator!=(const ZTPaymentId& other) const { return myId != other.myId; }
    bool operator<(const ZTPaymentId& other) const { return myId < other.myId; }

    bool isValid() const { return myId != invalidId; }
    bool isKlarna() const { return myId == klarnaId; }
    bool isPOS() const { return myId == pointOfSaleId; }
    int id() const { return myId; }
    QString toString() const;

private:
    qint32 myId = invalidId;
};

inline size_t qHash(const ZTPaymentId& theId, size_t seed = 0) noexcept
{
    return qHash(theId.id(), seed);
}

ZTAPM_EXPORT QDebug operator<<(QDebug debug, const ZTPaymentId& theId);

#endif // ZTPAYMENTID_H
