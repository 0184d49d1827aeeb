#include "ZTPageOrganizationCalculator.h"
#include "ZTPageOrganizationManager.h"
#include "ZTProductChecker.h"
#include "ZTProductCheckerRegistry.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <atomic>

namespace {

ZTProductType type(const char* theName)
{
    return ZTProductType(QString::fromLatin1(theName));
}

// Says no to the types it is given, counts its questions and may clear the registry's cache in
// the middle of its answer, as the catalogue does when it reloads.
class FakeChecker : public ZTProductChecker
{
public:
    FakeChecker(ZTProductCheckerTypeEnum theType, QSet<QString> theRejected)
        : myType(theType), myRejected(theRejected)
    {}

    bool isValid(const ZTProductType& theProductType) const override
    {
        ++myCalls;
        if (myClearsCaches)
            ZTProductCheckerRegistry::instance()->clearCaches();
        return !myRejected.contains(theProductType.name());
    }
    ZTProductCheckerType type() const override { return myType; }
    bool isValidBoxStyle(const ZTProductType& theProductType,
                         const ZTArticleVariants& theVariants) const override
    {
        return !myRejected.contains(theProductType.name()) || !theVariants.contains(3);
    }

    ZTProductCheckerTypeEnum myType;
    QSet<QString> myRejected;
    bool myClearsCaches = false;
    mutable std::atomic<int> myCalls{0};
};

class FakeCalculator : public ZTPageOrganizationCalculator
{
public:
    FakeCalculator(int theMinPages, bool* theDeleted) : myMinPages(theMinPages), myDeleted(theDeleted) {}
    ~FakeCalculator() override { *myDeleted = true; }

    ZTPageCountOrganization createPageOrganization(const ZTProductType& theProductType) const override
    {
        ++myCalls;
        if (myClearsCache)
            ZTPageOrganizationManager::instance()->clearCache();
        return theProductType.name() == QLatin1String("print") ? ZTPageCountOrganization()
                                                               : ZTPageCountOrganization(myMinPages, 100, 2);
    }

    int myMinPages;
    bool* myDeleted;
    bool myClearsCache = false;
    mutable std::atomic<int> myCalls{0};
};

} // namespace

class tst_ZTProductRegistries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checkersSelectedByMask_data();
    void checkersSelectedByMask();
    void checkerAnswersAreRemembered();
    void pageOrganizationManager();

private:
    void registerCheckers();

    FakeChecker* mySaleable = nullptr;
    FakeChecker* myEditor = nullptr;
    FakeChecker* myAccessory = nullptr;
};

void tst_ZTProductRegistries::registerCheckers()
{
    if (mySaleable)
        return;
    mySaleable = new FakeChecker(ZTProductCheckerTypeSaleable, {QStringLiteral("unpriced")});
    myEditor = new FakeChecker(ZTProductCheckerTypeEditor, {QStringLiteral("nodesign")});
    myAccessory = new FakeChecker(ZTProductCheckerTypeAccessory, {QStringLiteral("slipcase")});
    ZTProductCheckerRegistry* registry = ZTProductCheckerRegistry::instance();
    registry->registerChecker(mySaleable);
    registry->registerChecker(myEditor);
    registry->registerChecker(myAccessory);
}

void tst_ZTProductRegistries::checkersSelectedByMask_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("mask");
    QTest::addColumn<bool>("valid");

    QTest::newRow("unpriced, engine asked") << "unpriced" << 1 << false;
    QTest::newRow("unpriced, accessories asked") << "unpriced" << 4 << true;
    QTest::newRow("unpriced, all asked") << "unpriced" << 7 << false;
    QTest::newRow("unpriced, editor and accessories") << "unpriced" << 6 << true;
    QTest::newRow("slipcase, accessories asked") << "slipcase" << 4 << false;
    QTest::newRow("slipcase, engine asked") << "slipcase" << 1 << true;
    QTest::newRow("slipcase, all asked") << "slipcase" << 7 << false;
    QTest::newRow("nodesign, editor asked") << "nodesign" << 2 << false;
    QTest::newRow("nodesign, engine and accessories") << "nodesign" << 5 << true;
    QTest::newRow("book, all asked") << "book" << 7 << true;
    QTest::newRow("nobody asked") << "unpriced" << 0 << true;
    QTest::newRow("a type without checkers") << "unpriced" << 8 << true;
}

void tst_ZTProductRegistries::checkersSelectedByMask()
{
    QFETCH(QString, product);
    QFETCH(int, mask);
    QFETCH(bool, valid);

    registerCheckers();
    const ZTProductCheckerType types{ZTProductCheckerTypeEnum(mask)};
    ZTProductCheckerRegistry* registry = ZTProductCheckerRegistry::instance();
    QCOMPARE(registry->isValid(ZTProductType(product), types), valid);
    // The second answer comes from the cache and must be the same.
    QCOMPARE(registry->isValid(ZTProductType(product), types), valid);
}

void tst_ZTProductRegistries::checkerAnswersAreRemembered()
{
    registerCheckers();
    ZTProductCheckerRegistry* registry = ZTProductCheckerRegistry::instance();
    registry->clearCaches();
    const int before = mySaleable->myCalls;

    QVERIFY(registry->isValid(type("book")));
    QVERIFY(registry->isValid(type("book")));
    QCOMPARE(mySaleable->myCalls - before, 1);
    // Another mask is another question.
    QVERIFY(registry->isValid(type("book"), ZTProductCheckerTypeSaleable));
    QCOMPARE(mySaleable->myCalls - before, 2);

    registry->clearCaches();
    QVERIFY(registry->isValid(type("book")));
    QCOMPARE(mySaleable->myCalls - before, 3);

    // A new checker drops the remembered yes; the same checker twice, or none, changes nothing.
    auto* strict = new FakeChecker(ZTProductCheckerTypeSaleable, {QStringLiteral("book")});
    registry->registerChecker(strict);
    QVERIFY(!registry->isValid(type("book")));
    QCOMPARE(registry->checkerCount(), 4);
    registry->registerChecker(strict);
    QTest::ignoreMessage(QtWarningMsg, "ZTProductCheckerRegistry: a null checker cannot be registered");
    registry->registerChecker(nullptr);
    QCOMPARE(registry->checkerCount(), 4);

    // A checker that clears the cache while it answers must neither deadlock nor leave its
    // answer behind in the fresh cache.
    strict->myClearsCaches = true;
    const int strictBefore = strict->myCalls;
    QVERIFY(registry->isValid(type("album"), ZTProductCheckerTypeSaleable));
    QVERIFY(registry->isValid(type("album"), ZTProductCheckerTypeSaleable));
    QCOMPARE(strict->myCalls - strictBefore, 2);
    strict->myClearsCaches = false;

    QVERIFY(registry->isValidBoxStyle(type("slipcase"), ZTArticleVariants({1, 2})));
    QVERIFY(!registry->isValidBoxStyle(type("slipcase"), ZTArticleVariants({3})));
    QVERIFY(registry->isValidBoxStyle(type("slipcase"), ZTArticleVariants({3}), ZTProductCheckerTypeEditor));
}

void tst_ZTProductRegistries::pageOrganizationManager()
{
    ZTPageOrganizationManager* manager = ZTPageOrganizationManager::instance();
    QVERIFY(!manager->hasCalculator());
    QCOMPARE(manager->pageCountOrganization(type("book")), ZTPageCountOrganization());

    bool firstDeleted = false;
    auto* first = new FakeCalculator(24, &firstDeleted);
    manager->setCalculator(first);
    QCOMPARE(manager->pageCountOrganization(type("book")), ZTPageCountOrganization(24, 100, 2));
    QCOMPARE(manager->pageCountOrganization(type("book")), ZTPageCountOrganization(24, 100, 2));
    QCOMPARE(manager->pageCountOrganization(type("print")), ZTPageCountOrganization());
    QCOMPARE(first->myCalls.load(), 2);

    manager->clearCache();
    manager->pageCountOrganization(type("book"));
    QCOMPARE(first->myCalls.load(), 3);

    // Setting the same calculator again keeps it and its cache.
    manager->setCalculator(first);
    QVERIFY(!firstDeleted);
    manager->pageCountOrganization(type("book"));
    QCOMPARE(first->myCalls.load(), 3);

    // A calculator that clears the cache while it works: no deadlock, and nothing remembered.
    first->myClearsCache = true;
    manager->pageCountOrganization(type("album"));
    manager->pageCountOrganization(type("album"));
    QCOMPARE(first->myCalls.load(), 5);

    // The manager owns its calculator: a new one replaces and deletes the old one, and the old
    // answers go with it.
    bool secondDeleted = false;
    manager->setCalculator(new FakeCalculator(26, &secondDeleted));
    QVERIFY(firstDeleted);
    QCOMPARE(manager->pageCountOrganization(type("book")), ZTPageCountOrganization(26, 100, 2));

    manager->setCalculator(nullptr);
    QVERIFY(secondDeleted);
    QVERIFY(!manager->hasCalculator());
    QCOMPARE(manager->pageCountOrganization(type("book")), ZTPageCountOrganization());
}

QTEST_GUILESS_MAIN(tst_ZTProductRegistries)
#include "tst_ZTProductRegistries.moc"
