#include "ZTAPMBill.h"

#include "ZTAPMBillPosition.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMPriceKey.h"
#include "ZTExpressKey.h"
#include "ZTPaymentMethod.h"
#include "ZTProductAbstract.h"
#include "ZTShipmentMethod.h"
#include "ZTSingleton.h"

#include <QDebug>

#include <algorithm>

namespace {

// Every class but the four fee classes: the goods of a bill.
const ZTArticleClass theGoods(ZTArticleClassEnum(ZTArticleClassAll & ~ZTArticleClassAllFees));

ZTAPMDataBase* dataBase()
{
    return ZTSingleton<ZTAPMDataBase>::instance();
}

// The price of one fee under the key outside any bill; an invalid price counts as free.
ZTMoney feePrice(const ZTProductAbstract* theProduct, const ZTAPMPriceKey& theKey)
{
    if (!theProduct)
        return ZTMoney(0);
    const ZTMoney price = theProduct->priceFor(theKey, 1, ZTMoney(1), nullptr, nullptr);
    return price > ZTMoney(0) ? price : ZTMoney(0);
}

} // namespace

ZTAPMBill::ZTAPMBill(const ZTShippingGroupId& theShippingGroup, const ZTAPMStatus& theStatus,
                     const ZTExpressType& theExpressType, const ZTAPMOrderStatistic& theStatistic)
    : myStatistic(theStatistic)
    , myShippingGroup(theShippingGroup)
    , myStatus(theStatus)
    , myExpressType(theExpressType)
{
    init();
}

ZTAPMBill::ZTAPMBill(const ZTAPMBill& theOther)
    : ZTAPMBillPositionList()
    , myStatistic(theOther.myStatistic)
    , myShippingGroup(theOther.myShippingGroup)
    , myStatus(theOther.myStatus)
    , myExpressType(theOther.myExpressType)
{
    reserve(theOther.size());
    for (const ZTAPMBillPositionAbstract* position : theOther)
        append(position->clone());
}

ZTAPMBill::~ZTAPMBill()
{
    qDeleteAll(*this);
}

QMap<ZTShippingGroupId, ZTAPMOrderStatistic>
ZTAPMBill::shippingGroupStatistics(const ZTAPMOrderStatistic& theStatistic)
{
    QMap<ZTShippingGroupId, ZTAPMOrderStatistic> groups;
    for (const ZTAPMOrderStatistic::Item& item : theStatistic.itemsByArticleId()) {
        if (item.first)
            groups[item.first->shippingGroupId()].add(item.first, item.second);
    }
    return groups;
}

void ZTAPMBill::init()
{
    const int expressableCount = initProductPositions();
    initTransferPosition();
    initPaymentPosition();
    initExpressPosition(expressableCount);
}

int ZTAPMBill::initProductPositions()
{
    const ZTAPMPriceKey key = myStatus.priceKey();
    int expressableCount = 0;
    QList<ZTProductAbstract*> addOns;
    // In ascending article id, so that a bill's positions come in the same order every time.
    for (const ZTAPMOrderStatistic::Item& item : myStatistic.itemsByArticleId()) {
        ZTProductAbstract* product = item.first;
        if (!product)
            continue;
        if (product->isAddOn()) {
            addOns.append(product);
            continue;
        }
        const int count = myStatistic.countItems(product, 0);
        product->priceFor(key, count, ZTMoney(0), this, &myStatistic);
        if (product->isExpressable())
            expressableCount += count;
    }
    // Last, since an add-on takes over the discount level its linked articles reached here.
    for (ZTProductAbstract* addOn : std::as_const(addOns))
        addOn->priceFor(key, myStatistic.countItems(addOn, 0), ZTMoney(0), this, &myStatistic);
    return expressableCount;
}

void ZTAPMBill::initTransferPosition()
{
    const ZTProductAbstract* product = transferProduct();
    if (!product) {
        qWarning().nospace() << "-- transfer article missing for shippinggroup " << myShippingGroup.id();
        return;
    }
    product->priceFor(myStatus.priceKey(), totalItemCount(theGoods), totalItemCost(theGoods), this,
                      &myStatistic);
}

void ZTAPMBill::initPaymentPosition()
{
    if (totalPriceIsVoid())
        return;
    if (const ZTProductAbstract* product = paymentProduct())
        product->priceFor(myStatus.priceKey(), 1, ZTMoney(0), this, nullptr);
}

void ZTAPMBill::initExpressPosition(int theExpressableCount)
{
    const ZTProductAbstract* product = expressProduct();
    if (!product)
        return;
    ZTAPMPriceKey key = myStatus.priceKey();
    key.setDiscountModel(ZTDiscountModel(ZTDiscountModelExpressFee));
    product->priceFor(key, theExpressableCount, ZTMoney(0), this, nullptr);
}

bool ZTAPMBill::isValid() const
{
    return ZTAPMBillPositionList::isValid();
}

ZTOrderSource ZTAPMBill::orderSource() const
{
    return myStatus.orderSource();
}

ZTAPMBillPositionList ZTAPMBill::billPositions(const ZTArticleClass& theClass) const
{
    return filter(theClass);
}

ZTAPMBillPositionList ZTAPMBill::billPositions(const ZTProductAbstract* theProduct) const
{
    return filter(theProduct);
}

ZTAPMBillPositionList ZTAPMBill::sortedBillPositions(const ZTArticleClass& theClass) const
{
    ZTAPMBillPositionList positions = filter(theClass);
    // Positions of equal names keep the bill's own order rather than their addresses', so that
    // the same basket is always shown the same way.
    std::stable_sort(
        positions.begin(), positions.end(),
        [](const ZTAPMBillPositionAbstract* theFirst, const ZTAPMBillPositionAbstract* theSecond) {
            return theFirst->productName() != theSecond->productName() &&
                   ZTAPMBillPositionAbstract::lessThan(theFirst, theSecond);
        });
    return positions;
}

ZTAPMBillPosition* ZTAPMBill::billPosition(const ZTProductAbstract* theProduct) const
{
    return billPositions(ZTArticleClass(ZTArticleClassAll)).position(theProduct);
}

void ZTAPMBill::addBillPosition(ZTAPMBillPositionAbstract* thePosition)
{
    append(thePosition);
}

void ZTAPMBill::addBillPositions(const ZTAPMBillPositionList& thePositions)
{
    append(thePositions);
}

ZTMoney ZTAPMBill::totalItemCost(const ZTArticleClass& theClass) const
{
    ZTMoney sum(0);
    for (const ZTAPMBillPositionAbstract* position : billPositions(theClass))
        sum += position->positionPrice();
    return sum;
}

int ZTAPMBill::totalItemCount(const ZTArticleClass& theClass) const
{
    const ZTArticleClass withoutAddOns(ZTArticleClassEnum(theClass.value() & ~ZTArticleClassAllAddOns));
    int count = 0;
    for (const ZTAPMBillPositionAbstract* position : billPositions(withoutAddOns))
        count += position->unitCount() * position->itemsPerUnit();
    return count;
}

ZTMoney ZTAPMBill::totalFinalCost() const
{
    const ZTMoney total = totalItemCost(ZTArticleClass(ZTArticleClassAll));
    return total < ZTMoney(0) ? ZTMoney(0) : total;
}

bool ZTAPMBill::totalPriceIsVoid() const
{
    return totalFinalCost() <= ZTMoney(0);
}

ZTProductAbstract* ZTAPMBill::transferProduct() const
{
    return dataBase()->transferProduct(myShippingGroup);
}

ZTProductAbstract* ZTAPMBill::expressProduct() const
{
    return dataBase()->expressFeeProduct(ZTExpressKey(myShippingGroup, myExpressType));
}

ZTProductAbstract* ZTAPMBill::paymentProduct() const
{
    return myStatus.paymentMethod().paymentFeeProduct();
}

ZTMoney ZTAPMBill::priceOfFeePosition(const ZTProductAbstract* theProduct) const
{
    const ZTAPMBillPosition* position = billPosition(theProduct);
    return position ? position->positionPrice() : ZTMoney(0);
}

ZTMoney ZTAPMBill::priceOfExpressFee() const
{
    return priceOfFeePosition(expressProduct());
}

ZTMoney ZTAPMBill::priceOfPaymentFee() const
{
    return priceOfFeePosition(paymentProduct());
}

ZTMoney ZTAPMBill::priceOfUnitTransfer() const
{
    ZTAPMPriceKey key = myStatus.priceKey();
    key.setDiscountLevel(0);
    const ZTAPMBillPosition* position = billPosition(transferProduct());
    return position ? position->product()->unitTransferPriceFor(key, &myStatistic) : ZTMoney(0);
}

ZTMoney ZTAPMBill::priceOfBaseTransfer() const
{
    ZTAPMPriceKey key = myStatus.priceKey();
    key.setDiscountLevel(0);
    const ZTAPMBillPosition* position = billPosition(transferProduct());
    return position ? position->product()->transferPriceFor(key, totalItemCount(theGoods),
                                                            totalItemCost(theGoods), &myStatistic)
                    : ZTMoney(0);
}

ZTMoney ZTAPMBill::transferFee() const
{
    ZTMoney fee = priceOfUnitTransfer();
    fee += priceOfBaseTransfer();
    return fee;
}

ZTMoney ZTAPMBill::priceOfPaymentFee(const ZTPaymentMethod& theMethod, const ZTAPMPriceKey& theKey)
{
    return feePrice(theMethod.paymentFeeProduct(), theKey);
}

ZTMoney ZTAPMBill::priceOfShipmentFee(const ZTShipmentMethod& theMethod, const ZTAPMPriceKey& theKey)
{
    return feePrice(dataBase()->shipmentMethodFeeProduct(theMethod.id()), theKey);
}

void ZTAPMBill::dump() const
{
    for (const ZTAPMBillPositionAbstract* position : *this)
        position->dump();
}
