#include "ZTAPMArticleDefinitions.h"
#include "ZTAPMArticleDeliveryTimes.h"
#include "ZTAPMArticlePrices.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMObjects.h"
#include "ZTAPMProductsReading.h"
#include "ZTProductAbstract.h"
#include "ZTProductRegistry.h"
#include "ZTProductRegistryExpressFees.h"
#include "ZTProductRegistryPaymentFees.h"
#include "ZTProductRegistryShipmentMethodFees.h"
#include "ZTProductRegistryTransferFees.h"
#include "ZTProgramConfig.h"
#include "ZTXMLLoader.h"

#include <QDir>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <algorithm>
#include <memory>

// The streamed reading of the products document and the reading of a whole DOM must give the
// same catalogue: the same registries and, for every store, the same value of every id.
namespace {

// The five registries of a data base, made afresh.
struct Registries
{
    std::unique_ptr<ZTProductRegistry> products = std::make_unique<ZTProductRegistry>();
    std::unique_ptr<ZTProductRegistryPaymentFees> payment = std::make_unique<ZTProductRegistryPaymentFees>();
    std::unique_ptr<ZTProductRegistryTransferFees> transfer =
        std::make_unique<ZTProductRegistryTransferFees>();
    std::unique_ptr<ZTProductRegistryExpressFees> express = std::make_unique<ZTProductRegistryExpressFees>();
    std::unique_ptr<ZTProductRegistryShipmentMethodFees> shipment =
        std::make_unique<ZTProductRegistryShipmentMethodFees>();

    QList<ZTProductRegistryAbstract*> all() const
    {
        return {products.get(), payment.get(), transfer.get(), express.get(), shipment.get()};
    }
};

// The registries of the running data base, or of a Registries.
struct RegistryView
{
    const ZTProductRegistry* products;
    const ZTProductRegistryPaymentFees* payment;
    const ZTProductRegistryTransferFees* transfer;
    const ZTProductRegistryExpressFees* express;
    const ZTProductRegistryShipmentMethodFees* shipment;

    RegistryView(const Registries& theRegistries)
        : products(theRegistries.products.get())
        , payment(theRegistries.payment.get())
        , transfer(theRegistries.transfer.get())
        , express(theRegistries.express.get())
        , shipment(theRegistries.shipment.get())
    {}
    RegistryView(const ZTAPMDataBase* theDataBase)
        : products(theDataBase->products())
        , payment(theDataBase->paymentFees())
        , transfer(theDataBase->transferFees())
        , express(theDataBase->expressFees())
        , shipment(theDataBase->shipmentMethodFees())
    {}
};

QString describe(const ZTProductAbstract* theProduct)
{
    if (!theProduct)
        return QStringLiteral("-");
    return QStringLiteral("%1 class %2 group %3 type %4%5")
        .arg(theProduct->articleId().id())
        .arg(theProduct->articleClass().value())
        .arg(theProduct->shippingGroupId().id())
        .arg(theProduct->productType().orderTxtName(),
             theProduct->isDeprecated() ? QStringLiteral(" old") : QString());
}

QString describe(const ZTProductList& theProducts)
{
    QStringList ids;
    for (const ZTProductAbstract* product : theProducts)
        ids << QString::number(product->articleId().id());
    return ids.join(QLatin1Char(' '));
}

// Everything a registry answers about the ids of the documents read, field by field.
QStringList describe(const RegistryView& theRegistries, const QList<ZTArticleId>& theIds)
{
    QStringList result;
    for (const ZTProductAbstract* product : theRegistries.products->productList())
        result << QStringLiteral("article ") + describe(product);
    ZTProductList addOns = theRegistries.products->allAddOns();
    std::sort(addOns.begin(), addOns.end(), [](const ZTProductAbstract* a, const ZTProductAbstract* b) {
        return a->articleId() < b->articleId();
    });
    result << QStringLiteral("add-ons ") + describe(addOns);
    result << QStringLiteral("payment ") + describe(theRegistries.payment->productList());
    result << QStringLiteral("transfer ") + describe(theRegistries.transfer->productList()) +
                  QStringLiteral(" of %1").arg(theRegistries.transfer->productCount());
    result << QStringLiteral("express ") + describe(theRegistries.express->productList());
    result << QStringLiteral("shipment ") + describe(theRegistries.shipment->productList());
    for (const ZTArticleId& id : theIds) {
        result << QStringLiteral("%1: %2; dependents %3; fees %4 %5 %6 %7 express type %8")
                      .arg(id.id())
                      .arg(describe(theRegistries.products->productWithArticleID(id)),
                           describe(theRegistries.products->findAddOns(id)),
                           describe(theRegistries.payment->productWithArticleID(id)),
                           describe(theRegistries.transfer->productWithArticleID(id)),
                           describe(theRegistries.express->productWithArticleID(id)),
                           describe(theRegistries.shipment->productWithArticleID(id)))
                      .arg(theRegistries.express->expressType(id).value());
    }
    return result;
}

QList<QString> registryKeyWords(const Registries& theRegistries)
{
    QList<QString> keyWords;
    for (const ZTProductRegistryAbstract* registry : theRegistries.all())
        keyWords += registry->xmlKeyWords();
    return keyWords;
}

// Feeds a store the elements of a whole DOM, in the order in which a store reads its sections.
template <typename T>
void readWhole(const ZTAPMArticleData<T>& theStore, const QDomElement& theRoot, QList<ZTArticleId>* theIds)
{
    for (const QString& nodeName : theStore.articleNodes()) {
        const QDomElement section = theRoot.firstChildElement(nodeName + QLatin1Char('s'));
        for (QDomElement element = section.firstChildElement(nodeName); !element.isNull();
             element = element.nextSiblingElement(nodeName)) {
            theStore.parseElement(element);
            const ZTArticleId id = ZTArticleId::fromIdAttribute(element);
            if (!theIds->contains(id))
                theIds->append(id);
        }
    }
}

QDomElement rootOf(const QString& theDirectory, const char* theName)
{
    static QList<QDomDocument> theDocuments; // the elements handed out live as long as the test
    theDocuments.append(
        ZTXMLLoader::loadDocument(QFileInfo(QDir(theDirectory).filePath(QLatin1String(theName)))));
    return theDocuments.last().documentElement();
}

// A key account of 2,000 articles with what a reading may trip on: add-ons before articles, an
// id twice with different links and types, an unknown arrangement, an add-on without links,
// fees of each kind with repeated keys, an empty section and a missing one.
void writeSyntheticKeyAccount(const QString& theDirectory)
{
    QFile products(QDir(theDirectory).filePath(QStringLiteral("products.xml")));
    QFile prices(QDir(theDirectory).filePath(QStringLiteral("prices.xml")));
    QFile times(QDir(theDirectory).filePath(QStringLiteral("deliverytimes.xml")));
    QVERIFY(products.open(QIODevice::WriteOnly) && prices.open(QIODevice::WriteOnly) &&
            times.open(QIODevice::WriteOnly));
    QTextStream p(&products), c(&prices), t(&times);
    const char* arrangements[] = {"book", "calendar", "prints", "single", "folded", "poster"};
    const char* covers[] = {"hardcover", "softcover", "calendar_monthly", ""};
    p << "<xtci>\n<add_ons>\n";
    c << "<prices>\n<add_ons>\n";
    t << "<xtci>\n<add_ons>\n";
    for (int i = 1800; i < 2000; ++i) {
        p << "<add_on id=\"" << 100000 + i << "\" group=\"1\" price_class=\"EXTRA_" << i % 7
          << "\" order_txt_type=\"ADD_" << i % 50
          << "\"><order_txt_lines head=\"[PAGES]\"/><linked_articles>";
        for (int link = 0; link < (i % 40 ? 3 : 0); ++link)
            p << "<linked_article id=\"" << 100000 + (i * 7 + link * 13) % 1800 << "\"/>";
        p << "</linked_articles></add_on>\n";
    }
    p << "</add_ons>\n<articles>\n";
    for (int i = 0; i < 1800; ++i) {
        const int id = 100000 + (i % 300 == 299 ? i - 1 : i); // now and then an id twice
        p << "<article id=\"" << id << "\" group=\"" << (i % 5 ? 1 : 16) << "\" name=\"Artikel " << i
          << "\" order_txt_type=\"TYPE_" << i % 1500 << "\" min_pages=\"" << 20 + i % 30
          << "\" max_pages=\"100\" page_increment=\"2\"><type arrangement=\"" << arrangements[i % 6]
          << "\" cover=\"" << covers[i % 4] << "\" material=\"glossy\"/>"
          << "<composition units=\"mm\"><page width=\"" << 100 + i % 90 << "\" height=\"150\"/></composition>"
          << "<order_txt_lines head=\"[BOOK]\"><line>BORDER=" << i % 2 << "</line></order_txt_lines>";
        if (i % 11 == 0)
            p << "<linked_articles><linked_article id=\"" << 100000 + (i + 1) % 1800
              << "\"/></linked_articles>";
        p << "</article>\n";
    }
    p << "</articles>\n<transfers><transfer id=\"9001\" group=\"1\"/><transfer id=\"9002\" group=\"1\"/>"
         "<transfer id=\"9003\" group=\"16\"/></transfers>\n"
         "<express_fees><express_fee id=\"9101\" group=\"1\" express_id=\"3\"/>"
         "<express_fee id=\"9102\" group=\"16\" express_id=\"\"/></express_fees>\n"
         "<pay_method_fees><pay_method_fee id=\"9201\" pay_method_id=\"1\"/>"
         "<pay_method_fee id=\"9202\" pay_method_id=\"1\"/></pay_method_fees>\n</xtci>\n";
    c << "</add_ons>\n<articles>\n";
    t << "</add_ons>\n<articles>\n";
    for (int i = 0; i < 2000; ++i) {
        const char* element = i >= 1800 ? "add_on" : "article";
        c << "<" << element << " id=\"" << 100000 + i << "\"><base_prices><price input_source=\"0\" "
          << "delivery_type=\"1\" level=\"0\" quantity=\"1\" price=\"" << 100 + i << "\"/></base_prices>"
          << "<discount_prices><price input_source=\"0\" delivery_type=\"1\" level=\"1\" quantity=\"10\" "
             "price=\""
          << 90 + i << "\"/></discount_prices></" << element << ">\n";
        t << "<" << element << " id=\"" << 100000 + i << "\"><delivery_times><delivery_time days=\""
          << 3 + i % 5 << "-9\" delivery_type=\"1\" express=\"" << (i % 3 ? 0 : 3)
          << "\"/></delivery_times></" << element << ">\n";
    }
    c << "</articles>\n<transfers/>\n</prices>\n";
    t << "</articles>\n</xtci>\n";
}

} // namespace

class tst_ZTAPMProductsReading : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir mySynthetic;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(mySynthetic.isValid());
        writeSyntheticKeyAccount(mySynthetic.path());
    }

    // The data base's start-up streams the document once, for its registries and for the
    // definitions store, which is still empty; a whole DOM gives the same catalogue.
    void startUpMatchesAWholeReading()
    {
        ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(mySynthetic.path());
        const ZTAPMDataBase* dataBase = ZTSingleton<ZTAPMDataBase>::instance();
        const ZTAPMObjects* stores = ZTSingleton<ZTAPMObjects>::instance();

        const QDomElement root = rootOf(mySynthetic.path(), "products.xml");
        ZTAPMArticleDefinitions wholeDefinitions;
        QList<ZTArticleId> ids;
        readWhole(wholeDefinitions, root, &ids);
        QCOMPARE(ids.size(), 2001); // 1,794 articles, 200 add-ons, 7 fees
        for (const ZTArticleId& id : std::as_const(ids))
            QCOMPARE(stores->articleDefinition(id), wholeDefinitions.definition(id));
        Registries whole;
        for (ZTProductRegistryAbstract* registry : whole.all())
            registry->readProducts(root);
        QCOMPARE(describe(dataBase, ids), describe(whole, ids));
        QCOMPARE(dataBase->transferProduct(ZTShippingGroupId(1))->articleId(), ZTArticleId(9002));
        QCOMPARE(dataBase->transferFees()->productCount(), 3);
    }

    void sameCatalogue_data()
    {
        QTest::addColumn<QString>("directory");
        QTest::newRow("demo") << QStringLiteral(ZT_DEMO_DATA_DIR);
        const QDir testData(QStringLiteral(ZT_TEST_DATA_DIR));
        for (const QString& name : testData.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            if (QFileInfo::exists(testData.filePath(name + QStringLiteral("/products.xml"))))
                QTest::newRow(qPrintable(name)) << testData.filePath(name);
        }
        QTest::newRow("synthetic") << mySynthetic.path();
    }

    // Each path first reads the demo, then the key account, so that updates and deprecations
    // are compared as well as first readings.
    void sameCatalogue()
    {
        QFETCH(QString, directory);
        Registries whole;
        Registries streamed;
        QList<ZTArticleId> ids;
        for (const QString& account : {QStringLiteral(ZT_DEMO_DATA_DIR), directory}) {
            ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(account);
            const ZTAPMObjects* stores = ZTSingleton<ZTAPMObjects>::instance();
            // The stores read their documents themselves; the registries' products ask them.
            ZTSingleton<ZTAPMObjects>::instance()->updateKeyAccountData();
            const QFileInfo productsFile(QDir(account).filePath(QStringLiteral("products.xml")));
            const QDomElement root = rootOf(account, "products.xml");
            for (ZTProductRegistryAbstract* registry : whole.all())
                registry->readProducts(root);

            ZTAPMArticleDefinitions streamedDefinitions;
            ZTAPMProductsReading reading(registryKeyWords(streamed));
            QVERIFY(reading.read(productsFile, &streamedDefinitions));
            for (ZTProductRegistryAbstract* registry : streamed.all())
                reading.readInto(registry);

            ZTAPMArticleDefinitions wholeDefinitions;
            readWhole(wholeDefinitions, root, &ids);
            for (const ZTArticleId& id : std::as_const(ids)) {
                QCOMPARE(streamedDefinitions.definition(id), wholeDefinitions.definition(id));
                QCOMPARE(stores->articleDefinition(id), wholeDefinitions.definition(id));
            }
        }
        QCOMPARE(describe(streamed, ids), describe(whole, ids));

        // The prices and delivery times stores stream their documents: a whole DOM gives the
        // same values. A key account without such a
        // document leaves the store as it was.
        const ZTAPMObjects* stores = ZTSingleton<ZTAPMObjects>::instance();
        if (QFileInfo::exists(QDir(directory).filePath(QStringLiteral("prices.xml")))) {
            ZTAPMArticlePrices wholePrices;
            QList<ZTArticleId> priced;
            readWhole(wholePrices, rootOf(directory, "prices.xml"), &priced);
            for (const ZTArticleId& id : std::as_const(priced) + ids)
                QCOMPARE(stores->priceInfo(id), wholePrices.data(id));
        }
        if (QFileInfo::exists(QDir(directory).filePath(QStringLiteral("deliverytimes.xml")))) {
            ZTAPMArticleDeliveryTimes wholeTimes;
            QList<ZTArticleId> timed;
            readWhole(wholeTimes, rootOf(directory, "deliverytimes.xml"), &timed);
            for (const ZTArticleId& id : std::as_const(timed) + ids)
                QCOMPARE(stores->deliveryTimes(id), wholeTimes.deliveryTimes(id));
        }
    }
};

QTEST_GUILESS_MAIN(tst_ZTAPMProductsReading)
#include "tst_ZTAPMProductsReading.moc"
