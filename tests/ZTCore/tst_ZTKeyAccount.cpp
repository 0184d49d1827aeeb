#include "ZTKeyAccount.h"
#include "ZTKeyAccountFileTimeStampManager.h"
#include "ZTProgramConfig.h"
#include "ZTResourceFile.h"

#include <QDir>
#include <QFile>
#include <QProcess>
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

    // An installed tree finds its own demo key account wherever it was installed: a copy of this
    // program is put into a fresh prefix, beside or away from a copy of ZTCore, and asked for
    // the default directory (see defaultDirectoryOfCopy).
    void demoFoundBesideTheInstallation_data()
    {
        QTest::addColumn<QString>("programDir");
        QTest::addColumn<bool>("withLibrary");
        QTest::newRow("beside the program") << ZT_INSTALL_BINDIR << false;
        QTest::newRow("beside the library") << "elsewhere/bin" << true;
    }
    void demoFoundBesideTheInstallation()
    {
        QFETCH(QString, programDir);
        QFETCH(bool, withLibrary);
        if (!qEnvironmentVariableIsEmpty("ZT_EXPECTED_DEMO_DIR"))
            QSKIP("run as the installed copy");
        QTemporaryDir prefix;
        const QDir root(prefix.path());
        const QString demo = root.filePath(QStringLiteral(ZT_INSTALL_DATADIR "/ztapm/demo"));
        const QString program = root.filePath(programDir + QStringLiteral("/tst_ZTKeyAccount"));
        QVERIFY(root.mkpath(demo) && root.mkpath(programDir));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("ZT_EXPECTED_DEMO_DIR"), demo);
        if (withLibrary) {
            const QString libraryDir = root.filePath(QStringLiteral(ZT_INSTALL_LIBDIR));
            QVERIFY(root.mkpath(libraryDir));
            QVERIFY(QFile::copy(QStringLiteral(ZT_CORE_LIBRARY),
                                libraryDir + QStringLiteral("/" ZT_CORE_SONAME)));
            // Ahead of the build tree's run path, so the copy is the ZTCore that is loaded.
            environment.insert(QStringLiteral("LD_LIBRARY_PATH"), libraryDir);
        }
        QProcess copy;
        copy.setProcessEnvironment(environment);
        copy.start(program, {QStringLiteral("defaultDirectoryOfCopy")});
        QVERIFY(copy.waitForFinished(60000));
        QVERIFY2(copy.exitStatus() == QProcess::NormalExit && copy.exitCode() == 0,
                 copy.readAllStandardOutput().constData());
    }
    // The half of the test above that runs in the installed copy.
    void defaultDirectoryOfCopy()
    {
        const QString expected = qEnvironmentVariable("ZT_EXPECTED_DEMO_DIR");
        if (expected.isEmpty())
            QSKIP("only run as the installed copy");
        QCOMPARE(ZTProgramConfig::defaultKeyAccountDirectory(), expected);
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
