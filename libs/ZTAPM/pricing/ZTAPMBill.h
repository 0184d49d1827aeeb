#ifndef ZTAPMBILL_H
#define ZTAPMBILL_H

#include "ZTAPMBillPositionList.h"
#include "ZTAPMOrderStatistic.h"
#include "ZTAPMStatus.h"
#include "ZTExpressType.h"
#include "ZTShippingGroupId.h"
#include "ztapm_export.h"

#include <QList>
#include <QMap>

class ZTAPMPriceKey;
class ZTPaymentMethod;
class ZTProductAbstract;
class ZTShipmentMethod;

// The client's own calculation of one shipping group's part of an order: the basket of that group
// priced under a way of ordering, with the group's transfer, the payment fee and the express fee
// as positions of their own. The bill is complete when its constructor returns and is never
// priced again; a change of prices or status asks for a new bill. It owns its positions, which the
// price models append to it while it is built.
class ZTAPM_EXPORT ZTAPMBill : public ZTAPMBillPositionList
{
public:
    ZTAPMBill(const ZTShippingGroupId& theShippingGroup, const ZTAPMStatus& theStatus,
              const ZTExpressType& theExpressType, const ZTAPMOrderStatistic& theStatistic);
    // A copy owns copies of the positions.
    ZTAPMBill(const ZTAPMBill& theOther);
    ZTAPMBill& operator=(const ZTAPMBill& theOther) = delete;
    ~ZTAPMBill();

    // The baskets of a whole order, one per shipping group of its products, in ascending group
    // id: the bills a host builds for it. Null products are left out.
    static QMap<ZTShippingGroupId, ZTAPMOrderStatistic>
    shippingGroupStatistics(const ZTAPMOrderStatistic& theStatistic);

    // No article was left unpriced.
    bool isValid() const;
    ZTShippingGroupId shippingGroup() const { return myShippingGroup; }
    ZTAPMStatus apmStatus() const { return myStatus; }
    ZTOrderSource orderSource() const;
    ZTExpressType expressType() const { return myExpressType; }
    ZTAPMOrderStatistic statistic() const { return myStatistic; }

    ZTAPMBillPositionList billPositions(const ZTArticleClass& theClass) const;
    ZTAPMBillPositionList billPositions(const ZTProductAbstract* theProduct) const;
    // The positions of the class by product name, for display; equal names in the bill's order.
    ZTAPMBillPositionList sortedBillPositions(const ZTArticleClass& theClass) const;
    // The priced position of the product; null if it has none or was not priceable.
    ZTAPMBillPosition* billPosition(const ZTProductAbstract* theProduct) const;
    // The bill takes ownership.
    void addBillPosition(ZTAPMBillPositionAbstract* thePosition);
    void addBillPositions(const ZTAPMBillPositionList& thePositions);

    // The sum of the position prices of the class.
    ZTMoney totalItemCost(const ZTArticleClass& theClass) const;
    // The pieces of the class, units times pieces per unit. Add-ons are never counted as pieces,
    // though their cost counts.
    int totalItemCount(const ZTArticleClass& theClass) const;
    // What the bill costs, never below 0.
    ZTMoney totalFinalCost() const;
    bool totalPriceIsVoid() const;

    ZTProductAbstract* transferProduct() const;
    ZTProductAbstract* expressProduct() const;
    ZTProductAbstract* paymentProduct() const;
    // The price of the fee's position; 0 without one.
    ZTMoney priceOfExpressFee() const;
    ZTMoney priceOfPaymentFee() const;
    // The two halves of the transfer, as the transfer article computes them for this basket; 0
    // without a transfer position.
    ZTMoney priceOfUnitTransfer() const;
    ZTMoney priceOfBaseTransfer() const;
    ZTMoney transferFee() const;

    // The fee of a payment or shipment method for one order under the key, outside any bill; a
    // method without a fee article or with an unpriceable one costs nothing.
    static ZTMoney priceOfPaymentFee(const ZTPaymentMethod& theMethod, const ZTAPMPriceKey& theKey);
    static ZTMoney priceOfShipmentFee(const ZTShipmentMethod& theMethod, const ZTAPMPriceKey& theKey);

    // Every position to the log, in order.
    void dump() const;

private:
    // Each step reads what the one before left in the bill: the transfer is computed on the goods,
    // the payment fee only for a bill that costs something, the express fee on the expressable
    // pieces that the goods counted.
    void init();
    // Returns the number of expressable pieces.
    int initProductPositions();
    void initTransferPosition();
    void initPaymentPosition();
    void initExpressPosition(int theExpressableCount);
    ZTMoney priceOfFeePosition(const ZTProductAbstract* theProduct) const;

    ZTAPMOrderStatistic myStatistic;
    ZTShippingGroupId myShippingGroup;
    ZTAPMStatus myStatus;
    ZTExpressType myExpressType;
};

#endif // ZTAPMBILL_H
