#include "ZTCommandLineParserAbstract.h"
#include "ZTInitializer.h"
#include "ZTInitializerAbstract.h"
#include "ZTKeyAccount.h"
#include "ZTSingleton.h"

#include <QTest>
#include <QThread>

#include <atomic>
#include <thread>
#include <vector>

namespace {

std::atomic<int> theConstructions{0};

// Slow to make, so that the threads really arrive while it is being made.
class SlowService : public ZTSingleton<SlowService>
{
    friend class ZTSingleton<SlowService>;
    SlowService()
    {
        ++theConstructions;
        QThread::msleep(50);
        myReady = true;
    }

public:
    bool myReady = false;
};

class RecordingInitializer : public ZTInitializerAbstract
{
public:
    RecordingInitializer(const QString& theName, QStringList* theLog) : myName(theName), myLog(theLog) {}
    void addCommandLineOptionHandlers(ZTCommandLineParserAbstract* theParser) override
    {
        theParser->addOptionHandler(QCommandLineOption(myName), [](const QStringList&) {});
    }
    void setup(ZTInitializerOption theOption) override
    {
        myLog->append(
            QStringLiteral("setup ") + myName +
            (theOption.testFlag(ZTInitializerOption::Testing) ? QStringLiteral(" testing") : QString()));
    }
    void teardown() override { myLog->append(QStringLiteral("teardown ") + myName); }

private:
    QString myName;
    QStringList* myLog;
};

class RecordingParser : public ZTCommandLineParserAbstract
{
public:
    bool addOptionHandler(const QCommandLineOption& theOption, const Handler&) override
    {
        myNames += theOption.names();
        return true;
    }
    QStringList myNames;
};

// An initialiser that does not override the option hook must still be usable.
class PlainInitializer : public ZTInitializerAbstract
{
public:
    void setup(ZTInitializerOption) override {}
    void teardown() override {}
};

} // namespace

class tst_ZTSingleton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void madeOnceUnderManyThreads()
    {
        std::vector<std::thread> threads;
        std::vector<SlowService*> seen(16, nullptr);
        std::atomic<bool> allSawReady{true};
        for (size_t i = 0; i < seen.size(); ++i) {
            threads.emplace_back([&seen, &allSawReady, i] {
                seen[i] = SlowService::instance();
                if (!seen[i]->myReady)
                    allSawReady = false;
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(theConstructions.load(), 1);
        QVERIFY(allSawReady);
        for (SlowService* service : seen)
            QCOMPARE(service, SlowService::instance());
        // Host singletons are reached the same way from the library and from here.
        QCOMPARE(ZTKeyAccount::instance(), ZTSingleton<ZTKeyAccount>::instance());
    }

    void initializersRunInOrder()
    {
        QStringList log;
        RecordingInitializer first(QStringLiteral("first"), &log);
        RecordingInitializer second(QStringLiteral("second"), &log);
        PlainInitializer plain;
        ZTInitializer* initializer = ZTInitializer::instance();
        initializer->registerInitializer(&first);
        initializer->registerInitializer(&second);
        initializer->registerInitializer(&plain);
        QTest::ignoreMessage(QtWarningMsg, "initializer not registered: null or registered before");
        initializer->registerInitializer(&first);

        RecordingParser parser;
        initializer->addCommandLineOptionHandlers(&parser);
        QCOMPARE(parser.myNames, QStringList({QStringLiteral("first"), QStringLiteral("second")}));

        initializer->setupAll(ZTInitializerOption::Testing);
        initializer->setupAll(ZTInitializerOption::Testing); // once only
        QVERIFY(initializer->isSetUp());
        initializer->teardownAll();
        QCOMPARE(log,
                 QStringList({QStringLiteral("setup first testing"), QStringLiteral("setup second testing"),
                              QStringLiteral("teardown second"), QStringLiteral("teardown first")}));
        QVERIFY(!initializer->isSetUp());

        initializer->unregisterInitializer(&first);
        initializer->unregisterInitializer(&second);
        initializer->unregisterInitializer(&plain);
        QVERIFY(initializer->initializers().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_ZTSingleton)
#include "tst_ZTSingleton.moc"
