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

    // The prices and delivery times stores read an article's elements at its first question,
    // from where a quick pass found them; documents whose offsets cannot be found are read whole.
    // Either way the answers are those of a whole DOM, also once the file is gone.
    void onDemandReadingMatchesAWholeReading_data()
    {
        QTest::addColumn<QByteArray>("declaration");
        QTest::addColumn<QString>("encoding");
        QTest::newRow("UTF-8") << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>") << "UTF-8";
        QTest::newRow("no declaration") << QByteArray() << "UTF-8";
        QTest::newRow("Latin-1") << QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>")
                                 << "Latin-1";
        QTest::newRow("entities") << QByteArray("<!DOCTYPE prices [<!ENTITY n \"Fotobuch\">]>") << "UTF-8";
    }

    void onDemandReadingMatchesAWholeReading()
    {
        QFETCH(QByteArray, declaration);
        QFETCH(QString, encoding);
        const auto element = [](const char* theTag, int theId, int thePrice, const QString& theName) {
            return QStringLiteral(
                       "<%1 id=\"%2\" name=\"%3\" note='a>b'>\r\n<base_prices><price input_source=\"0\" "
                       "delivery_type=\"1\" level=\"0\" quantity=\"1\" price=\"%4\"/></base_prices>"
                       "<delivery_times><delivery_time days=\"%5-9\" delivery_type=\"1\" express=\"0\"/>"
                       "</delivery_times></%1>\r\n")
                .arg(QLatin1String(theTag))
                .arg(theId)
                .arg(theName)
                .arg(thePrice)
                .arg(thePrice % 7);
        };
        // Letters of two and four bytes before, in and between elements shift bytes from
        // characters; the add-on of id 3 wins over its article, the later element of id 1 over
        // the earlier.
        const QString wide = encoding == QLatin1String("UTF-8") ? QStringLiteral("\u00e4\U0001F600")
                                                                : QStringLiteral("\u00e4");
        const QString name = declaration.contains("ENTITY") ? QStringLiteral("&n; ") + wide : wide;
        const QString text = QStringLiteral("\r\n<prices>\r\n<!-- ") + wide +
                             QStringLiteral(" -->\r\n<add_ons>") + element("add_on", 3, 301, name) +
                             QStringLiteral("</add_ons>\r\n<articles>") + element("article", 1, 101, name) +
                             QStringLiteral("<article id=\"2\"/>") + wide + element("article", 3, 103, name) +
                             element("article", 1, 111, wide + wide) +
                             element("article", 4, 104, QStringLiteral("&amp;&#x1F600;")) +
                             QStringLiteral("</articles><transfers>") + element("transfer", 9, 901, name) +
                             QStringLiteral("</transfers></prices>");
        const QByteArray bytes =
            declaration + (encoding == QLatin1String("UTF-8") ? text.toUtf8() : text.toLatin1());
        QTemporaryDir directory;
        for (const char* name : {"prices.xml", "deliverytimes.xml"}) {
            QFile file(directory.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        }
        ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(directory.path());
        ZTAPMArticlePrices prices, wholePrices;
        ZTAPMArticleDeliveryTimes times, wholeTimes;
        QList<ZTArticleId> ids;
        readWhole(wholePrices, rootOf(directory.path(), "prices.xml"), &ids);
        readWhole(wholeTimes, rootOf(directory.path(), "deliverytimes.xml"), &ids);
        QVERIFY(wholePrices.priceInfo(ZTArticleId(1)).isValid() &&
                wholeTimes.deliveryTimes(ZTArticleId(3)).size() == 1);
        QCOMPARE(prices.priceInfo(ZTArticleId(4)), wholePrices.priceInfo(ZTArticleId(4)));
        QCOMPARE(times.deliveryTimes(ZTArticleId(4)), wholeTimes.deliveryTimes(ZTArticleId(4)));
        // What was not asked yet is read from the file as it was found.
        QVERIFY(QFile::remove(directory.filePath(QStringLiteral("prices.xml"))));
        QVERIFY(QFile::remove(directory.filePath(QStringLiteral("deliverytimes.xml"))));
        for (const ZTArticleId& id : std::as_const(ids) + QList<ZTArticleId>{ZTArticleId(5)}) {
            QCOMPARE(prices.priceInfo(id), wholePrices.priceInfo(id));
            QCOMPARE(times.deliveryTimes(id), wholeTimes.deliveryTimes(id));
        }
        ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(QStringLiteral(ZT_DEMO_DATA_DIR));
    }
};

QTEST_GUILESS_MAIN(tst_ZTAPMProductsReading)
#include "tst_ZTAPMProductsReading.moc"
