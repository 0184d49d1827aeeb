#ifndef ZTAPMARTICLEPRICEINFO_H
#define ZTAPMARTICLEPRICEINFO_H

#include "ZTAPMPriceExplanation.h"
#include "ZTAPMPriceKey.h"
#include "ZTAPMPriceValues.h"
#include "ZTArticleId.h"
#include "ZTDiscountLimitSet.h"
#include "ZTDiscountModel.h"
#include "ZTPriceBundle.h"
#include "ZTTransferModel.h"
#include "ztapm_export.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class QDebug;
class QDomElement;
class ZTAPMBillPosition;
class ZTAPMBillPositionAbstract;
class ZTAPMBillPositionList;
class ZTAPMOrderStatistic;
class ZTProductAbstract;

// Everything known about the price of one article: its table of rows, the models that occur in
// it and, for a transfer article, its transfer model. Built from the article's node of the prices
// document and not changed afterwards; copies share the table.
//
// The prices document holds the sections "articles", "add_ons", "transfers", "express_fees",
// "pay_method_fees" and "shipment_method_fees", each with nodes named without the trailing "s"
// ("article", "add_on", ...). A node has an "id", optionally (on "transfer") a "model_id", and
// the groups "base_prices" and "discount_prices" of "price" rows. Reading needs only the node
// and its subtree, with the node's name intact: the name chooses the default model of the rows
// and whether a transfer model exists. So a reader may hand over nodes one by one from a
// streamed document.
class ZTAPM_EXPORT ZTAPMArticlePriceInfo
{
public:
    ZTAPMArticlePriceInfo();
    explicit ZTAPMArticlePriceInfo(const ZTArticleId& theArticleId);
    ZTAPMArticlePriceInfo(const ZTArticleId& theArticleId, const QDomElement& theArticleNode);
    ZTAPMArticlePriceInfo(const ZTAPMArticlePriceInfo& theOther);
    ZTAPMArticlePriceInfo& operator=(const ZTAPMArticlePriceInfo& theOther);
    virtual ~ZTAPMArticlePriceInfo();

    // One node of the prices document, its id taken from the node's "id". The result is not
    // valid if the node has no rows and no transfer model; check the id as well before storing.
    static ZTAPMArticlePriceInfo createFromXTCI(const QDomElement& theArticleNode);
    // The node names of the prices document in reading order: "article", "add_on", "transfer",
    // "express_fee", "pay_method_fee", "shipment_method_fee".
    static QStringList xtciNodeNames();
    // The section that holds the nodes of theNodeName: the name with an "s" behind it.
    static QString xtciSectionName(const QString& theNodeName);

    // Replaces everything but the id by what theArticleNode says. Base rows first, then discount
    // rows, which replace base rows of an equal key; photo package and upper bounds are
    // resolved afterwards.
    void update(const QDomElement& theArticleNode);
    // Empties the table and models; keeps the id.
    void clear();

    // The rows of one "price" element: none if its model is unknown or "*".
    static ZTAPMPriceValues parsePrice(const QDomElement& thePriceElement);
    // All "price" children of a group, later rows replacing earlier ones of an equal key.
    static ZTAPMPriceValues parsePricesGroup(const QDomElement& theGroup);
    // 1 or 2 for a "transfer" node (1 unless "model_id" says 2), -1 for every other node.
    static ZTTransferModel parseTransferModel(const QDomElement& theArticleNode);

    // The id does not count.
    bool operator==(const ZTAPMArticlePriceInfo& theOther) const;
    bool operator!=(const ZTAPMArticlePriceInfo& theOther) const;
    // Some row exists or a transfer model is set.
    bool isValid() const;

    const ZTArticleId& articleId() const { return myArticleId; }
    const ZTAPMPriceValues& priceValues() const { return myPriceValues; }
    const QSet<ZTDiscountModel>& discountModels() const { return myDiscountModels; }
    // The same models in ascending model value, the order in which the price search tries them.
    const QList<ZTDiscountModel>& discountModelsInOrder() const { return myDiscountModelsInOrder; }
    const ZTTransferModel& transferModel() const { return myTransferModel; }
    int maxDiscountLevel() const { return myPriceValues.maxDiscountLevel(); }

    // Exact lookup; the key must be complete.
    ZTAPMPriceValue priceValue(const ZTAPMPriceKey& theKey) const;
    // The rows of one order source, by model value and then by level: the article's price ladder.
    QList<ZTAPMPriceValue> ladder(const ZTOrderSource& theOrderSource) const;
    bool hasDiscountModel(const ZTOrderSource& theOrderSource, const ZTDiscountModel& theModel) const;
    ZTDiscountLimit fotoBasePackageLimit(const ZTOrderSource& theOrderSource) const;
    ZTMoney nonOfferPrice(const ZTAPMPriceKey& theKey) const;
    bool isOfferPriceValid(const ZTAPMPriceKey& theKey) const;
    // Transfer costs always come from the level 0 bulk row of the key's order source, whatever
    // the key's model and level; 0 without such a row.
    ZTMoney baseTransferPrice(const ZTAPMPriceKey& theKey) const;
    ZTMoney unitTransferPrice(const ZTAPMPriceKey& theKey) const;

    // The highest level of the key's model whose valid row starts at or below theQuantity; 0 if
    // none does. Level 0 is never looked up, and gaps between levels do not stop the search.
    int bestDiscountLevel(const ZTAPMPriceKey& theKey, int theQuantity) const;
    // The row of the limit's model that starts at the limit's lower bound or has its level, the
    // lowest level first; a default bundle if none.
    ZTPriceBundle pricesAtBound(const ZTAPMPriceKey& theKey, const ZTDiscountLimit& theLimit) const;
    ZTMoney priceAtBound(const ZTAPMPriceKey& theKey, const ZTDiscountLimit& theLimit) const;
    // The limits of the priced rows that theKey covers as a pattern, open-ended duplicates
    // removed. Nothing for a key of level 0 unless its model is bulk.
    ZTDiscountLimitSet discountLimits(const ZTAPMPriceKey& theKey) const;
    // The lower bound of the limit of theKey's pattern with the best price, limits in the limit
    // list's order. Of equal prices the first stays, except that a converted "y" row of a photo
    // package takes over; 0x7fffffff when no limit has a price.
    int bestPriceCount(const ZTAPMPriceKey& theKey) const;

    // The catalogue's product of this article; null if the catalogue has none.
    ZTProductAbstract* product() const;
    // One piece has a price in this way of ordering.
    bool isOrderableThisWay(const ZTOrderSource& theOrderSource) const;
    // Through a CD point of sale, or else an online one.
    bool canOrderPOS() const;

    // Pricing. Every amount is exact in hundredths; -1 means no price. theBill is the bill under
    // construction, seen as its list of positions (a bill is one): with it, the chosen model's
    // positions are appended to it, and an add-on takes over the discount level its linked
    // articles have reached there. Without it nothing but the amount is computed.

    // The entry point: a basket-wide transfer, an express fee in the model the key names, or the
    // best model of the article for theCount pieces and goods worth theBillingSum.
    ZTMoney priceFor(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum,
                     ZTAPMBillPositionList* theBill, const ZTAPMOrderStatistic* theStatistic) const;
    // What priceFor without a bill answers, with the model it chose and what each model of the
    // article gives on its own (an express fee key: the "x" model only), by the same rules.
    ZTAPMPriceExplanation explainPrice(const ZTAPMPriceKey& theKey, int theCount,
                                       const ZTMoney& theBillingSum,
                                       const ZTAPMOrderStatistic* theStatistic) const;
    // The amount in the key's model; an unpriceable model leaves an invalid position in a bill.
    ZTMoney priceInModel(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum,
                         ZTAPMBillPositionList* theBill) const;
    // The model of the cheapest price, except that "z" and "I" win whenever they price at all;
    // 0 if no model prices. Models are tried without positions, in ascending model value: so "z"
    // (32) wins over "I" (256) where both price, and of equal prices the lower model value wins.
    ZTDiscountModel bestDiscountModel(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum,
                                      int theInheritedLevel) const;
    // The transfer's amount without positions: for a basket-wide transfer only its base half.
    ZTMoney transferPriceFor(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum,
                             const ZTAPMOrderStatistic* theStatistic) const;

    // The models, each usable on its own. With theList the new positions are appended to it and
    // belong to the caller.

    // "b": per piece, at the level theCount reaches; one position of theCount units.
    ZTMoney priceBulk(const ZTAPMPriceKey& theKey, int theCount, ZTAPMBillPositionList* theList) const;
    // "f": one amount for the whole quantity; 0 and no position for no pieces. A missing row
    // gives -1 and a position of -1.
    ZTMoney priceBulkTransfer(const ZTAPMPriceKey& theKey, int theCount,
                              ZTAPMBillPositionList* theList) const;
    // "x": as "f".
    ZTMoney priceExpressFee(const ZTAPMPriceKey& theKey, int theCount, ZTAPMBillPositionList* theList) const;
    // "I": per piece at the key's level, or the nearest lower level that exists.
    ZTMoney priceInheritedDiscount(const ZTAPMPriceKey& theKey, int theCount,
                                   ZTAPMBillPositionList* theList) const;
    // "w": the base package at level 1, further pieces at the level reached; one position of one
    // unit of theCount pieces.
    ZTMoney priceFotoPackage(const ZTAPMPriceKey& theKey, int theCount, ZTAPMBillPositionList* theList) const;
    // "z": one amount by the goods' sum; below the first "z" bound the level 0 "f" row applies.
    ZTMoney priceBillingSumTransfer(const ZTAPMPriceKey& theKey, const ZTMoney& theBillingSum,
                                    ZTAPMBillPositionList* theList) const;
    // A basket-wide transfer (transfer model 2): the highest base price of the basket once, and
    // every other piece at its unit price; one position of model 64 in a bill. The basket is
    // walked by article id: of equal base prices the lowest article id leads.
    ZTMoney priceInTransferModel2(const ZTAPMPriceKey& theKey, const ZTAPMOrderStatistic* theStatistic,
                                  ZTAPMBillPositionList* theBill) const;
    // The highest base transfer price of the products the basket holds pieces of; 0 without one.
    ZTMoney baseTransferPriceInTransferModel2(const ZTAPMPriceKey& theKey,
                                              const ZTAPMOrderStatistic* theStatistic) const;
    // Every piece at its unit transfer price, except one piece of the product with the highest
    // base price, whose base price stands in for it; 0 without a basket.
    ZTMoney unitTransferPriceInTransferModel2(const ZTAPMPriceKey& theKey,
                                              const ZTAPMOrderStatistic* theStatistic) const;

    // A new position for product(), owned by the caller.
    ZTAPMBillPosition* createBillPosition(int theUnitCount, int theItemsPerUnit,
                                          const ZTDiscountLimit& theLimit, const ZTMoney& theUnitPrice,
                                          const ZTMoney& theNonOfferPrice) const;
    // The same with the row's limit, price and non-offer price.
    ZTAPMBillPosition* createBillPosition(int theUnitCount, int theItemsPerUnit,
                                          const ZTAPMPriceValue& theValue) const;

    // Models by value; rows by input source, delivery type, model value and level.
    QString dump() const;

private:
    // The key priceFor prices in, outside a basket-wide transfer: an express fee key as it is,
    // otherwise the key with the best model and, for "I", the inherited level.
    ZTAPMPriceKey chosenKey(const ZTAPMPriceKey& theKey, int theCount, const ZTMoney& theBillingSum,
                            int theInheritedLevel) const;
    // The key under which the search tries theModel: level 0, or the inherited level for "I".
    static ZTAPMPriceKey candidateKey(const ZTAPMPriceKey& theKey, const ZTDiscountModel& theModel,
                                      int theInheritedLevel);
    // The position of theUnitCount pieces of theValue's row that came to theAmount; an invalid
    // one where the row prices but the amount did not fit.
    ZTAPMBillPositionAbstract* pricedPosition(const ZTMoney& theAmount, int theUnitCount,
                                              const ZTAPMPriceValue& theValue) const;
    // "f" and "x": one amount for the quantity, from the key's model.
    ZTMoney priceFlat(const ZTAPMPriceKey& theKey, int theCount, ZTAPMBillPositionList* theList) const;
    // The highest level that the linked articles of this add-on have reached in theBill; 0 for
    // an article that is no add-on.
    int inheritedDiscountLevel(const ZTAPMBillPositionList& theBill) const;

    ZTArticleId myArticleId;
    ZTAPMPriceValues myPriceValues;
    QSet<ZTDiscountModel> myDiscountModels;
    // Sorted once when read, since the price search walks it on every call.
    QList<ZTDiscountModel> myDiscountModelsInOrder;
    ZTTransferModel myTransferModel;
};

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTAPMArticlePriceInfo& theInfo);

#endif // ZTAPMARTICLEPRICEINFO_H
