#include "ZTAPMOrderQuote.h"

#include "ZTAPMBill.h"
#include "ZTShippingGroupId.h"

ZTAPMOrderQuote::ZTAPMOrderQuote(const ZTAPMStatus& theStatus, const ZTExpressType& theExpressType,
                                 const ZTAPMOrderStatistic& theBasket)
    : myStatus(theStatus)
    , myExpressType(theExpressType)
    , myBasket(theBasket)
    , myShipmentFee(ZTAPMBill::priceOfShipmentFee(theStatus.shipmentMethod(), theStatus.priceKey()))
{
    const auto statistics = ZTAPMBill::shippingGroupStatistics(theBasket);
    for (auto group = statistics.cbegin(); group != statistics.cend(); ++group)
        myBills.append(new ZTAPMBill(group.key(), theStatus, theExpressType, group.value()));
}

ZTAPMOrderQuote::~ZTAPMOrderQuote()
{
    qDeleteAll(myBills);
}

QList<const ZTAPMBill*> ZTAPMOrderQuote::bills() const
{
    return QList<const ZTAPMBill*>(myBills.cbegin(), myBills.cend());
}

const ZTAPMBill* ZTAPMOrderQuote::bill(const ZTShippingGroupId& theShippingGroup) const
{
    for (const ZTAPMBill* bill : myBills) {
        if (bill->shippingGroup() == theShippingGroup)
            return bill;
    }
    return nullptr;
}

bool ZTAPMOrderQuote::isValid() const
{
    for (const ZTAPMBill* bill : myBills) {
        if (!bill->isValid())
            return false;
    }
    return true;
}

ZTMoney ZTAPMOrderQuote::totalFinalCost() const
{
    ZTMoney total(0);
    for (const ZTAPMBill* bill : myBills)
        total += bill->totalFinalCost();
    total += myShipmentFee;
    return total;
}
