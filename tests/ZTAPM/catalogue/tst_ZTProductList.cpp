#include "ZTAPMPriceKey.h"
#include "ZTDiscountLimitListKey.h"
#include "ZTOrderSource.h"
#include "ZTProduct.h"
#include "ZTProductList.h"
#include "ZTProductPrintFun.h"

#include <QDomDocument>
#include <QTest>

namespace {

QDomElement element(int theId, int theGroup)
{
    static QDomDocument theDocument;
    QDomElement result = theDocument.createElement(QStringLiteral("article"));
    result.setAttribute(QStringLiteral("id"), theId);
    result.setAttribute(QStringLiteral("group"), theGroup);
    return result;
}

} // namespace

class TestProductList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameOrder_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("before");
        QTest::addColumn<bool>("after");
        QTest::newRow("9 before 10") << "9 Fotos"
                                     << "10 Fotos" << true << false;
        QTest::newRow("10 before 100") << "10 Fotos"
                                       << "100 Fotos" << true << false;
        QTest::newRow("9 before 100") << "9 Fotos"
                                      << "100 Fotos" << true << false;
        QTest::newRow("same number, shorter first") << "10 Fotos"
                                                    << "10 Fotos matt" << true << false;
        QTest::newRow("same number and length are equal") << "10 abc"
                                                          << "10 xyz" << false << false;
        QTest::newRow("no number: shorter first") << "Zebra"
                                                  << "Abzug 9x13" << true << false;
        QTest::newRow("no number: letters at equal length") << "Pilze"
                                                            << "Abzug" << false << true;
        QTest::newRow("no number: letters at equal length 2") << "Abzug"
                                                              << "Buch1" << true << false;
        QTest::newRow("case does not count") << "abzug"
                                             << "ABZUG" << false << false;
        QTest::newRow("number against text: length") << "100 Fotos"
                                                     << "Fotos" << false << true;
        QTest::newRow("too large counts as 0") << "99999999999 Fotos"
                                               << "1 Foto" << true << false;
        QTest::newRow("zero against too large: length") << "0 Fotos"
                                                        << "99999999999 Fotos" << true << false;
    }

    void nameOrder()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(bool, before);
        QFETCH(bool, after);
        QCOMPARE(sortByNumber(first, second), before);
        QCOMPARE(sortByNumber(second, first), after);
    }

    void sortsProductsByName()
    {
        // Demo prints: "Abzug 9x13", "Abzug 10x15", "Abzug 20x30", "Poster A3".
        ZTProduct print9(element(3001, 16)), print10(element(3002, 16)), print20(element(3004, 16));
        ZTProduct poster(element(4001, 16));
        ZTProductList list{&poster, &print20, &print10, &print9};
        list.sort();
        QCOMPARE(list, ZTProductList({&print9, &poster, &print10, &print20}));
        // Names without a leading number go by length first: the poster's is the shortest.
        QCOMPARE(list.indexOf(&poster), 0);
        QCOMPARE(list.indexOf(&print9), 1);
        QVERIFY(list.indexOf(&print10) < list.indexOf(&print20));

        // Equal names fall back on the addresses, so the order is fixed within one run.
        ZTProduct twin(element(3001, 16));
        QCOMPARE(sortProductByNumber(&print9, &twin), &print9 < &twin);
        QCOMPARE(sortProductByNumber(&twin, &print9), &twin < &print9);
    }

    void equalityIsOneSided()
    {
        ZTProduct a(element(3001, 16)), b(element(3002, 16));
        QVERIFY(ZTProductList({&a, &b}) == ZTProductList({&b, &a}));
        QVERIFY(ZTProductList({&a, &b, &b}) == ZTProductList({&a, &a, &a}));
        QVERIFY(ZTProductList({&a, &a, &a}) != ZTProductList({&a, &b, &b}));
        QVERIFY(ZTProductList({&a}) != ZTProductList({&a, &a}));
    }

    void filters()
    {
        ZTProduct print(element(3002, 16));
        ZTProductPrintFun book(element(1001, 1));
        ZTProductList list{&print, nullptr, &book};
        QCOMPARE(list.withoutNullPointers(), ZTProductList({&print, &book}));
        list = list.withoutNullPointers();
        QCOMPARE(list.filter(ZTShippingGroupId(1)), ZTProductList({&book}));
        QCOMPARE(list.filter(ZTArticleClass(ZTArticleClassPrints)), ZTProductList({&print}));
        print.setDeprecated(true);
        QCOMPARE(list.withoutDeprecatedProducts(), ZTProductList({&book}));
        // Prints are valid whatever the checkers say, deprecated or not.
        QVERIFY(list.filterValid().contains(&print));

        const ZTDiscountLimitListKey key(ZTShippingGroupId(16),
                                         ZTAPMPriceKey(ZTOrderSource::onlineMailOrder()), true);
        QVERIFY(ZTProductList().discountLimits(key).isEmpty());
        QVERIFY(!ZTProductList({&print}).discountLimits(key).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestProductList)
#include "tst_ZTProductList.moc"
