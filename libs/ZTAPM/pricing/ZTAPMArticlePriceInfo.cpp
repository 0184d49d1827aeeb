#include "ZTAPMArticlePriceInfo.h"

#include "ZTAPMBillPosition.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTAPMBillPositionList.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMOrderStatistic.h"
#include "ZTDiscountLimitList.h"
#include "ZTProductAbstract.h"
#include "ZTXMLParser.h"

#include <QDebug>
#include <QDomElement>

#include <algorithm>
#include <tuple>

namespace {
const QString PRICE_NODE = QStringLiteral("price");

// The one row of a "price" element; false if the element has no usable model.
bool readPriceRow(const QDomElement& thePriceElement, ZTAPMPriceKey* theKey, ZTAPMPriceValue* theValue)
{
    const ZTAPMPriceValue value(thePriceElement);
    if (value.discountModel().isNull())
        return false;
    *theKey = ZTAPMPriceKey(ZTOrderSource(thePriceElement), value.discountLevel(), value.discountModel());
    *theValue = value;
    return true;
}

ZTMoney times(ZTMoney theMoney, int theFactor)
{
    theMoney *= theFactor;
    return theMoney;
}

bool byModelValue(const ZTDiscountModel& theFirst, const ZTDiscountModel& theSecond)
{
    return theFirst.value() < theSecond.value();
}

// The price outside the offer, or the row's own price where no offer runs.
ZTMoney orOfferPrice(const ZTAPMPriceValue& theValue)
{
    return theValue.nonOfferPrice().isValid() ? theValue.nonOfferPrice() : theValue.price();
}
} // namespace

ZTAPMArticlePriceInfo::ZTAPMArticlePriceInfo() : myArticleId(0)
{}

ZTAPMArticlePriceInfo::ZTAPMArticlePriceInfo(const ZTArticleId& theArticleId) : myArticleId(theArticleId)
{}

ZTAPMArticlePriceInfo::ZTAPMArticlePriceInfo(const ZTArticleId& theArticleId,
                                             const QDomElement& theArticleNode)
    : myArticleId(theArticleId)
{
    update(theArticleNode);
}

ZTAPMArticlePriceInfo::ZTAPMArticlePriceInfo(const ZTAPMArticlePriceInfo& theOther) = default;
ZTAPMArticlePriceInfo& ZTAPMArticlePriceInfo::operator=(const ZTAPMArticlePriceInfo& theOther) = default;
ZTAPMArticlePriceInfo::~ZTAPMArticlePriceInfo() = default;

ZTAPMArticlePriceInfo ZTAPMArticlePriceInfo::createFromXTCI(const QDomElement& theArticleNode)
{
    return ZTAPMArticlePriceInfo(ZTArticleId::fromIdAttribute(theArticleNode), theArticleNode);
}

QStringList ZTAPMArticlePriceInfo::xtciNodeNames()
{
    return {QStringLiteral("article"),        QStringLiteral("add_on"),
            QStringLiteral("transfer"),       QStringLiteral("express_fee"),
            QStringLiteral("pay_method_fee"), QStringLiteral("shipment_method_fee")};
}

QString ZTAPMArticlePriceInfo::xtciSectionName(const QString& theNodeName)
{
    return theNodeName + QLatin1Char('s');
}

void ZTAPMArticlePriceInfo::update(const QDomElement& theArticleNode)
{
    clear();
    ZTAPMPriceValues table;
    table.unite(parsePricesGroup(theArticleNode.firstChildElement(QStringLiteral("base_prices"))));
    table.unite(parsePricesGroup(theArticleNode.firstChildElement(QStringLiteral("discount_prices"))));
    // Upper bounds last, so that they are computed within the converted photo package ladder.
    myPriceValues = table.fixedDiscountModelW().fixedUpperLimits();
    myDiscountModels = myPriceValues.discountModels();
    myDiscountModelsInOrder = QList<ZTDiscountModel>(myDiscountModels.cbegin(), myDiscountModels.cend());
    std::sort(myDiscountModelsInOrder.begin(), myDiscountModelsInOrder.end(), byModelValue);
    myTransferModel = parseTransferModel(theArticleNode);
}

void ZTAPMArticlePriceInfo::clear()
{
    myPriceValues.clear();
    myDiscountModels.clear();
    myDiscountModelsInOrder.clear();
    myTransferModel = ZTTransferModelNone;
}

ZTAPMPriceValues ZTAPMArticlePriceInfo::parsePrice(const QDomElement& thePriceElement)
{
    ZTAPMPriceValues result;
    ZTAPMPriceKey key;
    ZTAPMPriceValue value;
    if (readPriceRow(thePriceElement, &key, &value))
        result.insert(key, value);
    return result;
}

ZTAPMPriceValues ZTAPMArticlePriceInfo::parsePricesGroup(const QDomElement& theGroup)
{
    ZTAPMPriceValues result;
    ZTAPMPriceKey key;
    ZTAPMPriceValue value;
    for (QDomElement price = theGroup.firstChildElement(PRICE_NODE); !price.isNull();
         price = price.nextSiblingElement(PRICE_NODE)) {
        if (readPriceRow(price, &key, &value))
            result.insert(key, value);
    }
    return result;
}

ZTTransferModel ZTAPMArticlePriceInfo::parseTransferModel(const QDomElement& theArticleNode)
{
    if (theArticleNode.tagName() != QLatin1String("transfer"))
        return ZTTransferModelNone;
    const QString keyword =
        ZTXMLParser::attribute(theArticleNode, QStringLiteral("model_id"), QString(), true);
    // One keyword, not a list; an unknown or missing one means the per-bill calculation.
    const ZTTransferModel model(ZTTransferModel().enumToStringTable()->decodeOneElement(keyword, false));
    return model == ZTTransferModelNone ? ZTTransferModel(ZTTransferModelPerBill) : model;
}

bool ZTAPMArticlePriceInfo::operator==(const ZTAPMArticlePriceInfo& theOther) const
{
    return myPriceValues == theOther.myPriceValues && myDiscountModels == theOther.myDiscountModels &&
           myTransferModel == theOther.myTransferModel;
}

bool ZTAPMArticlePriceInfo::operator!=(const ZTAPMArticlePriceInfo& theOther) const
{
    return !(*this == theOther);
}

bool ZTAPMArticlePriceInfo::isValid() const
{
    return *this != ZTAPMArticlePriceInfo();
}

ZTAPMPriceValue ZTAPMArticlePriceInfo::priceValue(const ZTAPMPriceKey& theKey) const
{
    return myPriceValues.value(theKey);
}

bool ZTAPMArticlePriceInfo::hasDiscountModel(const ZTOrderSource& theOrderSource,
                                             const ZTDiscountModel& theModel) const
{
    return myPriceValues.containsDiscountModel(theOrderSource, theModel);
}

QList<ZTAPMPriceValue> ZTAPMArticlePriceInfo::ladder(const ZTOrderSource& theOrderSource) const
{
    QList<ZTAPMPriceValue> result;
    const ZTAPMPriceValues::Rows& rows = myPriceValues.rows();
    for (auto it = rows.cbegin(); it != rows.cend(); ++it) {
        if (it.key().orderSource() == theOrderSource)
            result.append(it.value());
    }
    // Model and level make a row's key within one order source, so the order is total.
    std::sort(result.begin(), result.end(),
              [](const ZTAPMPriceValue& theFirst, const ZTAPMPriceValue& theSecond) {
                  if (theFirst.discountModel() != theSecond.discountModel())
                      return byModelValue(theFirst.discountModel(), theSecond.discountModel());
                  return theFirst.discountLevel() < theSecond.discountLevel();
              });
    return result;
}

ZTDiscountLimit ZTAPMArticlePriceInfo::fotoBasePackageLimit(const ZTOrderSource& theOrderSource) const
{
    return myPriceValues.fotoBasePackageLimit(theOrderSource);
}

ZTMoney ZTAPMArticlePriceInfo::nonOfferPrice(const ZTAPMPriceKey& theKey) const
{
    return priceValue(theKey).nonOfferPrice();
}

bool ZTAPMArticlePriceInfo::isOfferPriceValid(const ZTAPMPriceKey& theKey) const
{
    return priceValue(theKey).isOfferPriceValid();
}

ZTMoney ZTAPMArticlePriceInfo::baseTransferPrice(const ZTAPMPriceKey& theKey) const
{
    return priceValue(ZTAPMPriceKey(theKey, ZTDiscountModelBulk)).baseTransferPrice();
}

ZTMoney ZTAPMArticlePriceInfo::unitTransferPrice(const ZTAPMPriceKey& theKey) const
{
    return priceValue(ZTAPMPriceKey(theKey, ZTDiscountModelBulk)).unitTransferPrice();
}

int ZTAPMArticlePriceInfo::bestDiscountLevel(const ZTAPMPriceKey& theKey, int theQuantity) const
{
    ZTAPMPriceKey key(theKey);
    for (int level = maxDiscountLevel(); level >= 1; --level) {
        key.setDiscountLevel(level);
        const ZTAPMPriceValue value = priceValue(key);
        if (value.isValid() && value.lowerLimit() <= theQuantity)
            return level;
    }
    return 0;
}

ZTPriceBundle ZTAPMArticlePriceInfo::pricesAtBound(const ZTAPMPriceKey& theKey,
                                                   const ZTDiscountLimit& theLimit) const
{
    ZTAPMPriceKey key(theKey);
    key.setDiscountModel(theLimit.discountModel());
    for (int level = 0; level <= maxDiscountLevel(); ++level) {
        key.setDiscountLevel(level);
        const ZTAPMPriceValue value = priceValue(key);
        // Either test suffices: an article with other bounds than the shown ladder still
        // answers with its row of the same level.
        if (value.isValid() && (value.lowerLimit() == theLimit.lowerLimit() ||
                                value.discountLevel() == theLimit.discountLevel()))
            return ZTPriceBundle(myArticleId, value.price(), value.nonOfferPrice(), value.lowerLimit());
    }
    return ZTPriceBundle();
}

ZTMoney ZTAPMArticlePriceInfo::priceAtBound(const ZTAPMPriceKey& theKey,
                                            const ZTDiscountLimit& theLimit) const
{
    return pricesAtBound(theKey, theLimit).price();
}

ZTDiscountLimitSet ZTAPMArticlePriceInfo::discountLimits(const ZTAPMPriceKey& theKey) const
{
    ZTDiscountLimitSet result;
    if (theKey.discountLevel() == 0 && theKey.discountModel() != ZTDiscountModelBulk)
        return result;
    const ZTAPMPriceValues::Rows& rows = myPriceValues.rows();
    for (auto it = rows.cbegin(); it != rows.cend(); ++it) {
        if (theKey.supercedes(it.key()) && it.value().price().isValid())
            result.insert(it.value().discountLimit());
    }
    result.removeZeroLimits();
    return result;
}

int ZTAPMArticlePriceInfo::bestPriceCount(const ZTAPMPriceKey& theKey) const
{
    ZTDiscountLimitList limits(discountLimits(theKey).values());
    limits.sort();
    ZTMoney bestPrice(ZTMoney::notSet);
    int bestCount = ZTMoney::notSet;
    for (const ZTDiscountLimit& limit : std::as_const(limits)) {
        const ZTMoney candidate = priceAtBound(theKey, limit);
        if (!candidate.isValid())
            continue;
        // Of equal prices a photo package row that came from a bulk row names the better count.
        const bool takesOver =
            candidate < bestPrice ||
            (candidate == bestPrice && limit.discountModel().matches(ZTDiscountModelFotoPackage) &&
             limit.wasBulkModel());
        if (!takesOver)
            continue;
        bestPrice = candidate;
        bestCount = limit.lowerLimit();
    }
    return bestCount;
}

QString ZTAPMArticlePriceInfo::dump() const
{
    QStringList models;
    for (const ZTDiscountModel& model : myDiscountModelsInOrder)
        models.append(model.encode());
    // Rows by input source, delivery type, model value and level, so that two dumps compare.
    const ZTAPMPriceValues::Rows& values = myPriceValues.rows();
    QList<ZTAPMPriceKey> keys = values.keys();
    std::sort(keys.begin(), keys.end(), [](const ZTAPMPriceKey& theFirst, const ZTAPMPriceKey& theSecond) {
        return std::make_tuple(int(theFirst.inputSource().value()), int(theFirst.deliveryType().value()),
                               int(theFirst.discountModel().value()), theFirst.discountLevel()) <
               std::make_tuple(int(theSecond.inputSource().value()), int(theSecond.deliveryType().value()),
                               int(theSecond.discountModel().value()), theSecond.discountLevel());
    });
    QStringList rows;
    for (const ZTAPMPriceKey& key : std::as_const(keys))
        rows.append(QStringLiteral("key:   %1\nprice: %2").arg(key.dump(), values.value(key).dump()));
    return QStringList{QStringLiteral("\nZTAPMArticlePriceInfo:"),
                       QStringLiteral("    transfer model: %1").arg(myTransferModel.encode()),
                       QStringLiteral("    max discount level: %1").arg(maxDiscountLevel()),
                       QStringLiteral("    discount models: %1").arg(models.join(QStringLiteral(", "))),
                       QStringLiteral("    prices:"),
                       rows.join(QStringLiteral("\n===\n"))}
        .join(QLatin1Char('\n'));
}

QDebug operator<<(QDebug theDebug, const ZTAPMArticlePriceInfo& theInfo)
{
    QDebugStateSaver saver(theDebug);
    theDebug.noquote() << theInfo.dump();
    return theDebug;
}

ZTProductAbstract* ZTAPMArticlePriceInfo::product() const
{
    return ZTAPMDataBase::instance()->productAbstract(myArticleId);
}

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
    if (myTransferModel == ZTTransferModelPerBasket)
        return priceInTransferModel2(theKey, theStatistic, theBill);
    const int inheritedLevel = theBill ? inheritedDiscountLevel(*theBill) : 0;
    return priceInModel(chosenKey(theKey, theCount, theBillingSum, inheritedLevel), theCount, theBillingSum,
                        theBill);
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
    return ZTAPMPriceExplanation(chosen, amount, candidates);
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
    return result;
}

ZTDiscountModel ZTAPMArticlePriceInfo::bestDiscountModel(const ZTAPMPriceKey& theKey, int theCount,
                                                         const ZTMoney& theBillingSum,
                                                         int theInheritedLevel) const
{
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
    ZTAPMPriceKey key(theKey);
    key.setDiscountModel(bestDiscountModel(theKey, theCount, theBillingSum, 0));
    return priceInModel(key, theCount, theBillingSum, nullptr);
}

ZTMoney ZTAPMArticlePriceInfo::priceBulk(const ZTAPMPriceKey& theKey, int theCount,
                                         ZTAPMBillPositionList* theList) const
{
    ZTAPMPriceKey key(theKey);
    key.setDiscountLevel(bestDiscountLevel(theKey, theCount));
    const ZTAPMPriceValue value = priceValue(key);
    if (theList)
        theList->append(createBillPosition(theCount, 1, value));
    return value.isValid() ? times(value.price(), theCount) : ZTMoney(ZTMoney::noPrice);
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
    ZTAPMPriceKey key(theKey);
    ZTAPMPriceValue value;
    for (int level = key.discountLevel(); level >= 0; --level) {
        key.setDiscountLevel(level);
        value = priceValue(key);
        if (value.isValid())
            break;
    }
    if (theList)
        theList->append(createBillPosition(theCount, 1, value));
    return value.isValid() ? times(value.price(), theCount) : ZTMoney(ZTMoney::noPrice);
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
        const int further = theCount - base.upperLimit();
        total = times(value.price(), further);
        total += base.price();
        if (!base.nonOfferPrice().isValid() && !value.nonOfferPrice().isValid()) {
            nonOfferTotal = ZTMoney(ZTMoney::noPrice);
        } else {
            nonOfferTotal = times(orOfferPrice(value), further);
            nonOfferTotal += orOfferPrice(base);
        }
    } else {
        // Within the base package: the same price for any number of photos.
        total = value.price();
        nonOfferTotal = value.nonOfferPrice();
    }
    if (theList)
        theList->append(createBillPosition(1, theCount, value.discountLimit(), total, nonOfferTotal));
    return total;
}

ZTMoney ZTAPMArticlePriceInfo::priceInTransferModel2(const ZTAPMPriceKey& theKey,
                                                     const ZTAPMOrderStatistic* theStatistic,
                                                     ZTAPMBillPositionList* theBill) const
{
    const ZTAPMPriceKey key(theKey, ZTDiscountModelBulk);
    ZTMoney result = unitTransferPriceInTransferModel2(key, theStatistic);
    result += baseTransferPriceInTransferModel2(key, theStatistic);
    if (theBill) {
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
        sum += times(item.first->unitTransferPrice(key), item.second);
    }
    // One piece of the leading product is paid by the base price instead.
    if (leader)
        sum -= leader->unitTransferPrice(key);
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

ZTAPMBillPosition* ZTAPMArticlePriceInfo::createBillPosition(int theUnitCount, int theItemsPerUnit,
                                                             const ZTAPMPriceValue& theValue) const
{
    return createBillPosition(theUnitCount, theItemsPerUnit, theValue.discountLimit(), theValue.price(),
                              theValue.nonOfferPrice());
}
