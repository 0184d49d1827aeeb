#include "ZTDiscountLimitList.h"
#include "ZTDiscountLimitListKey.h"
#include "ZTDiscountLimitSet.h"

#include <QDomDocument>
#include <QTest>

// Discount limits, their lists and sets, and the key of a cached ladder.
class tst_ZTDiscountLimit : public QObject
{
    Q_OBJECT

private:
    static ZTDiscountLimit limit(ZTDiscountModelEnum theModel, int theLevel, int theLower, int theUpper)
    {
        return ZTDiscountLimit(theModel, theLevel, theLower, theUpper);
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void readFromRow_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<ZTDiscountLimit>("expected");
        QTest::newRow("article default") << "article"
                                         << "quantity=\"5\"" << limit(ZTDiscountModelBulk, 0, 5, -1);
        QTest::newRow("transfer default") << "transfer"
                                          << "level=\"2\"" << limit(ZTDiscountModelBulkTransfer, 2, 1, -1);
        QTest::newRow("express default") << "express_fee"
                                         << "" << limit(ZTDiscountModelExpressFee, 0, 1, -1);
        QTest::newRow("fee default") << "pay_method_fee"
                                     << "" << limit(ZTDiscountModelBulk, 0, 1, -1);
        QTest::newRow("given type wins")
            << "transfer"
            << "type=\"Z\" quantity=\"10000\"" << limit(ZTDiscountModelBillingSumTransfer, 0, 10000, -1);
        QTest::newRow("any model is invalid") << "article"
                                              << "type=\"*\"" << ZTDiscountLimit();
        QTest::newRow("malformed numbers")
            << "article"
            << "level=\"x\" quantity=\"4.5\"" << limit(ZTDiscountModelBulk, 0, 1, -1);
    }
    void readFromRow()
    {
        QFETCH(QString, node);
        QFETCH(QString, attributes);
        QFETCH(ZTDiscountLimit, expected);
        QDomDocument doc;
        QVERIFY(doc.setContent(
            QStringLiteral("<%1><base_prices><price %2/></base_prices></%1>").arg(node, attributes)));
        QCOMPARE(ZTDiscountLimit(doc.documentElement().firstChildElement().firstChildElement()), expected);
        QVERIFY(!ZTDiscountLimit(QDomElement()).isValid());
    }

    void modelChangesRememberBulkOrigin()
    {
        const ZTDiscountLimit bulk = limit(ZTDiscountModelFotoPackageBulk, 3, 100, -1);
        QCOMPARE(ZTDiscountLimit(bulk, ZTDiscountModel()).discountModel().value(),
                 ZTDiscountModelFotoPackageBulk);
        ZTDiscountLimit converted(bulk);
        converted.setDiscountModel(ZTDiscountModelFotoPackage);
        QVERIFY(converted.wasBulkModel());
        QVERIFY(converted.isFotoBasePackageBulkLimit());
        QVERIFY(!converted.isFotoBasePackageCombiLimmit());
        QVERIFY(!bulk.wasBulkModel());
        QVERIFY(ZTDiscountLimit(converted, ZTDiscountModelBulk).wasBulkModel());
        converted.setDiscountModel(ZTDiscountModelFotoPackage);
        QVERIFY(!converted.wasBulkModel());
        QVERIFY(converted.isFotoBasePackageCombiLimmit());
        QVERIFY(limit(ZTDiscountModelFotoPackage, 1, 1, 26).isFotoBasePackageLimit());
    }

    void listOrderAndQueries()
    {
        ZTDiscountLimitList list({limit(ZTDiscountModelInherited, 0, 1, -1),
                                  limit(ZTDiscountModelBulk, 1, 5, 9), limit(ZTDiscountModelBulk, 1, 5, -1),
                                  limit(ZTDiscountModelBulk, 0, 1, 4)});
        list.sort();
        QCOMPARE(list.at(0), limit(ZTDiscountModelBulk, 0, 1, 4));
        QCOMPARE(list.at(1), limit(ZTDiscountModelBulk, 1, 5, -1));
        QCOMPARE(list.at(2), limit(ZTDiscountModelBulk, 1, 5, 9));
        QVERIFY(limit(ZTDiscountModelBulk, 7, 5, -1) < limit(ZTDiscountModelBulk, 0, 5, 9));
        QCOMPARE(list.maxFotosInBasepackage(), 0);
        QVERIFY(list.containsDiscountModel(ZTDiscountModelInherited));
        QCOMPARE(list.filterInherited().size(), 3);
        list.append(limit(ZTDiscountModelFotoPackage, 1, 1, 26));
        QCOMPARE(list.maxFotosInBasepackage(), 26);
    }

    void removeZeroLimits_data()
    {
        QTest::addColumn<ZTDiscountLimitSet>("limits");
        QTest::addColumn<ZTDiscountLimitSet>("expected");
        const ZTDiscountLimit open = limit(ZTDiscountModelBulk, 1, 5, -1);
        const ZTDiscountLimit bounded = limit(ZTDiscountModelBulk, 1, 5, 9);
        const ZTDiscountLimit otherModel = limit(ZTDiscountModelInherited, 1, 5, 9);
        QTest::newRow("bounded twin wins")
            << ZTDiscountLimitSet({open, bounded}) << ZTDiscountLimitSet({bounded});
        QTest::newRow("alone stays") << ZTDiscountLimitSet({open}) << ZTDiscountLimitSet({open});
        QTest::newRow("other model is no twin")
            << ZTDiscountLimitSet({open, otherModel}) << ZTDiscountLimitSet({open, otherModel});
        QTest::newRow("other lower bound is no twin")
            << ZTDiscountLimitSet({open, limit(ZTDiscountModelBulk, 1, 6, 9)})
            << ZTDiscountLimitSet({open, limit(ZTDiscountModelBulk, 1, 6, 9)});
    }
    void removeZeroLimits()
    {
        QFETCH(ZTDiscountLimitSet, limits);
        QFETCH(ZTDiscountLimitSet, expected);
        limits.removeZeroLimits();
        QCOMPARE(limits, expected);
    }

    void openTwinsKeepOne()
    {
        ZTDiscountLimitSet limits({limit(ZTDiscountModelBulk, 1, 5, -1), limit(ZTDiscountModelBulk, 2, 5, -1),
                                   limit(ZTDiscountModelBulk, 0, 1, -1)});
        limits.removeZeroLimits();
        QCOMPARE(limits.size(), 2);
        QVERIFY(limits.contains(limit(ZTDiscountModelBulk, 0, 1, -1)));
        limits.removeAllNoneLevelZeroLimits();
        QCOMPARE(limits, ZTDiscountLimitSet({limit(ZTDiscountModelBulk, 0, 1, -1)}));
    }

    void listKeys()
    {
        const ZTAPMPriceKey key(ZTOrderSource::onlineMailOrder(), 0, ZTDiscountModelBulk);
        const ZTDiscountLimitListKey all(ZTShippingGroupId(2), key, true);
        const ZTDiscountLimitListKey shown(ZTShippingGroupId(2), key, false);
        QCOMPARE(all.hashValue(), 200000000u + 2u + key.hashValue());
        QCOMPARE(shown.hashValue(), 210000000u + key.hashValue());
        QVERIFY(all != shown);
        QVERIFY(!(shown < all));
        QHash<ZTDiscountLimitListKey, int> cache{{all, 1}, {shown, 2}};
        QCOMPARE(cache.value(ZTDiscountLimitListKey(ZTShippingGroupId(2), ZTAPMPriceKey(key), false)), 2);
    }
};

QTEST_GUILESS_MAIN(tst_ZTDiscountLimit)
#include "tst_ZTDiscountLimit.moc"
