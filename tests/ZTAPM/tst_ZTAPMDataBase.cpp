#include "ZTAPMDataBase.h"
#include "ZTAPMInitializer.h"
#include "ZTInitializer.h"
#include "ZTKeyAccount.h"
#include "ZTProductRegistryAbstract.h"
#include "ZTProgramConfig.h"

#include "ZTArticleId.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <future>

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
        dataBase->updateProducts(document.documentElement());
        disconnect(connection);
        QCOMPARE(spy.count(), 1);
        QVERIFY(otherThreadGotThrough);
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
