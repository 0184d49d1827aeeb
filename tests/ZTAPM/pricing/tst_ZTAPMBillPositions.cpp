#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMBillPosition.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTAPMBillPositionList.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMObjects.h"
#include "ZTAPMOrderStatistic.h"
#include "ZTProductAbstract.h"
#include "ZTProgramConfig.h"

#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// Positions, position lists and the basket, and the transfer over a whole basket.
class tst_ZTAPMBillPositions : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir myDirectory;
    std::vector<std::unique_ptr<ZTProductAbstract>> myProducts;

    ZTProductAbstract* product(int theId)
    {
        QDomDocument doc;
        QDomElement element = doc.createElement(QStringLiteral("article"));
        element.setAttribute(QStringLiteral("id"), theId);
        element.setAttribute(QStringLiteral("group"), 16);
        myProducts.push_back(std::make_unique<ZTProductAbstract>(element));
        return myProducts.back().get();
    }

    static ZTAPMBillPosition* position(ZTProductAbstract* theProduct, int theUnits, int theItems,
                                       int thePrice, ZTDiscountModelEnum theModel = ZTDiscountModelBulk)
    {
        return new ZTAPMBillPosition(theProduct, theUnits, theItems, ZTDiscountLimit(theModel, 0, 1, -1),
                                     ZTMoney(thePrice), ZTMoney(-1));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(myDirectory.isValid());
        for (const char* name : {"products.xml", "prices.xml"})
            QVERIFY(QFile::copy(QStringLiteral(ZT_TEST_DATA_DIR "/models/") + QLatin1String(name),
                                myDirectory.filePath(QLatin1String(name))));
        ZTProgramConfig::instance()->setKeyAccountDirectory(myDirectory.path());
    }

    void positionList()
    {
        ZTProductAbstract* print = product(90021);
        ZTProductAbstract* other = product(90022);
        ZTAPMBillPositionList list;
        QVERIFY(list.isValid());
        QCOMPARE(list.any(), nullptr);

        // A photo package of 30 photos costs its one unit price.
        ZTAPMBillPosition* package = position(other, 1, 30, 1120, ZTDiscountModelFotoPackage);
        QCOMPARE(package->positionPrice(), ZTMoney(1120));
        QCOMPARE(std::unique_ptr<ZTAPMBillPosition>(position(nullptr, 3, 1, 249))->positionPrice(),
                 ZTMoney(747));

        // An unpriceable entry of a product hides any later entry of it.
        list << new ZTAPMBillPositionInvalid(print) << position(print, 2, 1, 39) << package;
        QVERIFY(!list.isValid());
        QCOMPARE(list.position(print), nullptr);
        QCOMPARE(list.position(other), package);
        QCOMPARE(list.any(), list.at(1));
        QCOMPARE(list.filter(print).size(), 2);
        QCOMPARE(list.first()->positionPrice(), ZTMoney(0));

        // Bitwise, unlike the limit list: "w" shares a bit with "b"|"w", not with "b"|"f".
        QVERIFY(list.containsDiscountModel(
            ZTDiscountModelEnum(ZTDiscountModelBulk | ZTDiscountModelFotoPackage)));
        QVERIFY(!list.containsDiscountModel(ZTDiscountModelBulkTransfer));

        ZTAPMBillPositionList kept(list);
        kept.filterOutArticles({});
        QCOMPARE(kept, list);
        kept.filterOutArticles({ZTArticleId(90022), ZTArticleId(1)});
        QCOMPARE(kept, ZTAPMBillPositionList({package}));
        qDeleteAll(list);
    }

    void namesAndLog()
    {
        ZTProductAbstract* large = product(90021);
        ZTProductAbstract* small = product(90022);
        std::unique_ptr<ZTAPMBillPosition> first(position(large, 3, 1, 39));
        std::unique_ptr<ZTAPMBillPosition> second(position(small, 1, 1, 29));
        std::unique_ptr<ZTAPMBillPosition> third(position(small, 2, 1, 29));
        QCOMPARE(first->productName(), QStringLiteral("10x15 Abzug"));
        // Numbers in names count as numbers; equal names still give a strict order.
        QVERIFY(ZTAPMBillPositionAbstract::lessThan(second.get(), first.get()));
        QVERIFY(ZTAPMBillPositionAbstract::lessThan(second.get(), third.get()) !=
                ZTAPMBillPositionAbstract::lessThan(third.get(), second.get()));

        QVERIFY(first->log().startsWith(QLatin1String("CART COUNT:3 ARTICLEID:90021 PRODUCTNAME:10x15 Abzug "
                                                      "DISCOUNTMODEL:b UNITPRICE:")));
        QCOMPARE(first->logNew().second, 3);
        QVERIFY(first->log().endsWith(first->logNew().first));
        ZTAPMBillPositionInvalid invalid(small);
        QCOMPARE(invalid.log(), QStringLiteral("# 9x13 Abzug, Nicht bestellbar"));
        QTest::ignoreMessage(QtWarningMsg, "# 9x13 Abzug, Nicht bestellbar");
        invalid.dump();
        std::unique_ptr<ZTAPMBillPositionAbstract> copy(invalid.clone());
        QVERIFY(dynamic_cast<ZTAPMBillPositionInvalid*>(copy.get()));
    }

    void statistic()
    {
        ZTProductAbstract* a = product(90021);
        ZTProductAbstract* b = product(90022);
        ZTAPMOrderStatistic basket;
        QVERIFY(basket.isEmpty());
        basket.add(a, 2);
        basket.add(b, 1);
        basket.add(b, -3);
        QCOMPARE(basket.countItems(b, 7), -2);
        QCOMPARE(basket.countItems(nullptr, 7), 7);
        basket.add(a, -2);
        QCOMPARE(basket.items().size(), 2);

        ZTAPMOrderStatistic twice;
        twice.add(basket, 2);
        twice.add(twice, 1);
        QCOMPARE(twice.countItems(b, 0), -8);
        QCOMPARE(twice.countItems(a, 1), 0);
        QVERIFY(twice != basket);
        QCOMPARE(twice.products().size(), 2);

        // One piece each at its price, times the number; an unpriceable product adds its -1.
        ZTAPMOrderStatistic goods;
        goods.add(a, 2);
        goods.add(b, 3);
        QCOMPARE(goods.totalPrice(ZTAPMPriceKey(ZTOrderSource::onlineMailOrder())), ZTMoney(165));
        goods.add(product(90013), 1);
        QCOMPARE(goods.totalPrice(ZTAPMPriceKey(ZTOrderSource::onlineMailOrder())), ZTMoney(164));
    }

    void addOnInheritsLevel_data()
    {
        QTest::addColumn<QList<int>>("articles");
        QTest::addColumn<QList<int>>("levels");
        QTest::addColumn<int>("amount");
        QTest::addColumn<int>("level");

        // Level 3 is beyond the add-on's ladder: its level 2 row applies. Level 1 is a gap, so
        // level 0 applies. The order of the linked articles' positions does not count.
        QTest::newRow("highest level last") << QList<int>{90022, 90021} << QList<int>{1, 3} << 200 << 2;
        QTest::newRow("highest level first") << QList<int>{90021, 90022} << QList<int>{3, 1} << 200 << 2;
        QTest::newRow("higher id, lower level") << QList<int>{90021, 90022} << QList<int>{1, 3} << 200 << 2;
        QTest::newRow("higher id, lower level, reversed")
            << QList<int>{90022, 90021} << QList<int>{3, 1} << 200 << 2;
        QTest::newRow("both in the gap") << QList<int>{90022, 90021} << QList<int>{1, 1} << 300 << 0;
    }

    // An add-on takes over the highest level its linked articles have reached in the bill.
    void addOnInheritsLevel()
    {
        QFETCH(QList<int>, articles);
        QFETCH(QList<int>, levels);
        QFETCH(int, amount);
        QFETCH(int, level);

        const ZTAPMDataBase* catalogue = ZTAPMDataBase::instance();
        const ZTAPMArticlePriceInfo addOn = ZTAPMObjects::instance()->priceInfo(ZTArticleId(90007));
        QVERIFY(addOn.product());
        const ZTAPMPriceKey key(ZTOrderSource::onlineMailOrder());

        ZTAPMBillPositionList bill;
        QCOMPARE(addOn.priceFor(key, 2, ZTMoney(0), &bill, nullptr), ZTMoney(300));
        for (int i = 0; i < articles.size(); ++i) {
            ZTProductAbstract* linked = catalogue->productAbstract(ZTArticleId(articles.at(i)));
            QVERIFY(linked);
            bill << new ZTAPMBillPosition(linked, 10, 1,
                                          ZTDiscountLimit(ZTDiscountModelBulk, levels.at(i), 10, -1), 25, -1);
        }
        QCOMPARE(addOn.priceFor(key, 2, ZTMoney(0), &bill, nullptr), ZTMoney(amount));
        QCOMPARE(bill.size(), 4);
        QCOMPARE(bill.last()->product(), addOn.product());
        QCOMPARE(bill.last()->discountLevel(), level);
        // Without a bill nothing is inherited.
        QCOMPARE(addOn.priceFor(key, 2, ZTMoney(0), nullptr, nullptr), ZTMoney(300));
        qDeleteAll(bill);
    }

    void basketTransfer_data()
    {
        QTest::addColumn<QList<int>>("ids");
        QTest::addColumn<QList<int>>("counts");
        QTest::addColumn<int>("unitHalf");
        QTest::addColumn<int>("baseHalf");

        // 90021 500/100, 90022 300/50, 90023 900/70, 90024 500/20, 90025 500/80.
        const QList<int> abc{90021, 90022, 90023};
        QTest::newRow("the first piece of the dearest pays the base")
            << abc << QList<int>{2, 3} << 250 << 500;
        QTest::newRow("one piece") << abc << QList<int>{1} << 0 << 500;
        // A product without pieces may lead the unit half, but the base half passes it over.
        QTest::newRow("an empty entry leads") << abc << QList<int>{2, 3, 0} << 280 << 500;
        QTest::newRow("an empty entry takes off its unit price") << abc << QList<int>{0, 1} << -50 << 300;
        // Equal base prices: the lower article id leads, whichever was added first.
        QTest::newRow("tie, lower id added first")
            << QList<int>{90024, 90025} << QList<int>{1, 1} << 80 << 500;
        QTest::newRow("tie, lower id added last")
            << QList<int>{90025, 90024} << QList<int>{1, 1} << 80 << 500;
        QTest::newRow("tie of three") << QList<int>{90025, 90021, 90024} << QList<int>{1, 1, 1} << 100 << 500;
    }

    void basketTransfer()
    {
        QFETCH(QList<int>, ids);
        QFETCH(QList<int>, counts);
        QFETCH(int, unitHalf);
        QFETCH(int, baseHalf);

        ZTAPMOrderStatistic basket;
        for (int i = 0; i < counts.size(); ++i)
            basket.add(product(ids.at(i)), counts.at(i));
        QDomDocument doc;
        QVERIFY(doc.setContent(QStringLiteral("<transfer id=\"90011\" model_id=\"2\"/>")));
        const ZTAPMArticlePriceInfo transfer = ZTAPMArticlePriceInfo::createFromXTCI(doc.documentElement());
        const ZTAPMPriceKey key(ZTOrderSource::onlineMailOrder());

        QCOMPARE(transfer.unitTransferPriceInTransferModel2(key, &basket), ZTMoney(unitHalf));
        QCOMPARE(transfer.baseTransferPriceInTransferModel2(key, &basket), ZTMoney(baseHalf));
        QCOMPARE(transfer.transferPriceFor(key, 1, ZTMoney(1), &basket), ZTMoney(baseHalf));
        ZTAPMBillPositionList bill;
        QCOMPARE(transfer.priceFor(key, 1, ZTMoney(1), &bill, &basket), ZTMoney(unitHalf + baseHalf));
        QCOMPARE(bill.size(), 1);
        QCOMPARE(bill.first()->positionPrice(), ZTMoney(unitHalf + baseHalf));
        QCOMPARE(bill.first()->discountModel(), ZTDiscountModel(ZTDiscountModelBasketTransfer));
        qDeleteAll(bill);
    }
};

QTEST_GUILESS_MAIN(tst_ZTAPMBillPositions)
#include "tst_ZTAPMBillPositions.moc"
