#include "ZTAPMDataBase.h"
#include "ZTAPMInitializer.h"
#include "ZTInitializer.h"
#include "ZTKeyAccount.h"
#include "ZTProductRegistryAbstract.h"
#include "ZTProgramConfig.h"

#include "ZTAPMObjects.h"
#include "ZTAPMPriceKey.h"
#include "ZTArticleClassManager.h"
#include "ZTArticleId.h"
#include "ZTDiscountLimitCache.h"
#include "ZTDiscountLimitListKey.h"
#include "ZTExpressKey.h"
#include "ZTOrderSource.h"
#include "ZTPageOrganizationManager.h"
#include "ZTPaymentId.h"
#include "ZTPriceClass.h"
#include "ZTProductAbstract.h"
#include "ZTProductRegistry.h"
#include "ZTProductRegistryExpressFees.h"
#include "ZTProductRegistryPaymentFees.h"
#include "ZTProductRegistryShipmentMethodFees.h"
#include "ZTProductRegistryTransferFees.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <future>

namespace {

ZTAPMDataBase* dataBase()
{
    return ZTSingleton<ZTAPMDataBase>::instance();
}

ZTProductAbstract* product(int theId)
{
    return dataBase()->productAbstract(ZTArticleId(theId));
}

} // namespace

class TestAPMDataBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The host's start-up, as a program runs it.
        QCOMPARE(ZTSingleton<ZTInitializer>::instance()->initializers().count(&ZTAPMInitializer::me), 1);
        ZTSingleton<ZTInitializer>::instance()->setupAll(ZTInitializerOption());
        QVERIFY(ZTSingleton<ZTAPMDataBase>::exists());
    }

    void registriesHaveFiveSlots()
    {
        QCOMPARE(ZTSingleton<ZTAPMDataBase>::instance()->registries().size(), 5);
    }

    void startUpReadsTheDemoCatalogue()
    {
        // 40 articles and 20 add-ons; every fee of the demo in its registry.
        QCOMPARE(dataBase()->products()->productCount(), 60);
        QCOMPARE(dataBase()->paymentFees()->productCount(), 5);
        QCOMPARE(dataBase()->transferFees()->productCount(), 3);
        QCOMPARE(dataBase()->expressFees()->productCount(), 3);
        QCOMPARE(dataBase()->shipmentMethodFees()->productCount(), 3);
        QCOMPARE(dataBase()->registries().first(), dataBase()->products());

        // A payment fee is found after the four other registries said no.
        QVERIFY(product(9201));
        QCOMPARE(product(9201), dataBase()->paymentFeeProduct(ZTPaymentId(1)));
        QCOMPARE(product(9001), dataBase()->transferProduct(ZTShippingGroupId(1)));
        QCOMPARE(product(9301)->articleId().id(), dataBase()->idOfShipmentMethodFeeProduct(0));
        QVERIFY(!product(424242));
        QVERIFY(!dataBase()->productAbstract(ZTProductType()));
        QCOMPARE(dataBase()->productAbstract(ZTProductType(QStringLiteral("BOOK_A4_HC"))), product(1001));
    }

    void allProductsOnceById()
    {
        QCOMPARE(dataBase()->productCounts(), QList<int>({60, 5, 3, 3, 3}));
        // The articles that link to others are add-ons too; each product is listed once.
        const ZTProductList all = dataBase()->allProducts();
        QCOMPARE(all.size(), 74);
        for (int i = 0; i < all.size(); ++i) {
            QCOMPARE(product(all.at(i)->articleId().id()), all.at(i));
            if (i > 0)
                QVERIFY(all.at(i - 1)->articleId().id() < all.at(i)->articleId().id());
        }
        QCOMPARE(all.first(), product(1001));
        QCOMPARE(all.last(), product(9303));
    }

    void catalogueQueries()
    {
        // Calendars and books, first by name: "Fotoheft A5" is the shortest name.
        QCOMPARE(dataBase()->firstValidProductAbstract(), product(1012));
        QVERIFY(ZTArticleClassManager().isActive(ZTArticleClassPhotoBook));
        QVERIFY(!ZTArticleClassManager().isActive(ZTArticleClassPuzzle));
        QVERIFY(ZTArticleClassManager().activeArticleClasses().contains(ZTArticleClassCalendar));
        QVERIFY(dataBase()->existsAnyAddOn(ZTArticleClassPages));
        QVERIFY(dataBase()->addOnsForClass(ZTArticleClassPages).contains(product(7003)));
        QVERIFY(dataBase()
                    ->findDependentProducts(ZTArticleId(1001), ZTArticleClassPages)
                    .contains(product(7003)));

        const ZTPriceClass pages = ZTPriceClass::create(QStringLiteral("EXTRA_PAGES"));
        const ZTPriceClass none = ZTPriceClass::create(QStringLiteral("NO_SUCH_CLASS"));
        QCOMPARE(dataBase()->findDependentProduct(ZTArticleId(1001), pages, {}), product(7003));
        QCOMPARE(dataBase()->findDependentProduct(ZTArticleId(1001), none, {pages, pages, none}), nullptr);

        QVERIFY(dataBase()->productIsExpressable(ZTArticleId(1001)));
        QVERIFY(!dataBase()->productIsExpressable(nullptr));
        QVERIFY(dataBase()->shippingGroupIsExpressable(ZTShippingGroupId(1)));
        QVERIFY(dataBase()->expressFeeProductsExist());
        QCOMPARE(dataBase()->expressType(ZTArticleId(9101)), ZTExpressType(ZTExpressTypeExpress));
        QCOMPARE(ZTExpressType(ZTExpressTypeExpress).humanReadableName(ZTShippingGroupId(1)),
                 product(9101)->name());
        QCOMPARE(ZTExpressType(ZTExpressTypeExpress).humanReadableName(ZTShippingGroupId(77)), QString());
        QCOMPARE(ZTExpressKey(ZTShippingGroupId(1), ZTExpressTypeExpress).humanReadableName(),
                 product(9101)->name());
        QCOMPARE(ZTExpressType(ZTExpressTypeStandard).humanReadableName(ZTShippingGroupId(77)),
                 QStringLiteral("Standardversand"));
        // Express is offered by mail only: the fee has no price at the point of sale.
        QCOMPARE(dataBase()->supportedExpressTypes(ZTShippingGroupId(1),
                                                   ZTAPMPriceKey(ZTOrderSource::onlineMailOrder())),
                 ZTExpressTypeList({ZTExpressTypeExpress}));
        QCOMPARE(ZTExpressTypeList::supportedExpressTypes(ZTShippingGroupId(1),
                                                          ZTAPMPriceKey(ZTOrderSource::onlineMailOrder())),
                 ZTExpressTypeList({ZTExpressTypeExpress}));
        QVERIFY(dataBase()
                    ->supportedExpressTypes(ZTShippingGroupId(1),
                                            ZTAPMPriceKey(ZTOrderSource::onlinePointOfSale()))
                    .isEmpty());
        QVERIFY(dataBase()
                    ->supportedExpressTypes(ZTShippingGroupId(77),
                                            ZTAPMPriceKey(ZTOrderSource::onlineMailOrder()))
                    .isEmpty());
        QVERIFY(dataBase()->shippingTimesEnabled(ZTShippingGroupId(1), ZTOrderSource::onlineMailOrder(),
                                                 ZTExpressTypeExpress));

        // Page counts through the host's manager: a book with page packages may grow, a calendar
        // without any keeps its minimum.
        const ZTPageOrganizationManager* pages2 = ZTSingleton<ZTPageOrganizationManager>::instance();
        const ZTPageCountOrganization book =
            pages2->pageCountOrganization(ZTProductType(QStringLiteral("BOOK_A4_HC")));
        QCOMPARE(book.minPages(), 26);
        QCOMPARE(book.maxPages(), 146);
        QVERIFY(pages2->pageCountOrganization(ZTProductType(QStringLiteral("CAL_A3P"))).isFixed());
        QCOMPARE(pages2->pageCountOrganization(ZTProductType(QStringLiteral("PRINT_10x15"))),
                 ZTPageCountOrganization());
    }

    void ladderCache()
    {
        const ZTDiscountLimitListKey key(ZTShippingGroupId(16),
                                         ZTAPMPriceKey(ZTOrderSource::onlineMailOrder()), true);
        ZTDiscountLimitCache* cache = ZTSingleton<ZTDiscountLimitCache>::instance();
        const ZTDiscountLimitList ladder = cache->discountLimits(key);
        QVERIFY(!ladder.isEmpty());
        QCOMPARE(cache->discountLimits(key), ladder);
        QCOMPARE(ladder, cache->calculateList(key));
        QVERIFY(
            dataBase()->containsDiscountModel(ZTShippingGroupId(16), key.priceKey(), ZTDiscountModelBulk));
    }

    void keyAccountUpdateKeepsProducts()
    {
        ZTProductAbstract* booklet = product(1012);
        ZTProductAbstract* book = product(1001);
        ZTProductAbstract* transfer = dataBase()->transferProduct(ZTShippingGroupId(1));
        QVERIFY(booklet && book && transfer);
        QVERIFY(dataBase()->productsForShippingGroup(ZTShippingGroupId(1)).contains(booklet));

        QSignalSpy spy(dataBase(), &ZTAPMDataBase::priceListUpdated);
        ZTSingleton<ZTKeyAccount>::instance()->switchTo(QStringLiteral(ZT_DEMO_DATA_DIR "/../demo-update"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(product(1012), booklet);
        QCOMPARE(product(1001), book);
        QVERIFY(booklet->isDeprecated());
        QVERIFY(!book->isDeprecated());
        // The booklet alone: data/demo-update must stay the demo without it.
        const ZTProductList articles = dataBase()->products()->productList();
        QCOMPARE(articles.withoutDeprecatedProducts().size(), articles.size() - 1);
        QVERIFY(booklet->name().endsWith(QStringLiteral(" (nicht mehr lieferbar)")));
        QVERIFY(!dataBase()->productsForShippingGroup(ZTShippingGroupId(1)).contains(booklet));
        QCOMPARE(dataBase()->products()->productCount(), 60);
        // The fee registries were built anew; the old transfer stays usable.
        QVERIFY(dataBase()->transferProduct(ZTShippingGroupId(1)) != transfer);
        QCOMPARE(transfer->articleId(), ZTArticleId(9001));
        QCOMPARE(dataBase()->transferFees()->productCount(), 3);

        ZTSingleton<ZTKeyAccount>::instance()->switchTo(QStringLiteral(ZT_DEMO_DATA_DIR));
        QCOMPARE(spy.count(), 2);
        QCOMPARE(product(1012), booklet);
        QVERIFY(!booklet->isDeprecated());
        QVERIFY(!dataBase()->softwareShouldBeRestarted());
    }

    void ladderCacheEmptiesAfterANewPriceList()
    {
        const ZTDiscountLimitListKey key(ZTShippingGroupId(16),
                                         ZTAPMPriceKey(ZTOrderSource::onlineMailOrder()), true);
        ZTDiscountLimitCache* cache = ZTSingleton<ZTDiscountLimitCache>::instance();
        const ZTDiscountLimitList demoLadder = cache->discountLimits(key);
        auto startsAtSeven = [](const ZTDiscountLimitList& theLadder) {
            return std::any_of(theLadder.cbegin(), theLadder.cend(),
                               [](const ZTDiscountLimit& theLimit) { return theLimit.lowerLimit() == 7; });
        };
        QVERIFY(!startsAtSeven(demoLadder));

        // New prices and products without a signal of the key account, as a downloader would
        // bring them; the reading of the products signals the new price list.
        auto useKeyAccount = [dataBase = dataBase()](const QString& theDirectory) {
            ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(theDirectory);
            ZTSingleton<ZTAPMObjects>::instance()->updateKeyAccountData();
            dataBase->loadAllProducts();
        };
        useKeyAccount(QStringLiteral(ZT_TEST_DATA_DIR "/ladder"));
        // The cache belongs to this thread and empties only when the queued call arrives.
        QCOMPARE(cache->discountLimits(key), demoLadder);
        QTRY_VERIFY(startsAtSeven(cache->discountLimits(key)));

        useKeyAccount(QStringLiteral(ZT_DEMO_DATA_DIR));
        QTRY_COMPARE(cache->discountLimits(key), demoLadder);
    }

    void nullNodeChangesNothing()
    {
        ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
        const int updates = dataBase->productUpdateCount();
        QSignalSpy spy(dataBase, &ZTAPMDataBase::priceListUpdated);
        dataBase->updateProducts(QDomNode());
        QCOMPARE(spy.count(), 0);
        QCOMPARE(dataBase->productUpdateCount(), updates);
    }

    void documentEmitsOnceOutsideTheLock()
    {
        ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
        QDomDocument document;
        QVERIFY(bool(document.setContent(QStringLiteral("<xtci><articles/></xtci>"))));

        // A receiver that asks the catalogue from another thread would dead-lock if the signal
        // went out while the emitting thread still held the data base's mutex.
        bool otherThreadGotThrough = false;
        const auto connection = connect(dataBase, &ZTAPMDataBase::priceListUpdated, this, [&] {
            auto query = std::async(std::launch::async,
                                    [dataBase] { return dataBase->productAbstract(ZTArticleId(1001)); });
            otherThreadGotThrough = query.wait_for(std::chrono::seconds(5)) == std::future_status::ready;
        });
        QSignalSpy spy(dataBase, &ZTAPMDataBase::priceListUpdated);
        // Each missing section is named once; the catalogue ends up deprecated and without fees.
        for (const char* section :
             {"add_ons", "pay_method_fees", "transfers", "express_fees", "shipment_method_fees"})
            QTest::ignoreMessage(QtWarningMsg,
                                 qPrintable(QStringLiteral("no node \"%1\"").arg(QLatin1String(section))));
        dataBase->updateProducts(document.documentElement());
        disconnect(connection);
        QCOMPARE(spy.count(), 1);
        QVERIFY(otherThreadGotThrough);
        QVERIFY(product(1001)->isDeprecated());
        QVERIFY(!product(7003)->isDeprecated());
        QVERIFY(!dataBase->transferProduct(ZTShippingGroupId(1)));
        QVERIFY(!dataBase->expressFeeProductsExist());
        QVERIFY(!product(9201));
    }

    void brokenFileWarnsAndChangesNothing()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("products.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<xtci>\n  <articles>\n    <article id=\"1\">\n</xtci>\n");
        file.close();

        ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
        const int updates = dataBase->productUpdateCount();
        QSignalSpy spy(dataBase, &ZTAPMDataBase::priceListUpdated);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("products\\.xml.*line 4.*column")));
        dataBase->loadAllProductsFrom(QFileInfo(file.fileName()));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(dataBase->productUpdateCount(), updates);
    }

    void keyAccountChangeReloads()
    {
        ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
        const int updates = dataBase->productUpdateCount();
        QSignalSpy spy(dataBase, &ZTAPMDataBase::priceListUpdated);
        ZTSingleton<ZTKeyAccount>::instance()->switchTo(QStringLiteral(ZT_TEST_DATA_DIR "/frame"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(dataBase->productUpdateCount(), updates + 1);
    }

    void programWithoutCatalogueReadsNothing()
    {
        ZTProgramConfig* config = ZTSingleton<ZTProgramConfig>::instance();
        const int programId = config->programID();
        config->setProgramID(8);
        ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
        QSignalSpy spy(dataBase, &ZTAPMDataBase::priceListUpdated);
        dataBase->loadAllProducts();
        config->setProgramID(programId);
        QCOMPARE(spy.count(), 0);
        QVERIFY(!dataBase->softwareShouldBeRestarted());
        dataBase->pleaseRestartTheSoftware();
        QVERIFY(dataBase->softwareShouldBeRestarted());
    }
};

QTEST_GUILESS_MAIN(TestAPMDataBase)
#include "tst_ZTAPMDataBase.moc"
