#include "ZTAPMDataBase.h"
#include "ZTAPMPriceKey.h"
#include "ZTArticleId.h"
#include "ZTDiscountLimitListKey.h"
#include "ZTInitializer.h"
#include "ZTKeyAccount.h"
#include "ZTOrderSource.h"
#include "ZTPaymentId.h"
#include "ZTProductAbstract.h"

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

// Catalogue questions from several threads while the main thread switches key accounts back and
// forth, so that every registry is read again under the readers' feet. Meant to be run under
// ThreadSanitizer as well as plainly (.ci/run does both):
//   cmake -S . -B build-tsan -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DZT_SANITIZE_THREAD=ON
//   cmake --build build-tsan --target tst_ZTAPMDataBaseThreads
//   TSAN_OPTIONS=suppressions=tests/ZTAPM/tsan-qt.supp build-tsan/bin/tst_ZTAPMDataBaseThreads
class TestAPMDataBaseThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ZTSingleton<ZTInitializer>::instance()->setupAll(ZTInitializerOption()); }

    void queriesDuringReloads()
    {
        ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
        ZTProductAbstract* const book = dataBase->productAbstract(ZTArticleId(1001));
        ZTProductAbstract* const booklet = dataBase->productAbstract(ZTArticleId(1012));
        QVERIFY(book && booklet);
        const qsizetype groupSize = dataBase->productsForShippingGroup(ZTShippingGroupId(1)).size();
        const qsizetype bookCount = dataBase->productsForArticleClass(ZTArticleClassPhotoBook).size();

        // The stores read their documents here, before the threads start: the key-account
        // directory that a first reading looks up is the host's string, which the switches below
        // reassign inside Qt, where ThreadSanitizer cannot see its reference count.
        QVERIFY(!dataBase
                     ->discountLimits(ZTDiscountLimitListKey(
                         ZTShippingGroupId(16), ZTAPMPriceKey(ZTOrderSource::onlineMailOrder()), false))
                     .isEmpty());
        QVERIFY(dataBase->productIsExpressable(ZTArticleId(1001)));

        std::atomic<bool> stop{false};
        std::atomic<int> rounds{0};
        std::atomic<int> faults{0};
        auto reader = [&] {
            const ZTDiscountLimitListKey key(ZTShippingGroupId(16),
                                             ZTAPMPriceKey(ZTOrderSource::onlineMailOrder()), false);
            while (!stop.load()) {
                bool ok = dataBase->productAbstract(ZTArticleId(1001)) == book &&
                          dataBase->productAbstract(ZTArticleId(1012)) == booklet;
                // Either catalogue, never one in between: the booklet is there or not, the fees
                // are complete.
                const qsizetype live = dataBase->productsForShippingGroup(ZTShippingGroupId(1)).size();
                ok = ok && (live == groupSize || live == groupSize - 1);
                ok = ok && dataBase->productsForArticleClass(ZTArticleClassPhotoBook).size() == bookCount;
                ok = ok && dataBase->transferProduct(ZTShippingGroupId(1)) &&
                     dataBase->paymentFeeProduct(ZTPaymentId(5)) && dataBase->expressFeeProductsExist();
                ok = ok && !dataBase->findDependentProducts(ZTArticleId(1001), ZTArticleClassPages).isEmpty();
                ok = ok && dataBase->productIsExpressable(ZTArticleId(1001));
                ok = ok && !dataBase->discountLimits(key).isEmpty();
                ok = ok && !booklet->name().isEmpty() && booklet->articleId() == ZTArticleId(1012);
                if (!ok)
                    ++faults;
                ++rounds;
            }
        };
        std::vector<std::thread> readers;
        for (int i = 0; i < 3; ++i)
            readers.emplace_back(reader);
        ZTKeyAccount* keyAccount = ZTSingleton<ZTKeyAccount>::instance();
        for (int i = 0; i < 20; ++i) {
            keyAccount->switchTo(QStringLiteral(ZT_DEMO_DATA_DIR "/../demo-update"));
            keyAccount->switchTo(QStringLiteral(ZT_DEMO_DATA_DIR));
        }
        // Let every reader finish some rounds even on a slow, instrumented build.
        while (rounds.load() < 30)
            QThread::msleep(10);
        stop = true;
        for (std::thread& thread : readers)
            thread.join();

        QCOMPARE(faults.load(), 0);
        QVERIFY(!booklet->isDeprecated());
        QCOMPARE(dataBase->productUpdateCount(), 41);
    }
};

QTEST_GUILESS_MAIN(TestAPMDataBaseThreads)
#include "tst_ZTAPMDataBaseThreads.moc"
