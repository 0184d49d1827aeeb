// consumer: prices 3 pieces of article 1001 for online mail order, the way a client program
// would: run the engine's start-up on a key account, find the product, ask for its price.
// The key account is the directory given as argument, or else the installed demo key account.

#include "ZTAPMDataBase.h"
#include "ZTAPMPriceKey.h"
#include "ZTArticleId.h"
#include "ZTDiscountModel.h"
#include "ZTInitializer.h"
#include "ZTMoney.h"
#include "ZTOrderSource.h"
#include "ZTProductAbstract.h"
#include "ZTProgramConfig.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    // The engine reports its start-up at info level; a client usually wants its warnings only.
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false\ndefault.debug=false"));
    ZTProgramConfig* config = ZTSingleton<ZTProgramConfig>::instance();
    if (argc > 1)
        config->setKeyAccountDirectory(QString::fromLocal8Bit(argv[1]));
    std::printf("key account: %s\n", qPrintable(config->keyAccountDirectory()));

    // Every library registered its initialiser when it was loaded; this brings the engine up.
    ZTSingleton<ZTInitializer>::instance()->setupAll();

    const int articleId = 1001;
    const int count = 3;
    const ZTProductAbstract* product =
        ZTSingleton<ZTAPMDataBase>::instance()->productAbstract(ZTArticleId(articleId));
    if (!product) {
        std::fprintf(stderr, "article %d is not in this key account\n", articleId);
        return 1;
    }

    // Level 0 and no model: the engine picks the best discount model for the count.
    const ZTAPMPriceKey key(ZTOrderSource::onlineMailOrder(), 0, ZTDiscountModel());
    const ZTMoney amount = product->price(key, count, ZTMoney(0));
    if (!amount.isValid()) {
        std::fprintf(stderr, "article %d has no price for online mail order\n", articleId);
        return 1;
    }
    // Amounts are whole hundredths of the currency unit.
    std::printf("%d x %s (article %d), online mail order: %d.%02d\n", count, qPrintable(product->name()),
                articleId, amount.value() / 100, amount.value() % 100);
    return 0;
}
