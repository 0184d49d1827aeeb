// The price models of ZTAPMArticlePriceInfo: which model prices an article, each model's
// arithmetic, the transfer over a whole basket, and the positions a bill receives. Reading the
// price table and the lookups on it are in ZTAPMArticlePriceInfo.cpp.
#include "ZTAPMArticlePriceInfo.h"

#include "ZTAPMBillPosition.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTAPMBillPositionList.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMOrderStatistic.h"
#include "ZTProductAbstract.h"

#include <QDebug>

namespace {

// Price questions nest: the search for the best model prices the article in every model, and
// the chosen model is priced once more for the answer. An amount that does not fit is noted for
// the question running on this thread, and only the outermost question warns, once.
thread_local int theQuestionDepth = 0;
thread_local bool theAmountDidNotFit = false;

class PriceQuestion
{
public:
    PriceQuestion()
    {
        if (theQuestionDepth++ == 0)
            theAmountDidNotFit = false;
    }
    ~PriceQuestion() { --theQuestionDepth; }
    Q_DISABLE_COPY_MOVE(PriceQuestion)

    // The answer, with the warning where it is no price because an amount did not fit.
    ZTMoney answer(const ZTMoney& theAmount, const ZTArticleId& theArticleId, int theCount) const
    {
        if (theQuestionDepth == 1 && theAmountDidNotFit && theAmount == ZTMoney(ZTMoney::noPrice))
            qWarning().noquote() << QStringLiteral("The amount of article %1 for %2 piece(s) does not fit "
                                                   "in 32 bits: no price")
                                        .arg(theArticleId.id())
                                        .arg(theCount);
        return theAmount;
    }
};

// theUnitPrice times theFactor plus theAddend, exactly; no price, noted, where the result
// cannot be an amount. The factor may be a difference of two counts, so it takes 64 bits.
ZTMoney exactAmount(const ZTMoney& theUnitPrice, qint64 theFactor, const ZTMoney& theAddend = ZTMoney(0))
{
    qint64 product = 0;
    qint64 sum = 0;
    if (__builtin_mul_overflow(qint64(theUnitPrice.value()), theFactor, &product) ||
        __builtin_add_overflow(product, qint64(theAddend.value()), &sum) || !ZTMoney::fits(sum)) {
        theAmountDidNotFit = true;
        return ZTMoney(ZTMoney::noPrice);
    }
    return ZTMoney(qint32(sum));
}

ZTMoney times(const ZTMoney& theMoney, qint64 theFactor)
{
    return exactAmount(theMoney, theFactor);
}

// The price outside the offer, or the row's own price where no offer runs.
ZTMoney orOfferPrice(const ZTAPMPriceValue& theValue)
{
    return theValue.nonOfferPrice().isValid() ? theValue.nonOfferPrice() : theValue.price();
}

} // namespace

bool ZTAPMArticlePriceInfo::isOrderableThisWay(const ZTOrderSource& theOrderSource) const
{
    return priceFor(ZTAPMPriceKey(theOrderSource), 1, ZTMoney(0), nullptr, nullptr).isValid();
}

bool ZTAPMArticlePriceInfo::canOrderPOS() const
{
    return isOrderableThisWay(ZTOrderSource::cdPointOfSale()) ||
           isOrderableThisWay(ZTOrderSource::onlinePointOfSale());
}

ZTMoney ZTAPMArticlePriceInfo::priceFor(const ZTAPMPriceKey& theKey, int theCount,
                                        const ZTMoney& theBillingSum, ZTAPMBillPositionList* theBill,
                                        const ZTAPMOrderStatistic* theStatistic) const
{
    const PriceQuestion question;
    if (myTransferModel == ZTTransferModelPerBasket)
        return question.answer(priceInTransferModel2(theKey, theStatistic, theBill), myArticleId, theCount);
    const int inheritedLevel = theBill ? inheritedDiscountLevel(*theBill) : 0;
    return question.answer(priceInModel(chosenKey(theKey, theCount, theBillingSum, inheritedLevel), theCount,
                                        theBillingSum, theBill),
                           myArticleId, theCount);
}

ZTAPMPriceKey ZTAPMArticlePriceInfo::chosenKey(const ZTAPMPriceKey& theKey, int theCount,
                                               const ZTMoney& theBillingSum, int theInheritedLevel) const
{
    // The caller of an express fee names its model; it takes no part in the search.
    if (theKey.discountModel() == ZTDiscountModelExpressFee)
        return theKey;
    ZTAPMPriceKey key(theKey);
    key.setDiscountModel(bestDiscountModel(theKey, theCount, theBillingSum, theInheritedLevel));
    if (key.discountModel() == ZTDiscountModelInherited)
        key.setDiscountLevel(theInheritedLevel);
    return key;
}

ZTAPMPriceKey ZTAPMArticlePriceInfo::candidateKey(const ZTAPMPriceKey& theKey,
                                                  const ZTDiscountModel& theModel, int theInheritedLevel)
{
    ZTAPMPriceKey key(theKey, theModel);
    if (theModel == ZTDiscountModelInherited)
        key.setDiscountLevel(theInheritedLevel);
    return key;
}

ZTAPMPriceExplanation ZTAPMArticlePriceInfo::explainPrice(const ZTAPMPriceKey& theKey, int theCount,
                                                          const ZTMoney& theBillingSum,
                                                          const ZTAPMOrderStatistic* theStatistic) const
{
    const PriceQuestion question;
    const bool expressFee = theKey.discountModel() == ZTDiscountModelExpressFee;
    QList<ZTAPMPriceExplanation::Candidate> candidates;
    for (const ZTDiscountModel& model : myDiscountModelsInOrder) {
        if (expressFee && model != ZTDiscountModelExpressFee)
            continue;
        candidates.append(
            {model, priceInModel(candidateKey(theKey, model, 0), theCount, theBillingSum, nullptr)});
    }
    ZTDiscountModel chosen;
    ZTMoney amount;
    if (myTransferModel == ZTTransferModelPerBasket) {
        chosen = ZTDiscountModelBasketTransfer;
        amount = priceInTransferModel2(theKey, theStatistic, nullptr);
    } else {
        const ZTAPMPriceKey key = chosenKey(theKey, theCount, theBillingSum, 0);
        chosen = key.discountModel();
        amount = priceInModel(key, theCount, theBillingSum, nullptr);
    }
    if (amount == ZTMoney(ZTMoney::noPrice))
        chosen = ZTDiscountModel();
    return ZTAPMPriceExplanation(chosen, question.answer(amount, myArticleId, theCount), candidates);
}

int ZTAPMArticlePriceInfo::inheritedDiscountLevel(const ZTAPMBillPositionList& theBill) const
{
    int result = 0;
    const ZTProductAbstract* addOn = product();
    if (!addOn || !addOn->hasArticleClass(ZTArticleClassAllAddOns))
        return result;
    // The linked articles are priced before their add-ons, so their positions are there already.
    const ZTAPMBillPositionList positions = theBill.filter(ZTArticleClass(ZTArticleClassAll));
    // The highest level wins, so the walk's order does not matter.
    const ZTArticleIdSet linkedIds = addOn->linkedArticleIds();
    for (const ZTArticleId& id : linkedIds) {
        const ZTAPMBillPosition* position =
            positions.position(ZTAPMDataBase::instance()->productAbstract(id));
        if (position && position->discountLevel() > result)
            result = position->discountLevel();
    }
    return result;
}

ZTMoney ZTAPMArticlePriceInfo::priceInModel(const ZTAPMPriceKey& theKey, int theCount,
                                            const ZTMoney& theBillingSum,
                                            ZTAPMBillPositionList* theBill) const
{
    const PriceQuestion question;
    ZTAPMBillPositionList positions;
    ZTAPMBillPositionList* list = theBill ? &positions : nullptr;
    ZTMoney result;
    switch (theKey.discountModel().value()) {
    case ZTDiscountModelBulk:
        result = priceBulk(theKey, theCount, list);
        break;
    case ZTDiscountModelBulkTransfer:
        result = priceBulkTransfer(theKey, theCount, list);
        break;
    case ZTDiscountModelBillingSumTransfer:
        result = priceBillingSumTransfer(theKey, theBillingSum, list);
        break;
    case ZTDiscountModelExpressFee:
        result = priceExpressFee(theKey, theCount, list);
        break;
    case ZTDiscountModelInherited:
        result = priceInheritedDiscount(theKey, theCount, list);
        break;
    case ZTDiscountModelFotoPackage:
        result = priceFotoPackage(theKey, theCount, list);
        break;
    default:
        result = ZTMoney(ZTMoney::noPrice);
        if (list)
            list->append(new ZTAPMBillPositionInvalid(product()));
        break;
    }
    if (theBill)
        theBill->append(positions);
    return question.answer(result, myArticleId, theCount);
}

ZTDiscountModel ZTAPMArticlePriceInfo::bestDiscountModel(const ZTAPMPriceKey& theKey, int theCount,
                                                         const ZTMoney& theBillingSum,
                                                         int theInheritedLevel) const
{
    // A question of its own, so that the models it tries do not warn.
    const PriceQuestion question;
    ZTMoney bestPrice(ZTMoney::notSet);
    ZTDiscountModel bestModel;
    for (const ZTDiscountModel& model : myDiscountModelsInOrder) {
        const ZTMoney price =
            priceInModel(candidateKey(theKey, model, theInheritedLevel), theCount, theBillingSum, nullptr);
        if (price == ZTMoney(ZTMoney::noPrice))
            continue;
        // A transfer by the goods' sum and an inherited level are the business's decision
        // whenever they apply, even where another model would be cheaper.
        if (model == ZTDiscountModelBillingSumTransfer || model == ZTDiscountModelInherited)
            return model;
        // Strict: of equal prices the lower model value, visited first, stays.
        if (bestPrice > price) {
            bestPrice = price;
            bestModel = model;
        }
    }
    return bestModel;
}

ZTMoney ZTAPMArticlePriceInfo::transferPriceFor(const ZTAPMPriceKey& theKey, int theCount,
                                                const ZTMoney& theBillingSum,
                                                const ZTAPMOrderStatistic* theStatistic) const
{
    if (myTransferModel == ZTTransferModelPerBasket)
        return baseTransferPriceInTransferModel2(theKey, theStatistic);
    const PriceQuestion question;
    ZTAPMPriceKey key(theKey);
    key.setDiscountModel(bestDiscountModel(theKey, theCount, theBillingSum, 0));
    return question.answer(priceInModel(key, theCount, theBillingSum, nullptr), myArticleId, theCount);
}

ZTMoney ZTAPMArticlePriceInfo::priceBulk(const ZTAPMPriceKey& theKey, int theCount,
                                         ZTAPMBillPositionList* theList) const
{
    ZTAPMPriceKey key(theKey);
    key.setDiscountLevel(bestDiscountLevel(theKey, theCount));
    const ZTAPMPriceValue value = priceValue(key);
    const ZTMoney amount = value.isValid() ? times(value.price(), theCount) : ZTMoney(ZTMoney::noPrice);
    if (theList)
        theList->append(pricedPosition(amount, theCount, value));
    return amount;
}

ZTMoney ZTAPMArticlePriceInfo::priceBulkTransfer(const ZTAPMPriceKey& theKey, int theCount,
                                                 ZTAPMBillPositionList* theList) const
{
    return priceFlat(ZTAPMPriceKey(theKey, ZTDiscountModelBulkTransfer), theCount, theList);
}

ZTMoney ZTAPMArticlePriceInfo::priceExpressFee(const ZTAPMPriceKey& theKey, int theCount,
                                               ZTAPMBillPositionList* theList) const
{
    return priceFlat(ZTAPMPriceKey(theKey, ZTDiscountModelExpressFee), theCount, theList);
}

ZTMoney ZTAPMArticlePriceInfo::priceFlat(const ZTAPMPriceKey& theKey, int theCount,
                                         ZTAPMBillPositionList* theList) const
{
    if (theCount == 0)
        return ZTMoney(0);
    ZTAPMPriceKey key(theKey);
    key.setDiscountLevel(bestDiscountLevel(key, theCount));
    // No validity test: a missing row is charged as -1 and shows in the bill as such.
    const ZTAPMPriceValue value = priceValue(key);
    if (theList)
        theList->append(createBillPosition(1, 1, value));
    return value.price();
}

ZTMoney ZTAPMArticlePriceInfo::priceBillingSumTransfer(const ZTAPMPriceKey& theKey,
                                                       const ZTMoney& theBillingSum,
                                                       ZTAPMBillPositionList* theList) const
{
    if (theBillingSum.isNull())
        return ZTMoney(0);
    ZTAPMPriceKey key(theKey, ZTDiscountModelBillingSumTransfer);
    // The bounds of "z" rows are sums of money.
    key.setDiscountLevel(bestDiscountLevel(key, theBillingSum.value()));
    if (key.discountLevel() > 0) {
        const ZTAPMPriceValue value = priceValue(key);
        if (theList)
            theList->append(createBillPosition(1, 1, value));
        return value.price();
    }
    // Below the first bound the level 0 "f" row applies: no quantity bound is passed by -1.
    return priceBulkTransfer(key, -1, theList);
}

ZTMoney ZTAPMArticlePriceInfo::priceInheritedDiscount(const ZTAPMPriceKey& theKey, int theCount,
                                                      ZTAPMBillPositionList* theList) const
{
    // An add-on's ladder may be shorter than its article's: the nearest lower level applies.
    // Only the levels the ladder has, so an inherited level far above it costs nothing.
    const QList<int> levels = myPriceValues.levels(theKey.orderSource(), theKey.discountModel());
    ZTAPMPriceKey key(theKey);
    ZTAPMPriceValue value;
    for (auto it = levels.crbegin(); it != levels.crend() && *it >= 0; ++it) {
        if (*it > theKey.discountLevel())
            continue;
        key.setDiscountLevel(*it);
        value = priceValue(key);
        if (value.isValid())
            break;
    }
    const ZTMoney amount = value.isValid() ? times(value.price(), theCount) : ZTMoney(ZTMoney::noPrice);
    if (theList)
        theList->append(pricedPosition(amount, theCount, value));
    return amount;
}

ZTMoney ZTAPMArticlePriceInfo::priceFotoPackage(const ZTAPMPriceKey& theKey, int theCount,
                                                ZTAPMBillPositionList* theList) const
{
    ZTAPMPriceKey key(theKey);
    key.setDiscountLevel(bestDiscountLevel(theKey, theCount));
    const ZTAPMPriceValue value = priceValue(key);
    if (!value.isValid())
        return ZTMoney(ZTMoney::noPrice);

    ZTMoney total;
    ZTMoney nonOfferTotal;
    if (value.discountLimit().wasBulkModel()) {
        // A former "y" row: every photo at this row's price, no base package.
        total = times(value.price(), theCount);
        nonOfferTotal = value.nonOfferPrice().isValid() ? times(value.nonOfferPrice(), theCount)
                                                        : ZTMoney(ZTMoney::noPrice);
    } else if (key.discountLevel() != 1) {
        // The base package, then each photo beyond it at this row's price.
        ZTAPMPriceKey baseKey(theKey);
        baseKey.setDiscountLevel(1);
        const ZTAPMPriceValue base = priceValue(baseKey);
        const qint64 further = qint64(theCount) - base.upperLimit();
        total = exactAmount(value.price(), further, base.price());
        if (!base.nonOfferPrice().isValid() && !value.nonOfferPrice().isValid())
            nonOfferTotal = ZTMoney(ZTMoney::noPrice);
        else
            nonOfferTotal = exactAmount(orOfferPrice(value), further, orOfferPrice(base));
    } else {
        // Within the base package: the same price for any number of photos.
        total = value.price();
        nonOfferTotal = value.nonOfferPrice();
    }
    if (theList && total == ZTMoney(ZTMoney::noPrice))
        theList->append(new ZTAPMBillPositionInvalid(product()));
    else if (theList)
        theList->append(createBillPosition(1, theCount, value.discountLimit(), total, nonOfferTotal));
    return total;
}

ZTMoney ZTAPMArticlePriceInfo::priceInTransferModel2(const ZTAPMPriceKey& theKey,
                                                     const ZTAPMOrderStatistic* theStatistic,
                                                     ZTAPMBillPositionList* theBill) const
{
    const ZTAPMPriceKey key(theKey, ZTDiscountModelBulk);
    const ZTMoney unitHalf = unitTransferPriceInTransferModel2(key, theStatistic);
    const ZTMoney result =
        unitHalf == ZTMoney(ZTMoney::noPrice)
            ? unitHalf
            : exactAmount(baseTransferPriceInTransferModel2(key, theStatistic), 1, unitHalf);
    if (theBill && result == ZTMoney(ZTMoney::noPrice)) {
        theBill->append(new ZTAPMBillPositionInvalid(product()));
    } else if (theBill) {
        const ZTDiscountLimit limit(ZTDiscountModelBasketTransfer, 0, 0, -1);
        theBill->append(createBillPosition(1, 1, limit, result, ZTMoney(ZTMoney::noPrice)));
    }
    return result;
}

ZTMoney
ZTAPMArticlePriceInfo::baseTransferPriceInTransferModel2(const ZTAPMPriceKey& theKey,
                                                         const ZTAPMOrderStatistic* theStatistic) const
{
    ZTMoney result(0);
    if (!theStatistic)
        return result;
    const ZTAPMPriceKey key(theKey, ZTDiscountModelBulk);
    for (const ZTAPMOrderStatistic::Item& item : theStatistic->itemsByArticleId()) {
        if (item.second != 0)
            result = qMax(result, item.first->baseTransferPrice(key));
    }
    return result;
}

ZTMoney
ZTAPMArticlePriceInfo::unitTransferPriceInTransferModel2(const ZTAPMPriceKey& theKey,
                                                         const ZTAPMOrderStatistic* theStatistic) const
{
    ZTMoney sum(0);
    if (!theStatistic)
        return sum;
    const ZTAPMPriceKey key(theKey, ZTDiscountModelBulk);
    const ZTProductAbstract* leader = nullptr;
    ZTMoney leaderBasePrice;
    // Unlike the base half, products without pieces take part: one of them may lead. Of equal
    // base prices the lowest article id leads, as the walk goes by article id.
    for (const ZTAPMOrderStatistic::Item& item : theStatistic->itemsByArticleId()) {
        const ZTMoney basePrice = item.first->baseTransferPrice(key);
        if (!leader || basePrice > leaderBasePrice) {
            leader = item.first;
            leaderBasePrice = basePrice;
        }
        if (sum != ZTMoney(ZTMoney::noPrice))
            sum = exactAmount(item.first->unitTransferPrice(key), item.second, sum);
    }
    // One piece of the leading product is paid by the base price instead.
    if (leader && sum != ZTMoney(ZTMoney::noPrice))
        sum = exactAmount(leader->unitTransferPrice(key), -1, sum);
    return sum;
}

ZTAPMBillPosition* ZTAPMArticlePriceInfo::createBillPosition(int theUnitCount, int theItemsPerUnit,
                                                             const ZTDiscountLimit& theLimit,
                                                             const ZTMoney& theUnitPrice,
                                                             const ZTMoney& theNonOfferPrice) const
{
    return new ZTAPMBillPosition(product(), theUnitCount, theItemsPerUnit, theLimit, theUnitPrice,
                                 theNonOfferPrice);
}

ZTAPMBillPositionAbstract* ZTAPMArticlePriceInfo::pricedPosition(const ZTMoney& theAmount, int theUnitCount,
                                                                 const ZTAPMPriceValue& theValue) const
{
    // A row that prices, yet whose amount does not fit, cannot stand in a bill.
    if (theValue.isValid() && theAmount == ZTMoney(ZTMoney::noPrice))
        return new ZTAPMBillPositionInvalid(product());
    return createBillPosition(theUnitCount, 1, theValue);
}

ZTAPMBillPosition* ZTAPMArticlePriceInfo::createBillPosition(int theUnitCount, int theItemsPerUnit,
                                                             const ZTAPMPriceValue& theValue) const
{
    return createBillPosition(theUnitCount, theItemsPerUnit, theValue.discountLimit(), theValue.price(),
                              theValue.nonOfferPrice());
}
