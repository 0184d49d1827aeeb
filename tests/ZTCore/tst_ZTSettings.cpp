#include "ZTSettings.h"
#include "ZTSettingsLock.h"
#include "ZTSingleton.h"

#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QTest>

#include <atomic>
#include <thread>

class tst_ZTSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The test helper points the configuration directory into the build tree.
        QVERIFY(ZTSettingsLock::settingsDirectory().startsWith(qEnvironmentVariable("XDG_CONFIG_HOME")));
        QFile::remove(ZTSettings(QStringLiteral("tst_settings")).fileName());
        // The application's own settings are the singleton of the base class.
        QVERIFY(
            ZTSingleton<ZTSettings>::instance()->fileName().endsWith(QStringLiteral("/ztapm/settings.ini")));
    }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void roundTripThroughTheIniFile()
    {
        const QString name = QStringLiteral("tst_settings");
        {
            ZTSettings settings(name);
            ZTSettingsLock lock;
            settings.beginGroup(QStringLiteral("selectedPayments"));
            ZTConfigItem<QString> item(QStringLiteral("online mail order"), QStringLiteral("-1"));
            item.setValue(QStringLiteral("1_visa"));
            QVERIFY(item.isModified());
            settings.save(item);
            settings.save(ZTConfigItem<QString>(QStringLiteral("cd point of sale"), QStringLiteral("3")));
            settings.endGroup();
            settings.save(ZTConfigItem<QString>(QStringLiteral("userPaymentType"), QStringLiteral("old")));
            settings.deleteEntry(QStringLiteral("userPaymentType"));
        }
        // Another reader of the file, bypassing this class, sees what was written.
        QSettings file(ZTSettings(name).fileName(), QSettings::IniFormat);
        QCOMPARE(file.value(QStringLiteral("selectedPayments/online mail order")).toString(),
                 QStringLiteral("1_visa"));
        QVERIFY(!file.contains(QStringLiteral("userPaymentType")));

        ZTSettings settings(name);
        settings.beginGroup(QStringLiteral("selectedPayments"));
        ZTConfigItem<QString> stored(QStringLiteral("online mail order"), QStringLiteral("-1"));
        ZTConfigItem<QString> missing(QStringLiteral("online point of sale"), QStringLiteral("-1"));
        missing.setValue(QStringLiteral("5"));
        settings.load(&stored);
        settings.load(&missing);
        QCOMPARE(stored.value(), QStringLiteral("1_visa"));
        QVERIFY(!stored.isModified());
        QCOMPARE(missing.value(), QStringLiteral("-1"));
        settings.endGroup();

        settings.applyStartupRule(ZTSettings::StartupResetAll);
        settings.load(&stored);
        QCOMPARE(stored.value(), QStringLiteral("-1"));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^unknown settings start-up rule 77")));
        settings.applyStartupRule(77);
    }

    // The lock excludes other threads (recursively for its holder) and, through its lock file,
    // other programs.
    void lockExcludes()
    {
        std::atomic<bool> otherHasLock{false};
        std::thread other;
        {
            ZTSettingsLock outer;
            ZTSettingsLock inner;
            QVERIFY(outer.holdsLockFile());
            QLockFile otherProgram(ZTSettingsLock::settingsDirectory() + QStringLiteral("/settings.lock"));
            QVERIFY(!otherProgram.tryLock(0));

            other = std::thread([&otherHasLock] {
                ZTSettingsLock lock;
                otherHasLock = true;
            });
            QTest::qWait(100);
            QVERIFY(!otherHasLock);
        }
        other.join();
        QVERIFY(otherHasLock);
        QLockFile otherProgram(ZTSettingsLock::settingsDirectory() + QStringLiteral("/settings.lock"));
        QVERIFY(otherProgram.tryLock(5000)); // other test programs may hold it briefly
    }
};

QTEST_GUILESS_MAIN(tst_ZTSettings)
#include "tst_ZTSettings.moc"
