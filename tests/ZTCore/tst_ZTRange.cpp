#include "ZTDateRange.h"
#include "ZTRange.h"

#include <QTest>

class tst_ZTRange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void order_data()
    {
        QTest::addColumn<ZTIntRange>("left");
        QTest::addColumn<ZTIntRange>("right");
        QTest::addColumn<bool>("less");
        QTest::newRow("by lower bound") << ZTIntRange(1, 9) << ZTIntRange(2, 3) << true;
        QTest::newRow("then by upper bound") << ZTIntRange(1, 3) << ZTIntRange(1, 4) << true;
        QTest::newRow("equal") << ZTIntRange(1, 3) << ZTIntRange(1, 3) << false;
        QTest::newRow("invalid never less") << ZTIntRange(5, 1) << ZTIntRange(9, 9) << false;
        QTest::newRow("valid before invalid") << ZTIntRange(9, 9) << ZTIntRange(5, 1) << true;
    }
    void order()
    {
        QFETCH(ZTIntRange, left);
        QFETCH(ZTIntRange, right);
        QFETCH(bool, less);
        QCOMPARE(left < right, less);
    }

    void operations()
    {
        ZTIntRange range;
        range.expandTo(5);
        QCOMPARE(range, ZTIntRange(5, 5));
        range.expandTo(-3);
        range.expandTo(8);
        range.expandTo(6);
        QCOMPARE(range, ZTIntRange(-3, 8));
        QCOMPARE(range.center(), 2);
        QCOMPARE(ZTIntRange(-3, 0).center(), -1); // truncated toward zero
        QVERIFY(range.contains(-3) && range.contains(8) && !range.contains(9));
        QVERIFY(range.contains(ZTIntRange(0, 8)));
        QVERIFY(!range.contains(ZTIntRange(0, 9)));
        QVERIFY(range.intersects(ZTIntRange(8, 20)));
        QVERIFY(ZTIntRange(0, 1).intersects(range));    // inside
        QVERIFY(ZTIntRange(-10, 10).intersects(range)); // around
        QVERIFY(!range.intersects(ZTIntRange(9, 20)));
        QVERIFY(!ZTIntRange(2, 1).isValid());
    }

    void dateRange()
    {
        const ZTDateRange range(QDate(2024, 12, 23), QDate(2025, 1, 2));
        QVERIFY(range.isValid());
        QCOMPARE(range.days(), 11);
        QVERIFY(range.contains(QDate(2024, 12, 31)));
        QVERIFY(range.contains(QDate(2025, 1, 2)));
        QVERIFY(!range.contains(QDate(2025, 1, 3)));
        QVERIFY(!ZTDateRange().isValid());
        QCOMPARE(ZTDateRange().days(), 0);
        QVERIFY(!ZTDateRange(QDate(2025, 1, 2), QDate(2024, 12, 23)).contains(QDate(2024, 12, 31)));
        QVERIFY(range != ZTDateRange());
    }
};

QTEST_GUILESS_MAIN(tst_ZTRange)
#include "tst_ZTRange.moc"
