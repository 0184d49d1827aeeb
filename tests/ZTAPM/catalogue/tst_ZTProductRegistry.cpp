#include "ZTAPMObjects.h"
#include "ZTExpressKey.h"
#include "ZTKeyAccount.h"
#include "ZTPaymentId.h"
#include "ZTProduct.h"
#include "ZTProductAddOn.h"
#include "ZTProductChecker.h"
#include "ZTProductCheckerRegistry.h"
#include "ZTProductPrintFun.h"
#include "ZTProductRegistry.h"
#include "ZTProductRegistryExpressFees.h"
#include "ZTProductRegistryPaymentFees.h"
#include "ZTProductRegistryShipmentMethodFees.h"
#include "ZTProductRegistryTransferFees.h"
#include "ZTXMLLoader.h"

#include <QDomElement>
#include <QFileInfo>
#include <QTest>

namespace {

QDomElement productsDocument(const char* theCase)
{
    return ZTXMLLoader::loadDocumentElement(
        QFileInfo(QStringLiteral(ZT_TEST_DATA_DIR "/%1/products.xml").arg(QLatin1String(theCase))));
}

QList<int> ids(const ZTProductList& theProducts)
{
    QList<int> result;
    for (const ZTProductAbstract* product : theProducts)
        result.append(product ? product->articleId().id() : 0);
    return result;
}

// Refuses the slipcase type, as the engine's checker does for a book size it does not fit.
class RefuseSlipcase : public ZTProductChecker
{
public:
    bool isValid(const ZTProductType& theType) const override { return theType.name() != "SLIPCASE_A4"; }
    ZTProductCheckerType type() const override { return ZTProductCheckerTypeAccessory; }
    bool isValidBoxStyle(const ZTProductType&, const ZTArticleVariants&) const override { return true; }
};

} // namespace

class TestProductRegistry : public QObject
{
    Q_OBJECT

    ZTProductRegistry* products = new ZTProductRegistry;
    ZTProductRegistryTransferFees* transfers = new ZTProductRegistryTransferFees;
    ZTProductRegistryExpressFees* express = new ZTProductRegistryExpressFees;
    ZTProductRegistryPaymentFees* payments = new ZTProductRegistryPaymentFees;
    ZTProductRegistryShipmentMethodFees* shipments = new ZTProductRegistryShipmentMethodFees;

    QList<ZTProductRegistryAbstract*> all() const
    {
        return {products, payments, transfers, express, shipments};
    }
    ZTProductAbstract* product(int theId) const { return products->productWithArticleID(ZTArticleId(theId)); }

private Q_SLOTS:
    void cleanupTestCase() { qDeleteAll(all()); }

    void initTestCase()
    {
        ZTSingleton<ZTKeyAccount>::instance()->switchTo(QStringLiteral(ZT_TEST_DATA_DIR "/registry"));
        QTest::ignoreMessage(QtWarningMsg, "Definition for article 1099 invalid");
        QTest::ignoreMessage(QtWarningMsg, "-- article unsupported: 1099 - 'Lose Blätter'");
        const QDomElement root = productsDocument("registry");
        for (ZTProductRegistryAbstract* registry : all())
            registry->readProducts(root);
    }

    void articlesAndAddOns()
    {
        QCOMPARE(ids(products->productList()),
                 QList<int>({1001, 1002, 1003, 1010, 2001, 3001, 3002, 3004, 7001}));
        QVERIFY(dynamic_cast<ZTProductPrintFun*>(product(1001)));
        QVERIFY(dynamic_cast<ZTProduct*>(product(3001)));
        // The slipcase is an add-on element but an article of its own class.
        QCOMPARE(product(7001)->priceClass(), ZTPriceClass::create(QStringLiteral("SLIPCASE")));
        QVERIFY(dynamic_cast<ZTProductAddOn*>(product(7001)));
        QVERIFY(!product(7001)->isAddOn());
        QVERIFY(product(7003)->isAddOn());

        // Unsupported arrangement, and an add-on that links to nothing: neither exists, though
        // the store has a definition for the add-on.
        QVERIFY(!product(1099));
        QVERIFY(!product(7050));
        QVERIFY(ZTSingleton<ZTAPMObjects>::instance()->articleDefinition(ZTArticleId(7050)).isValid());

        // An article with links is an article and an add-on at once.
        QList<int> addOns = ids(products->allAddOns());
        std::sort(addOns.begin(), addOns.end());
        QCOMPARE(addOns, QList<int>({1010, 7001, 7002, 7003}));
        QCOMPARE(ids(products->findAddOns(ZTArticleId(1001))), QList<int>({7003, 7002, 7001, 1010}));
        QCOMPARE(ids(products->productList(ZTShippingGroupId(16))), QList<int>({3004, 3002, 3001}));
        QVERIFY(products->existsAnyAddOn(ZTArticleClassPages));
        QVERIFY(!products->existsAnyAddOn(ZTArticleClassFrame));
    }

    void findByTypeRemembersMisses()
    {
        QCOMPARE(products->findProductAbstract(ZTProductType(QStringLiteral("BOOK_A5_HC"))), product(1002));
        QCOMPARE(products->findProductAbstract(ZTProductType(QStringLiteral("GIFTBOX_A4"))), product(7002));
        QCOMPARE(products->findProductAbstract(ZTProductType(QStringLiteral("GIFTBOX_A4"))), product(7002));
        QVERIFY(!products->findProductAbstract(ZTProductType(QStringLiteral("NO_SUCH_TYPE"))));
        QVERIFY(!products->findAddOnByProductType(ZTProductType(QStringLiteral("BOOK_A5_HC"))));
    }

    void dependents()
    {
        const ZTArticleId book(1001);
        QCOMPARE(ids(products->findDependentProducts(book, ZTArticleClassPages)), QList<int>({7003}));
        QCOMPARE(ids(products->findDependentProducts(ZTArticleId(), ZTArticleClassAll)), QList<int>());
        QCOMPARE(products->findDependentProduct(book, ZTPriceClass::create(QStringLiteral("BOOK_GIFT_BOX"))),
                 product(7002));
        // A plain article among the dependents is found by its order text type.
        QCOMPARE(products->findDependentProduct(book, ZTPriceClass::create(QStringLiteral("BOOK_A4_COPY"))),
                 product(1010));
        QVERIFY(!products->findDependentProduct(book, ZTPriceClass()));
        QVERIFY(products->existsDependentProduct(book, ZTArticleClassSlipcase));
        QVERIFY(!products->existsDependentProduct(ZTArticleId(), ZTArticleClassAll));

        QCOMPARE(ids(products->findDependentProducts(book, ZTArticleClassSlipcase)), QList<int>({7001}));
        ZTProductCheckerRegistry* checkers = ZTSingleton<ZTProductCheckerRegistry>::instance();
        checkers->registerChecker(new RefuseSlipcase);
        checkers->clearCaches();
        QCOMPARE(ids(products->findDependentProducts(book, ZTArticleClassSlipcase)), QList<int>());
        // A refused slipcase is still a dependent, for the questions that don't check.
        QVERIFY(products->existsDependentProduct(book, ZTArticleClassSlipcase));
    }

    void findProductsAndEquivalents()
    {
        QVERIFY(products->findProducts({}, {}).isEmpty());
        const ZTArticleClass bookClass = product(1001)->articleClass();
        const auto books = products->findProducts({bookClass}, {});
        QVERIFY(books.contains(product(1001)));
        QVERIFY(!books.contains(product(3001)));
        QVERIFY(!products->findProducts({bookClass}, {product(1003)->coverType()}).contains(product(1001)));

        // Same head; with the border checked, 1001 (BORDER=1) doesn't stand in for a borderless book.
        QCOMPARE(products->mostEquivalentProduct(product(1003), bookClass), product(1002));
        QCOMPARE(products->findProductWithOrderTXTHead(QStringLiteral("[BOOK]"), bookClass, true,
                                                       QStringLiteral("1")),
                 product(1001));
        QVERIFY(!products->findProductWithOrderTXTHead(QString(), bookClass, false, QString()));
        // No book has the calendar's head: the closest page size wins, the first by name of equals.
        QCOMPARE(products->mostEquivalentProduct(product(2001), bookClass), product(1001));
    }

    void feeRegistries()
    {
        // The later transfer of a group replaces the earlier, which stays findable by id.
        QCOMPARE(transfers->transferProduct(ZTShippingGroupId(1)),
                 transfers->productWithArticleID(ZTArticleId(9004)));
        QVERIFY(transfers->productWithArticleID(ZTArticleId(9001)));
        QCOMPARE(transfers->productCount(), 3);

        const ZTProductAbstract* expressFee =
            express->expressFeeProduct(ZTExpressKey(ZTShippingGroupId(1), ZTExpressTypeExpress));
        QVERIFY(expressFee);
        QCOMPARE(expressFee->articleId(), ZTArticleId(9101));
        QCOMPARE(express->expressType(ZTArticleId(9101)), ZTExpressType(ZTExpressTypeExpress));
        QCOMPARE(express->expressType(ZTArticleId(1001)), ZTExpressType(ZTExpressTypeStandard));
        // Without an express type the fee is reachable by nothing.
        QVERIFY(!express->productWithArticleID(ZTArticleId(9104)));
        QVERIFY(!express->hasAnyExpressFeeProduct(ZTShippingGroupId(16)));
        QVERIFY(express->hasAnyExpressFeeProduct(ZTShippingGroupId(1)));
        QVERIFY(express->expressFeeProductsExist());
        QCOMPARE(express->expressFeeProducts(ZTShippingGroupId(1)).size(), 1);
        QVERIFY(express->expressFeeProducts(ZTShippingGroupId(3)).isEmpty());

        QCOMPARE(payments->paymentFeeProduct(ZTPaymentId(1)),
                 payments->productWithArticleID(ZTArticleId(9201)));
        QVERIFY(!payments->paymentFeeProduct(ZTPaymentId(2)));

        QCOMPARE(shipments->idOfShipmentMethodFeeProduct(1), 9301);
        QCOMPARE(shipments->idOfShipmentMethodFeeProduct(-1), 9302);
        QCOMPARE(shipments->idOfShipmentMethodFeeProduct(7), 0);
    }

    void secondReadingKeepsIdentity()
    {
        ZTProductAbstract* dropped = product(1002);
        ZTProductAbstract* kept = product(1001);
        ZTProductAbstract* oldTransfer = transfers->transferProduct(ZTShippingGroupId(1));
        const ZTProductAbstract* oldExpress = express->productWithArticleID(ZTArticleId(9101));

        ZTSingleton<ZTKeyAccount>::instance()->switchTo(QStringLiteral(ZT_TEST_DATA_DIR "/registry-update"));
        QTest::ignoreMessage(QtWarningMsg, "Definition for article 1099 invalid");
        ZTSingleton<ZTAPMObjects>::instance()->updateKeyAccountData();
        QTest::ignoreMessage(QtWarningMsg, "-- article unsupported: 1099 - 'Lose Blätter'");
        QTest::ignoreMessage(QtWarningMsg, "no node \"transfers\"");
        const QDomElement root = productsDocument("registry-update");
        for (ZTProductRegistryAbstract* registry : all())
            registry->readProducts(root);

        QCOMPARE(product(1001), kept);
        QCOMPARE(product(1002), dropped);
        QVERIFY(!kept->isDeprecated());
        QVERIFY(dropped->isDeprecated());
        QVERIFY(!dropped->isOrderable());
        QVERIFY(dropped->name().endsWith(QStringLiteral(" (nicht mehr lieferbar)")));
        QCOMPARE(products->productList().size(), 9);
        QCOMPARE(ids(products->productsForShippingGroup(ZTShippingGroupId(1), true)),
                 QList<int>({7001, 2001, 1010, 1003, 1001}));
        QCOMPARE(products->productsForShippingGroup(ZTShippingGroupId(1), false).size(), 6);

        // Fee registries start afresh: no transfers now, new express products, the old ones
        // still answer for whoever holds them.
        QVERIFY(!transfers->transferProduct(ZTShippingGroupId(1)));
        QCOMPARE(transfers->productCount(), 0);
        QCOMPARE(oldTransfer->articleId(), ZTArticleId(9004));
        QVERIFY(express->productWithArticleID(ZTArticleId(9101)) != oldExpress);
        QCOMPARE(oldExpress->articleId(), ZTArticleId(9101));
    }
};

QTEST_GUILESS_MAIN(TestProductRegistry)
#include "tst_ZTProductRegistry.moc"
