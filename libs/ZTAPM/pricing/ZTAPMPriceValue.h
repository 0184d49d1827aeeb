#ifndef ZTAPMPRICEVALUE_H
#define ZTAPMPRICEVALUE_H

#include "ZTDiscountLimit.h"
#include "ZTMoney.h"
#include "ztapm_export.h"

#include <QSharedDataPointer>
#include <QString>

class QDebug;
class QDomElement;
class ZTAPMPriceValueImpl;

// The content of one row of an article's price table: the price (per piece or for the whole,
// depending on the model), its ladder step, transfer costs and an optional offer. Copy on write.
class ZTAPM_EXPORT ZTAPMPriceValue
{
public:
    // Price -1, invalid limit, transfer prices 0, no offer: an invalid value.
    ZTAPMPriceValue();
    // Reads a "price" element: "price", "transfer_unit_price", "transfer_base_price",
    // "non_offer_price", "end_offer_date" and the limit.
    explicit ZTAPMPriceValue(const QDomElement& theElement);
    ZTAPMPriceValue(const ZTAPMPriceValue& theOther);
    ZTAPMPriceValue(ZTAPMPriceValue&& theOther) noexcept;
    ZTAPMPriceValue& operator=(const ZTAPMPriceValue& theOther);
    ZTAPMPriceValue& operator=(ZTAPMPriceValue&& theOther) noexcept;
    ~ZTAPMPriceValue();

    // One shared default value for callers that need a reference to "no row".
    static const ZTAPMPriceValue& invalidPrice();

    bool operator==(const ZTAPMPriceValue& theOther) const;
    bool operator!=(const ZTAPMPriceValue& theOther) const;
    bool operator==(const ZTAPMPriceValue* theOther) const;
    bool operator!=(const ZTAPMPriceValue* theOther) const;

    const ZTDiscountLimit& discountLimit() const;
    int lowerLimit() const;
    int upperLimit() const;
    int discountLevel() const;
    const ZTDiscountModel& discountModel() const;

    const ZTMoney& price() const;
    const ZTMoney& baseTransferPrice() const;
    const ZTMoney& unitTransferPrice() const;
    // The stored price outside the offer while the offer runs, -1 otherwise. Evaluated at each
    // call, so a value read yesterday knows when its offer ended.
    ZTMoney nonOfferPrice() const;
    bool isOfferPriceValid() const;
    qint64 endOfferDateEpoch() const;

    // A valid price and a limit with a model.
    bool isValid() const;

    void setDiscountModel(const ZTDiscountModel& theModel);
    void setUpperLimit(int theUpperLimit);

    QString dump() const;

    bool isSharedWith(const ZTAPMPriceValue& theOther) const;

private:
    QSharedDataPointer<ZTAPMPriceValueImpl> d;
};

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTAPMPriceValue& theValue);

#endif // ZTAPMPRICEVALUE_H
