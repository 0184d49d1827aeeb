#include "ZTKeyAccount.h"
#include "ZTKeyAccountFileTimeStampManager.h"
#include "ZTProgramConfig.h"
#include "ZTResourceFile.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

// Where the key-account files are looked for, and how a switch reaches the engine.
class tst_ZTKeyAccount : public QObject
{
    Q_OBJECT

private:
    ZTProgramConfig* config() const { return ZTProgramConfig::instance(); }

private Q_SLOTS:
    void init() { config()->setKeyAccountDirectory(QString()); }
    void cleanup()
    {
        qputenv("ZTAPM_DATA_DIR", ZT_DEMO_DATA_DIR);
        qunsetenv("ZTAPM_PROGRAM_ID");
        config()->setKeyAccountDirectory(QString());
        config()->setProgramID(0);
    }

    void fileNames_data()
    {
        QTest::addColumn<ZTResourceFile>("file");
        QTest::addColumn<QString>("name");
        QTest::newRow("products by data type")
            << ZTResourceFile(ZTKeyAccountDataType(QStringLiteral("products"))) << "products.xml";
        QTest::newRow("prices") << ZTResourceFile(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices))
                                << "prices.xml";
        QTest::newRow("delivery times")
            << ZTResourceFile(ZTKeyAccountDataType(QStringLiteral("8"))) << "deliverytimes.xml";
        QTest::newRow("products file") << ZTResourceFile(ZTResourceFileTypeEnum(0x200000)) << "products.xml";
        QTest::newRow("ordering details")
            << ZTResourceFile(ZTResourceFileTypeEnum(0x40000)) << "orderingdetails.xml";
        QTest::newRow("currencies") << ZTResourceFile(ZTResourceFileTypeEnum(4)) << "currencies.xml";
        QTest::newRow("config") << ZTResourceFile(ZTResourceFileTypeEnum(1)) << "config.xml";
        QTest::newRow("two data types name no file")
            << ZTResourceFile(ZTKeyAccountDataType(QStringLiteral("prices, products"))) << "";
    }
    void fileNames()
    {
        QFETCH(ZTResourceFile, file);
        QFETCH(QString, name);
        QCOMPARE(file.fileName(), name);
        QCOMPARE(file.isValid(), !name.isEmpty());
        if (file.isValid()) {
            QCOMPARE(file.fileInfo(false, QString()).filePath(), QDir(ZT_DEMO_DATA_DIR).filePath(name));
        } else {
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("^no file for ZTResourceFile")));
            QVERIFY(file.fileInfo(false, QString()).filePath().isEmpty());
        }
    }

    // A program setting beats the environment, which beats the built-in demo directory.
    void directoryOrder()
    {
        QTemporaryDir fromEnvironment;
        QTemporaryDir fromSetter;
        const ZTResourceFile prices{ZTKeyAccountDataType(ZTKeyAccountDataTypePrices)};
        qunsetenv("ZTAPM_DATA_DIR");
        QCOMPARE(config()->keyAccountDirectory(), ZTProgramConfig::defaultKeyAccountDirectory());
        qputenv("ZTAPM_DATA_DIR", QFile::encodeName(fromEnvironment.path()));
        QCOMPARE(prices.fileInfo().filePath(), fromEnvironment.filePath(QStringLiteral("prices.xml")));
        config()->setKeyAccountDirectory(fromSetter.path());
        QCOMPARE(prices.fileInfo().filePath(), fromSetter.filePath(QStringLiteral("prices.xml")));
        // An explicit directory wins over all, and writing creates it.
        const QString target = fromSetter.filePath(QStringLiteral("new/account"));
        QCOMPARE(prices.fileInfo(false, target).filePath(), target + QStringLiteral("/prices.xml"));
        QVERIFY(!QFileInfo(target).exists());
        QCOMPARE(prices.fileInfo(true, target).filePath(), target + QStringLiteral("/prices.xml"));
        QVERIFY(QFileInfo(target).isDir());
    }

    void programID()
    {
        QCOMPARE(config()->programID(), 1);
        qputenv("ZTAPM_PROGRAM_ID", "8");
        QCOMPARE(config()->programID(), 8);
        config()->setProgramID(3);
        QCOMPARE(config()->programID(), 3);
        config()->setProgramID(0);
        qputenv("ZTAPM_PROGRAM_ID", "acht");
        QTest::ignoreMessage(QtWarningMsg, "ZTAPM_PROGRAM_ID=acht is no program id; using 1");
        QCOMPARE(config()->programID(), 1);
    }

    void switchAnnouncesTheNewAccount()
    {
        QTemporaryDir account;
        QSignalSpy spy(ZTKeyAccount::instance(), &ZTKeyAccount::applicationKeyAccountChanged);
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(QStringLiteral("^key account is now")));
        QVERIFY(ZTKeyAccount::instance()->switchTo(account.path()));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(ZTResourceFile(ZTResourceFileTypeConfig).fileInfo().path(), account.path());

        const QString missing = account.filePath(QStringLiteral("missing"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^key account not switched")));
        QVERIFY(!ZTKeyAccount::instance()->switchTo(missing));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(ZTKeyAccount::instance()->directory(), account.path());
    }

    void timeStampsAreFileTimes()
    {
        QTemporaryDir account;
        config()->setKeyAccountDirectory(account.path());
        ZTKeyAccountFileTimeStampManager* stamps = ZTKeyAccountFileTimeStampManager::instance();
        QVERIFY(!stamps->pricesTimeStamp().isValid());

        QFile prices(account.filePath(QStringLiteral("prices.xml")));
        QVERIFY(prices.open(QIODevice::WriteOnly));
        prices.close();
        const QDateTime serverStamp(QDate(2024, 2, 29), QTime(12, 30), Qt::UTC);
        QVERIFY(stamps->setTimeStamp(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices), serverStamp));
        QCOMPARE(stamps->pricesTimeStamp(), serverStamp);
        QCOMPARE(stamps->timeStamp(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices)), serverStamp);
        QVERIFY(!stamps->timeStamp(ZTKeyAccountDataType(ZTKeyAccountDataTypeDeliveryTimes)).isValid());

        // Stamping a missing file must not create it.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^cannot stamp")));
        QVERIFY(!stamps->setTimeStamp(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts), serverStamp));
        QVERIFY(!QFile::exists(account.filePath(QStringLiteral("products.xml"))));
    }
};

QTEST_GUILESS_MAIN(tst_ZTKeyAccount)
#include "tst_ZTKeyAccount.moc"
