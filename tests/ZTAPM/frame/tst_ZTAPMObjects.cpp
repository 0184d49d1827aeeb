#include "ZTAPMObjects.h"
#include "ZTProgramConfig.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <thread>
#include <vector>

namespace {

std::atomic<int> invalidDefinitionWarnings{0};
QtMessageHandler previousHandler = nullptr;

void countingHandler(QtMsgType theType, const QMessageLogContext& theContext, const QString& theMessage)
{
    if (theMessage.startsWith(QLatin1String("Definition for article 1003 invalid"))) {
        ++invalidDefinitionWarnings;
        return;
    }
    previousHandler(theType, theContext, theMessage);
}

// A store of element counts that also counts how often it parses.
class CountingStore : public ZTAPMArticleData<int>
{
public:
    ZTKeyAccountDataType dataType() const override
    {
        return ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts);
    }
    bool parseElement(const QDomElement& theElement) const override
    {
        ++myParsedElements;
        return insert(ZTArticleId::fromIdAttribute(theElement), theElement.childNodes().size());
    }
    mutable std::atomic<int> myParsedElements{0};
};

// Runs theQuery on several threads that start at the same moment. Plain threads, so that a
// thread sanitizer sees the joins.
template <typename Query>
void runConcurrently(Query theQuery)
{
    std::atomic<bool> go{false};
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&go, &theQuery] {
            while (!go.load())
                std::this_thread::yield();
            theQuery();
        });
    }
    go.store(true);
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace

// The per-article stores: lazy loading under concurrent questions, reloads, and ids that occur
// twice in a document.
class TestAPMObjects : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir myDirectory;

    void copy(const QString& theSource, const QString& theTarget)
    {
        const QString target = myDirectory.filePath(theTarget);
        QFile::remove(target);
        QVERIFY(QFile::copy(QStringLiteral(ZT_TEST_DATA_DIR "/") + theSource, target));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(myDirectory.isValid());
        for (const char* name : {"products.xml", "prices.xml", "deliverytimes.xml"})
            copy(QStringLiteral("stores/") + QLatin1String(name), QLatin1String(name));
        ZTProgramConfig::instance()->setKeyAccountDirectory(myDirectory.path());
    }

    void concurrentFirstQueries()
    {
        // All threads ask an empty store at once; the document is read one time.
        CountingStore store;
        std::atomic<int> wrongAnswers{0};
        runConcurrently([&] {
            if (store.data(ZTArticleId(7001)) != 2)
                ++wrongAnswers;
        });
        QCOMPARE(wrongAnswers.load(), 0);
        QCOMPARE(store.myParsedElements.load(), 6);

        // The same for the engine's stores: the invalid article warns once, so it was read once.
        previousHandler = qInstallMessageHandler(countingHandler);
        runConcurrently([&] {
            const ZTAPMObjects* objects = ZTAPMObjects::instance();
            if (objects->articleDefinition(ZTArticleId(1002)).name() != QLatin1String("Fotobuch A5") ||
                !objects->priceInfo(ZTArticleId(1001)).isValid() ||
                objects->deliveryTimes(ZTArticleId(7001)).size() != 1)
                ++wrongAnswers;
        });
        qInstallMessageHandler(previousHandler);
        QCOMPARE(wrongAnswers.load(), 0);
        QCOMPARE(invalidDefinitionWarnings.load(), 1);
    }

    void doubleOccurrence()
    {
        const ZTAPMObjects* objects = ZTAPMObjects::instance();

        // Class and price class of the first element, everything else of the second.
        const ZTAPMArticleDefinition book = objects->articleDefinition(ZTArticleId(1001));
        QVERIFY(book.isValid());
        QCOMPARE(qint64(book.articleClass().value()), qint64(ZTArticleClassPhotoBook));
        QCOMPARE(book.priceClass(), ZTPriceClass::create(QStringLiteral("BOOK_HC")));
        QCOMPARE(book.name(), QStringLiteral("Fotobuch A4 quer"));
        QCOMPARE(book.shippingGroupId(), ZTShippingGroupId(3));
        QCOMPARE(book.arrangement(), ZTProductArrangement(ZTProductArrangementCalendar));
        QCOMPARE(book.coverType(), ZTCoverType(ZTCoverTypeLayFlat));
        QCOMPARE(book.numberOfPages(), 24);
        QCOMPARE(qint64(objects->articleDefinition(ZTArticleId(7001)).articleClass().value()),
                 qint64(ZTArticleClassSlipcase));
        QVERIFY(objects->articleDefinition(ZTArticleId(9001)).isValid());
        QVERIFY(!objects->articleDefinition(ZTArticleId(1003)).isValid());
        QVERIFY(!objects->articleDefinition(ZTArticleId(4711)).isValid());
        QVERIFY(
            !objects->articleDefinitions().definition(ZTProductType(QStringLiteral("BOOK_A4"))).isValid());

        // Prices and delivery times: the later element replaces the earlier one whole.
        QCOMPARE(objects->priceInfo(ZTArticleId(1001)).priceValues().count(), 1);
        QCOMPARE(objects->priceInfo(ZTArticleId(1001)).maxDiscountLevel(), 0);
        // Add-ons are read after articles.
        QCOMPARE(objects->priceInfo(ZTArticleId(7001)).priceValues().count(), 1);
        QVERIFY(!objects->priceInfo(ZTArticleId(1005)).isValid());

        const ZTAPMDeliveryTimes times = objects->deliveryTimes(ZTArticleId(1001));
        QCOMPARE(times.size(), 2);
        QCOMPARE(times.first().minDays(), 3);
        QVERIFY(objects->deliveryTimes(ZTArticleId(1002)).isEmpty());
        QVERIFY(objects->deliveryTimes(ZTArticleId(9001)).isEmpty());
    }

    void reload()
    {
        ZTAPMObjects* objects = ZTAPMObjects::instance();
        const ZTAPMArticleDefinition heldBook = objects->articleDefinition(ZTArticleId(1001));
        const ZTAPMDeliveryTimes heldTimes = objects->deliveryTimes(ZTArticleId(1001));
        copy(QStringLiteral("stores-reload/products.xml"), QStringLiteral("products.xml"));
        copy(QStringLiteral("stores-reload/deliverytimes.xml"), QStringLiteral("deliverytimes.xml"));

        // Loading is the host's decision; an unknown data type does nothing.
        objects->updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypeEnum(16)));
        QCOMPARE(objects->articleDefinition(ZTArticleId(1002)).name(), QStringLiteral("Fotobuch A5"));
        QCOMPARE(objects->deliveryTimes(ZTArticleId(1001)).first().minDays(), 3);

        objects->updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes));
        QCOMPARE(objects->deliveryTimes(ZTArticleId(1001)).first().minDays(), 8);
        QVERIFY(objects->deliveryTimes(ZTArticleId(7001)).isEmpty());
        QCOMPARE(objects->articleDefinition(ZTArticleId(1002)).name(), QStringLiteral("Fotobuch A5"));

        objects->updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts));
        const ZTAPMArticleDefinition book = objects->articleDefinition(ZTArticleId(1001));
        QCOMPARE(book.name(), QStringLiteral("Fotobuch A4 (neu)"));
        QCOMPARE(book.shippingGroupId(), ZTShippingGroupId(1));
        QVERIFY(!objects->articleDefinition(ZTArticleId(1002)).isValid());

        // Copies handed out before stay as they were.
        QCOMPARE(heldBook.name(), QStringLiteral("Fotobuch A4 quer"));
        QCOMPARE(heldTimes.size(), 2);
        QCOMPARE(heldTimes.first().minDays(), 3);

        // A vanished file leaves the old data standing.
        QVERIFY(QFile::remove(myDirectory.filePath(QStringLiteral("products.xml"))));
        QVERIFY(QFile::remove(myDirectory.filePath(QStringLiteral("deliverytimes.xml"))));
        objects->updateKeyAccountData();
        QCOMPARE(objects->articleDefinition(ZTArticleId(1001)).name(), QStringLiteral("Fotobuch A4 (neu)"));
        QCOMPARE(objects->deliveryTimes(ZTArticleId(1001)).first().minDays(), 8);
        QCOMPARE(objects->priceInfo(ZTArticleId(1001)).priceValues().count(), 1);
    }

    // A document without rows, or a broken one, is read once: the empty store is its answer
    // until the host asks for a new reading, and a broken file warns once, not at every question.
    void emptyOrBrokenDocumentIsReadOnce()
    {
        ZTAPMObjects* objects = ZTAPMObjects::instance();
        copy(QStringLiteral("stores-reload/empty.xml"), QStringLiteral("deliverytimes.xml"));
        objects->updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes));
        QVERIFY(objects->deliveryTimes(ZTArticleId(1001)).isEmpty());
        copy(QStringLiteral("stores/deliverytimes.xml"), QStringLiteral("deliverytimes.xml"));
        QVERIFY(objects->deliveryTimes(ZTArticleId(1001)).isEmpty());
        objects->updateKeyAccountData(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes));
        QCOMPARE(objects->deliveryTimes(ZTArticleId(1001)).size(), 2);

        // A fresh store whose first reading breaks.
        QTemporaryDir directory;
        ZTProgramConfig::instance()->setKeyAccountDirectory(directory.path());
        QFile file(directory.filePath(QStringLiteral("prices.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<xtci><articles><article id='1'>");
        file.close();
        const ZTAPMArticlePrices prices;
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^XML error in .*prices\\.xml at line 1")));
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        for (int id = 1; id <= 100; ++id)
            QVERIFY(!prices.priceInfo(ZTArticleId(id)).isValid());
        ZTProgramConfig::instance()->setKeyAccountDirectory(myDirectory.path());
    }

    // Sections count in node-name order whatever their order in the file; a broken file leaves
    // the store as it was, although the elements before the error were parsed.
    void sectionOrderAndBrokenFile()
    {
        QTemporaryDir directory;
        ZTProgramConfig::instance()->setKeyAccountDirectory(directory.path());
        const auto write = [&directory](const char* theText) {
            QFile file(directory.filePath(QStringLiteral("products.xml")));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(theText);
        };
        write("<xtci><transfers><transfer id='1'><a/><a/><a/></transfer></transfers>"
              "<add_ons><add_on id='1'><a/><a/></add_on></add_ons>"
              "<articles><article id='1'><a/></article><article id='2'><a/></article></articles></xtci>");
        CountingStore store;
        QCOMPARE(store.data(ZTArticleId(1)), 3);

        write("<xtci><articles><article id='1'><a/><a/><a/><a/><a/></article>");
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^XML error in .*products\\.xml at line 1")));
        store.load();
        QCOMPARE(store.myParsedElements.load(), 5);
        QCOMPARE(store.data(ZTArticleId(1)), 3);
        QCOMPARE(store.data(ZTArticleId(2)), 1);
    }

    // Readers hold definitions, price infos and delivery times and keep using them while the
    // documents are read again under their feet: a held value never changes, and a fresh one
    // is always a whole one. Meant for ThreadSanitizer as well (see tst_ZTAPMDataBaseThreads).
    void heldValuesDuringReloads()
    {
        ZTProgramConfig::instance()->setKeyAccountDirectory(QStringLiteral(ZT_DEMO_DATA_DIR));
        ZTAPMObjects* objects = ZTAPMObjects::instance();
        objects->updateKeyAccountData();
        const ZTArticleId book(1001);
        const QString name = objects->articleDefinition(book).name();
        const QSize pageSize =
            objects->articleDefinition(book).usablePrintSize(ZTPageSizeKey(ZTPageType(ZTPageTypePage), 26));
        const int rows = objects->priceInfo(book).priceValues().count();
        const qsizetype times = objects->deliveryTimes(book).size();
        QVERIFY(!name.isEmpty() && rows > 0 && times > 0);

        std::atomic<bool> stop{false};
        std::atomic<int> rounds{0};
        std::atomic<int> faults{0};
        const auto whole = [&](const ZTAPMArticleDefinition& theDefinition,
                               const ZTAPMArticlePriceInfo& thePrices, const ZTAPMDeliveryTimes& theTimes) {
            return theDefinition.name() == name &&
                   theDefinition.usablePrintSize(ZTPageSizeKey(ZTPageType(ZTPageTypePage), 26)) == pageSize &&
                   theDefinition.orderTxtValue(QStringLiteral("TYPE=")) ==
                       objects->articleDefinition(book).orderTxtValue(QStringLiteral("TYPE=")) &&
                   thePrices.priceValues().count() == rows && theTimes.size() == times &&
                   theTimes.isExpressable();
        };
        const auto reader = [&] {
            const ZTAPMArticleDefinition heldDefinition = objects->articleDefinition(book);
            const ZTAPMArticlePriceInfo heldPrices = objects->priceInfo(book);
            const ZTAPMDeliveryTimes heldTimes = objects->deliveryTimes(book);
            while (!stop.load()) {
                if (!whole(heldDefinition, heldPrices, heldTimes) ||
                    !whole(objects->articleDefinition(book), objects->priceInfo(book),
                           objects->deliveryTimes(book)))
                    ++faults;
                ++rounds;
            }
        };
        std::vector<std::thread> readers;
        for (int i = 0; i < 3; ++i)
            readers.emplace_back(reader);
        for (int i = 0; i < 10; ++i)
            objects->updateKeyAccountData();
        while (rounds.load() < 30)
            QThread::msleep(10);
        stop = true;
        for (std::thread& thread : readers)
            thread.join();
        QCOMPARE(faults.load(), 0);
    }

    void demoCatalogue_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<qint64>("articleClass");
        QTest::newRow("hardcover book") << 1001 << qint64(ZTArticleClassPhotoBook);
        QTest::newRow("lay-flat book") << 1008 << qint64(ZTArticleClassPhotoBookLayFlat);
        QTest::newRow("calendar") << 2004 << qint64(ZTArticleClassCalendar);
        QTest::newRow("print") << 3002 << qint64(ZTArticleClassPrints);
        QTest::newRow("poster") << 4001 << qint64(ZTArticleClassPoster);
        QTest::newRow("canvas") << 5001 << qint64(ZTArticleClassWallDecor);
        QTest::newRow("picture box") << 5006 << qint64(ZTArticleClassPictureBox);
        QTest::newRow("card") << 6001 << qint64(ZTArticleClassCard);
        QTest::newRow("slipcase by its order text") << 7001 << qint64(ZTArticleClassSlipcase);
        QTest::newRow("page package") << 7003 << qint64(ZTArticleClassPages);
        QTest::newRow("passepartout") << 7004 << qint64(ZTArticleClassPassepartout);
        QTest::newRow("frame glass") << 7008 << qint64(ZTArticleClassFrameGlass);
        QTest::newRow("poster strips") << 7014 << qint64(ZTArticleClassFrame);
        QTest::newRow("video") << 7020 << qint64(ZTArticleClassVideo);
        QTest::newRow("transfer") << 9002 << qint64(ZTArticleClassTransfer);
        QTest::newRow("express fee") << 9101 << qint64(ZTArticleClassExpressFee);
        QTest::newRow("payment fee") << 9205 << qint64(ZTArticleClassPayMethodFee);
        QTest::newRow("shipment fee") << 9303 << qint64(ZTArticleClassShipmentMethodFee);
    }
    void demoCatalogue()
    {
        // The demo key account reads without a single complaint.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QFETCH(int, id);
        QFETCH(qint64, articleClass);
        ZTProgramConfig::instance()->setKeyAccountDirectory(QStringLiteral(ZT_DEMO_DATA_DIR));
        ZTAPMObjects::instance()->updateKeyAccountData();
        const ZTAPMArticleDefinition article = ZTAPMObjects::instance()->articleDefinition(ZTArticleId(id));
        QVERIFY(article.isValid());
        QCOMPARE(qint64(article.articleClass().value()), articleClass);
        if (articleClass & ZTArticleClassAllArticles)
            QVERIFY(!ZTAPMObjects::instance()->deliveryTimes(ZTArticleId(id)).isEmpty());
    }

    void demoDetails()
    {
        ZTProgramConfig::instance()->setKeyAccountDirectory(QStringLiteral(ZT_DEMO_DATA_DIR));
        const ZTAPMObjects* objects = ZTAPMObjects::instance();
        // 25 sheets make a monthly calendar a twice-monthly one.
        QCOMPARE(objects->articleDefinition(ZTArticleId(2004)).coverType(),
                 ZTCoverType(ZTCoverTypeCalendarTwiceMonthly));
        QCOMPARE(objects->articleDefinition(ZTArticleId(5006)).numberOfPages(), 10);
        QCOMPARE(objects->articleDefinition(ZTArticleId(3002)).supportedCropTypes().size(), 3);
        QCOMPARE(objects->articleDefinition(ZTArticleId(5005)).requiredAddOns(),
                 ZTArticleIdSet({ZTArticleId(7005), ZTArticleId(7008)}));
        QCOMPARE(objects->articleDefinition(ZTArticleId(7003)).linkedArticleIds().size(), 12);
        QVERIFY(objects->deliveryTimes(ZTArticleId(1001)).isExpressable());
        QVERIFY(!objects->deliveryTimes(ZTArticleId(6001)).isExpressable());
        QVERIFY(objects->priceInfo(ZTArticleId(1001)).isValid());
    }
};

QTEST_GUILESS_MAIN(TestAPMObjects)
#include "tst_ZTAPMObjects.moc"
