#ifndef ZTAPMOBJECTS_H
#define ZTAPMOBJECTS_H

#include "ZTAPMArticleDefinitions.h"
#include "ZTAPMArticleDeliveryTimes.h"
#include "ZTAPMArticlePrices.h"
#include "ZTSingleton.h"
#include "ztapm_export.h"

#include <QObject>

// The three per-article stores: what an article is, what it costs, when it arrives. Each reads
// its document at the first question and again when the host says so; answers are copies.
class ZTAPM_EXPORT ZTAPMObjects : public QObject, public ZTSingleton<ZTAPMObjects>
{
    Q_OBJECT

public:
    ZTAPMArticleDefinition articleDefinition(const ZTArticleId& theId) const;
    ZTAPMArticlePriceInfo priceInfo(const ZTArticleId& theId) const;
    ZTAPMDeliveryTimes deliveryTimes(const ZTArticleId& theId) const;

    const ZTAPMArticleDefinitions& articleDefinitions() const;
    const ZTAPMArticlePrices& articlePrices() const;
    const ZTAPMArticleDeliveryTimes& articleDeliveryTimes() const;

public Q_SLOTS:
    // Reads all three documents again: products, prices, delivery times.
    void updateKeyAccountData();
    // Reads the one document of this data type again; other types do nothing.
    void updateKeyAccountData(const ZTKeyAccountDataType& theDataType);

private:
    friend class ZTSingleton<ZTAPMObjects>;
    ZTAPMObjects();
    ~ZTAPMObjects() override;

    ZTAPMArticleDefinitions myArticleDefinitions;
    ZTAPMArticlePrices myArticlePrices;
    ZTAPMArticleDeliveryTimes myArticleDeliveryTimes;
};

#endif // ZTAPMOBJECTS_H
