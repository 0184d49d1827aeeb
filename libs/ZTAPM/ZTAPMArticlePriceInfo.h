#ifndef ZTAPMARTICLEPRICEINFO_H
#define ZTAPMARTICLEPRICEINFO_H

#include "ZTAPMPriceKey.h"
#include "ZTAPMPriceValues.h"
#include "ZTArticleId.h"
#include "ZTDiscountLimitSet.h"
#include "ZTDiscountModel.h"
#include "ZTPriceBundle.h"
#include "ZTTransferModel.h"
#include "ztapm_export.h"

#include <QSet>
#include <QString>
#include <QStringList>

class QDebug;
class QDomElement;

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
    const ZTTransferModel& transferModel() const { return myTransferModel; }
    int maxDiscountLevel() const { return myPriceValues.maxDiscountLevel(); }

    // Exact lookup; the key must be complete.
    ZTAPMPriceValue priceValue(const ZTAPMPriceKey& theKey) const;
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

    QString dump() const;

private:
    ZTArticleId myArticleId;
    ZTAPMPriceValues myPriceValues;
    QSet<ZTDiscountModel> myDiscountModels;
    ZTTransferModel myTransferModel;
};

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTAPMArticlePriceInfo& theInfo);

#endif // ZTAPMARTICLEPRICEINFO_H
