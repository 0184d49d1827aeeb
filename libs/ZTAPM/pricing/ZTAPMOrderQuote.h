#ifndef ZTAPMORDERQUOTE_H
#define ZTAPMORDERQUOTE_H

#include "ZTAPMOrderStatistic.h"
#include "ZTAPMStatus.h"
#include "ZTExpressType.h"
#include "ZTMoney.h"
#include "ztapm_export.h"

#include <QList>

class ZTAPMBill;
class ZTShippingGroupId;

// The client's own calculation of a whole order, as a host shows it before the order is sent:
// the basket split by shipping group, one bill per group in ascending group id, and the fee of
// the shipment method, which is charged once per order and so belongs to no bill.
class ZTAPM_EXPORT ZTAPMOrderQuote
{
public:
    ZTAPMOrderQuote(const ZTAPMStatus& theStatus, const ZTExpressType& theExpressType,
                    const ZTAPMOrderStatistic& theBasket);
    ZTAPMOrderQuote(const ZTAPMOrderQuote&) = delete;
    ZTAPMOrderQuote& operator=(const ZTAPMOrderQuote&) = delete;
    ~ZTAPMOrderQuote();

    ZTAPMStatus apmStatus() const { return myStatus; }
    ZTExpressType expressType() const { return myExpressType; }
    ZTAPMOrderStatistic basket() const { return myBasket; }

    // Owned by the quote, in ascending shipping group id.
    QList<const ZTAPMBill*> bills() const;
    // Null for a group without products in the basket.
    const ZTAPMBill* bill(const ZTShippingGroupId& theShippingGroup) const;
    // Every bill is valid.
    bool isValid() const;

    ZTMoney shipmentFee() const { return myShipmentFee; }
    // The bills' totals and the shipment fee.
    ZTMoney totalFinalCost() const;

private:
    ZTAPMStatus myStatus;
    ZTExpressType myExpressType;
    ZTAPMOrderStatistic myBasket;
    QList<ZTAPMBill*> myBills;
    ZTMoney myShipmentFee;
};

#endif // ZTAPMORDERQUOTE_H
