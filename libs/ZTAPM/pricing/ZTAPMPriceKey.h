#ifndef ZTAPMPRICEKEY_H
#define ZTAPMPRICEKEY_H

#include "ZTDiscountModel.h"
#include "ZTOrderSource.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>
#include <QString>

class QDebug;
class ZTAPMPriceKeyImpl;

// The address of a row in an article's price table: way of ordering, discount level, model.
// Lookups are exact; as a pattern (supercedes) unset parts match anything. Copy on write.
class ZTAPM_EXPORT ZTAPMPriceKey
{
public:
    // Unset: order source (-1, -2), level -1, model 0.
    ZTAPMPriceKey();
    ZTAPMPriceKey(const ZTOrderSource& theOrderSource, int theDiscountLevel, const ZTDiscountModel& theModel);
    // Level -1, model 0.
    explicit ZTAPMPriceKey(const ZTOrderSource& theOrderSource);
    // The order source of theOther with theModel at level 0; the level is not taken over.
    ZTAPMPriceKey(const ZTAPMPriceKey& theOther, const ZTDiscountModel& theModel);
    ZTAPMPriceKey(const ZTAPMPriceKey& theOther);
    ZTAPMPriceKey(ZTAPMPriceKey&& theOther) noexcept;
    ZTAPMPriceKey& operator=(const ZTAPMPriceKey& theOther);
    ZTAPMPriceKey& operator=(ZTAPMPriceKey&& theOther) noexcept;
    ~ZTAPMPriceKey();

    bool operator==(const ZTAPMPriceKey& theOther) const;
    bool operator!=(const ZTAPMPriceKey& theOther) const;
    // By hash value, as unsigned numbers.
    bool operator<(const ZTAPMPriceKey& theOther) const;

    // Whether this key, read as a pattern, covers theOther: an input source of -1, a delivery
    // type of -2, a level of -1 and model 0 match anything. A delivery type of -1 matches only -1.
    bool supercedes(const ZTAPMPriceKey& theOther) const;

    // Cached per body; never 0. Keys differing by one level and by four model steps collide.
    uint hashValue() const;

    bool isValid() const;

    const ZTOrderSource& orderSource() const;
    const ZTInputSource& inputSource() const;
    const ZTDeliveryType& deliveryType() const;
    int discountLevel() const;
    const ZTDiscountModel& discountModel() const;

    void setDiscountModel(const ZTDiscountModel& theModel);
    void setDiscountLevel(int theDiscountLevel);

    QString dump() const;

    bool isSharedWith(const ZTAPMPriceKey& theOther) const;

private:
    QSharedDataPointer<ZTAPMPriceKeyImpl> d;
};

inline size_t qHash(const ZTAPMPriceKey& theKey, size_t theSeed = 0) noexcept
{
    return qHash(theKey.hashValue(), theSeed);
}

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTAPMPriceKey& theKey);

#endif // ZTAPMPRICEKEY_H
