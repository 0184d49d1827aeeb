// Reading an article's price table and the lookups on it. The price models of the same class
// are in ZTAPMArticlePriceModels.cpp.
#include "ZTAPMArticlePriceInfo.h"

#include "ZTAPMDataBase.h"
#include "ZTDiagnosticCollector.h"
#include "ZTDiscountLimitList.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace {
const QString PRICE_NODE = QStringLiteral("price");

// The rows of all articles take their keys from a few hundred (order source, level, model)
// triples, so equal keys share one body instead of one each per row of a catalogue. Per thread,
// so that readers on two threads take no lock; a document of unusual levels stops the sharing
// at a bound, not the reading.
ZTAPMPriceKey sharedKey(const ZTAPMPriceKey& theKey)
{
    constexpr qsizetype mostKeys = 4096;
    thread_local QSet<ZTAPMPriceKey> theKeys;
    const auto found = theKeys.constFind(theKey);
    if (found != theKeys.cend())
        return *found;
    if (theKeys.size() < mostKeys)
        theKeys.insert(theKey);
    return theKey;
}

// The one row of a "price" element; false if the element has no usable model.
bool readPriceRow(const QDomElement& thePriceElement, ZTAPMPriceKey* theKey, ZTAPMPriceValue* theValue)
{
    const ZTAPMPriceValue value(thePriceElement);
    if (value.discountModel().isNull()) {
        if (ZTDiagnosticCollector::isCollecting())
            ZTDiagnosticCollector::report(
                ZTDiagnostic::Warning,
                QCoreApplication::translate("ZTAPMArticlePriceInfo",
                                            "Preiszeile verworfen: Typ \"%1\" ist kein Rabattmodell")
                    .arg(thePriceElement.attribute(QStringLiteral("type"))));
        return false;
    }
    *theKey = sharedKey(
        ZTAPMPriceKey(ZTOrderSource(thePriceElement), value.discountLevel(), value.discountModel()));
    *theValue = value;
    return true;
}

// The rows of a group's "price" children into theTable, each replacing a row of an equal key.
void readPricesGroup(const QDomElement& theGroup, ZTAPMPriceValues* theTable)
{
    ZTAPMPriceKey key;
    ZTAPMPriceValue value;
    for (QDomElement price = theGroup.firstChildElement(PRICE_NODE); !price.isNull();
         price = price.nextSiblingElement(PRICE_NODE)) {
        if (readPriceRow(price, &key, &value))
            theTable->insert(key, value);
    }
}

// Next to a photo package, the rows of its order source are read as photo package rows: one
// note per source that has "y" rows, in the sources' order.
void reportConvertedRows(const ZTAPMPriceValues& theTable)
{
    QList<ZTOrderSource> sources;
    for (const ZTAPMPriceKey& key : theTable.keys()) {
        if (key.discountModel() == ZTDiscountModelFotoPackageBulk && !sources.contains(key.orderSource()) &&
            theTable.containsDiscountModel(key.orderSource(), ZTDiscountModelFotoPackage))
            sources.append(key.orderSource());
    }
    std::sort(sources.begin(), sources.end(),
              [](const ZTOrderSource& theFirst, const ZTOrderSource& theSecond) {
                  return theFirst.toLogString() < theSecond.toLogString();
              });
    for (const ZTOrderSource& source : std::as_const(sources))
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Note,
            QCoreApplication::translate(
                "ZTAPMArticlePriceInfo",
                "\"y\"-Zeilen des Bestellwegs %1 werden als \"w\" gelesen: der Bestellweg hat ein Fotopaket")
                .arg(source.toLogString()));
}

bool byModelValue(const ZTDiscountModel& theFirst, const ZTDiscountModel& theSecond)
{
    return theFirst.value() < theSecond.value();
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
    // Both groups straight into one table: discount rows replace base rows of an equal key, as
    // a union of the two groups' tables would.
    ZTAPMPriceValues table;
    readPricesGroup(theArticleNode.firstChildElement(QStringLiteral("base_prices")), &table);
    readPricesGroup(theArticleNode.firstChildElement(QStringLiteral("discount_prices")), &table);
    if (ZTDiagnosticCollector::isCollecting())
        reportConvertedRows(table);
    // Upper bounds last, so that they are computed within the converted photo package ladder.
    // The table is set free first, so that the bounds are set without a copy of it.
    myPriceValues = table.fixedDiscountModelW();
    table.clear();
    myPriceValues.fixUpperLimits();
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
    readPricesGroup(theGroup, &result);
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
    // Only the levels that the key's ladder has, the highest first: a row far up the ladder
    // costs one lookup, not one per level below it.
    const QList<int> levels = myPriceValues.levels(theKey.orderSource(), theKey.discountModel());
    ZTAPMPriceKey key(theKey);
    for (auto it = levels.crbegin(); it != levels.crend() && *it >= 1; ++it) {
        key.setDiscountLevel(*it);
        const ZTAPMPriceValue value = priceValue(key);
        if (value.isValid() && value.lowerLimit() <= theQuantity)
            return *it;
    }
    return 0;
}

ZTPriceBundle ZTAPMArticlePriceInfo::pricesAtBound(const ZTAPMPriceKey& theKey,
                                                   const ZTDiscountLimit& theLimit) const
{
    ZTAPMPriceKey key(theKey);
    key.setDiscountModel(theLimit.discountModel());
    const QList<int> levels = myPriceValues.levels(key.orderSource(), key.discountModel());
    for (const int level : levels) {
        if (level < 0)
            continue;
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
