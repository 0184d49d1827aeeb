#include "ZTAPMPriceKey.h"
#include "ZTOrderSource.h"
#include "ZTOrderingDetails.h"
#include "ZTProduct.h"
#include "ZTProductAddOn.h"
#include "ZTProductAddOnConfig.h"
#include "ZTProductPrintFun.h"

#include <QDomDocument>
#include <QTest>

namespace {

// Elements as the products document has them; everything else comes from the demo stores.
QDomElement element(const QString& theXml)
{
    static QList<QDomDocument> theDocuments;
    QDomDocument document;
    document.setContent(theXml);
    theDocuments.append(document);
    return document.documentElement();
}

// A product whose price per order source is given, to see how the three sources are combined.
class PricedProduct : public ZTProductAbstract
{
public:
    PricedProduct(ZTMoney theCd, ZTMoney theOnlinePos, ZTMoney theMailOrder)
        : ZTProductAbstract(element(QStringLiteral("<article id=\"1\" group=\"1\"/>")))
        , myCd(theCd)
        , myOnlinePos(theOnlinePos)
        , myMailOrder(theMailOrder)
    {}
    ZTMoney price(const ZTAPMPriceKey& theKey, int, const ZTMoney&) const override
    {
        if (theKey.orderSource().isCDPointOfSale())
            return myCd;
        return theKey.orderSource().isOnlinePointOfSale() ? myOnlinePos : myMailOrder;
    }

private:
    ZTMoney myCd, myOnlinePos, myMailOrder;
};

} // namespace

class TestProduct : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The demo's shipping groups decide what can be ordered.
        ZTSingleton<ZTOrderingDetails>::instance();
    }

    void ownStateAndDeprecation()
    {
        ZTProductPrintFun book(element(QStringLiteral("<article id=\"1001\" group=\"1\"/>")));
        QCOMPARE(book.articleId(), ZTArticleId(1001));
        QCOMPARE(book.shippingGroupId(), ZTShippingGroupId(1));
        QVERIFY(!book.isDeprecated());
        QVERIFY(book.isOrderable());
        QCOMPARE(book.name(), QStringLiteral("Fotobuch A4 Hardcover"));
        QCOMPARE(book.productType(), ZTProductType(QStringLiteral("BOOK_A4_HC")));
        QCOMPARE(book.minPages(), 26);
        QCOMPARE(book.pageIncrement(), 2);

        // Left the catalogue: says so, can't be ordered, but still has its prices.
        book.setDeprecated(true);
        QCOMPARE(book.name(), QStringLiteral("Fotobuch A4 Hardcover (nicht mehr lieferbar)"));
        QVERIFY(!book.isOrderable());
        QVERIFY(book.priceInfo().isValid());
        // Seen again in a document: live again, in its new group.
        book.update(element(QStringLiteral("<article id=\"1001\" group=\"3\"/>")));
        QVERIFY(!book.isDeprecated());
        QCOMPARE(book.shippingGroupId(), ZTShippingGroupId(3));
        QCOMPARE(book.fullQualifiedName(), QStringLiteral("Fotobuch A4 Hardcover"));
        // A group the ordering details do not know is not shipped.
        book.update(element(QStringLiteral("<article id=\"1001\" group=\"2\"/>")));
        QVERIFY(!book.isOrderable());
        // Prints name their group.
        ZTProduct print(element(QStringLiteral("<article id=\"3001\" group=\"16\"/>")));
        QCOMPARE(print.fullQualifiedName(), QStringLiteral("Abzug 9x13 (Fotoabzüge und Poster)"));

        ZTProductAbstract* none = ZTProductAbstract::nullProduct();
        QCOMPARE(ZTProductAbstract::nullProduct(), none);
        QVERIFY(none->isValid());
        QVERIFY(none->isDeprecated());
        QVERIFY(!none->articleId().isValid());
    }

    void addOns()
    {
        // No group of its own: an add-on ships with what it is added to.
        ZTProductAddOn giftBox(
            element(QStringLiteral("<add_on id=\"7002\" price_class=\"BOOK_GIFT_BOX\"/>")));
        QVERIFY(giftBox.isAddOn());
        QVERIFY(!giftBox.shippingGroupId().isValid());
        QVERIFY(giftBox.isOrderable());
        const ZTPriceClass giftBoxClass = ZTPriceClass::create(QStringLiteral("BOOK_GIFT_BOX"));
        QVERIFY(giftBox.matches(ZTArticleId(1001), giftBoxClass));
        QVERIFY(!giftBox.matches(ZTArticleId(1001), ZTPriceClass::create(QStringLiteral("SLIPCASE"))));
        QVERIFY(!giftBox.matches(ZTArticleId(1004), giftBoxClass));
        // The price class is read once, at construction.
        giftBox.update(element(QStringLiteral("<add_on id=\"7002\" price_class=\"OTHER\"/>")));
        QCOMPARE(giftBox.priceClass(), giftBoxClass);

        ZTProductPrintFun book(element(QStringLiteral("<article id=\"1001\" group=\"1\"/>")));
        QVERIFY(!book.isAddOn());
        QVERIFY(!book.matches(ZTArticleId(1001), ZTPriceClass()));
    }

    void lowestPrices()
    {
        const ZTAPMPriceKey mailOrder(ZTOrderSource::onlineMailOrder());
        // A book: the price at the lowest limit, whatever the flag.
        ZTProductPrintFun book(element(QStringLiteral("<article id=\"1001\" group=\"1\"/>")));
        QCOMPARE(book.minPriceFor(mailOrder, false), ZTMoney(2995));
        QCOMPARE(book.minPriceFor(mailOrder, true), ZTMoney(2995));
        QCOMPARE(book.minPrice(true), ZTMoney(2995));
        QCOMPARE(book.minPrices(true).price(), ZTMoney(2995));
        QCOMPARE(book.bestPriceCountFor(mailOrder), 10);

        // A print: with the flag every limit counts, and the cheapest piece is at 500.
        ZTProduct print(element(QStringLiteral("<article id=\"3002\" group=\"16\"/>")));
        QCOMPARE(print.minPriceFor(mailOrder, false), ZTMoney(19));
        QCOMPARE(print.minPriceFor(mailOrder, true), ZTMoney(12));
        QCOMPARE(print.minPricesFor(mailOrder, true).price(), ZTMoney(12));
        QCOMPARE(print.bestPriceCountFor(mailOrder), 500);
        QCOMPARE(print.minPrice(false), ZTMoney(15));

        // Nothing priced: the not-set amount everywhere.
        ZTProduct unknown(element(QStringLiteral("<article id=\"999999\" group=\"16\"/>")));
        QCOMPARE(unknown.minPriceFor(mailOrder, true), ZTMoney(0x7fffffff));
        QCOMPARE(unknown.bestPriceCountFor(mailOrder), 0x7fffffff);
        QCOMPARE(unknown.bestPriceCount(), 0x7fffffff);
        QCOMPARE(unknown.minPrices(false), ZTPriceBundle());
    }

    void priceFirstFitIsTheLargest_data()
    {
        QTest::addColumn<int>("cd");
        QTest::addColumn<int>("onlinePos");
        QTest::addColumn<int>("mailOrder");
        QTest::addColumn<int>("expected");
        QTest::newRow("largest wins") << 100 << 300 << 200 << 300;
        QTest::newRow("all equal") << 100 << 100 << 100 << 100;
        QTest::newRow("one not set") << 100 << 0x7fffffff << 200 << 0x7fffffff;
        QTest::newRow("no price loses") << -1 << 50 << -1 << 50;
    }

    void priceFirstFitIsTheLargest()
    {
        QFETCH(int, cd);
        QFETCH(int, onlinePos);
        QFETCH(int, mailOrder);
        QFETCH(int, expected);
        QCOMPARE(PricedProduct(cd, onlinePos, mailOrder).priceFirstFit(), ZTMoney(expected));
    }

    void addOnConfig()
    {
        const ZTProductAddOnConfig books(
            element(QStringLiteral("<add_on_group default=\"true\">^BOOK_</add_on_group>")));
        QVERIFY(books.isValid());
        QVERIFY(books.isGroupDefault());
        QVERIFY(books.matches(ZTPriceClass::create(QStringLiteral("BOOK_GIFT_BOX"))));
        QVERIFY(!books.matches(ZTPriceClass::create(QStringLiteral("CALENDAR_GIFT_BOX"))));
        const ZTProductAddOnConfig anywhere(element(QStringLiteral("<add_on_group>GIFT</add_on_group>")));
        QVERIFY(!anywhere.isGroupDefault());
        QVERIFY(anywhere.matches(ZTPriceClass::create(QStringLiteral("CALENDAR_GIFT_BOX"))));
        QVERIFY(!ZTProductAddOnConfig(element(QStringLiteral("<add_on_group/>"))).isValid());
        QVERIFY(!ZTProductAddOnConfig(element(QStringLiteral("<add_on_group>(</add_on_group>"))).isValid());
    }
};

QTEST_GUILESS_MAIN(TestProduct)
#include "tst_ZTProduct.moc"
