#include "ZTDistance.h"

#include <QTest>

class tst_ZTDistance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unitKeywords_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<int>("unit");
        QTest::addColumn<double>("pixelsPerUnit");
        QTest::newRow("mm") << " MM " << 2 << 10.0;
        QTest::newRow("number of mm") << "2" << 2 << 10.0;
        QTest::newRow("empty is mm") << "" << 2 << 10.0;
        QTest::newRow("px") << "pixel" << 1 << 1.0;
        QTest::newRow("cm") << "cm" << 3 << 100.0;
        QTest::newRow("inch") << "in" << 4 << 254.0;
        QTest::newRow("point") << "pt" << 5 << 254.0 / 72.0;
    }
    void unitKeywords()
    {
        QFETCH(QString, keyword);
        QFETCH(int, unit);
        QFETCH(double, pixelsPerUnit);
        const ZTDistanceUnit decoded(keyword);
        QCOMPARE(int(decoded.value()), unit);
        QCOMPARE(decoded.pixelsPerUnit(), pixelsPerUnit);
        QCOMPARE(ZTDistance(1.0, decoded).value(ZTDistanceUnit(ZTDistanceUnitPixel)), pixelsPerUnit);
    }

    void badUnitWarnsAndGivesMillimetres()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^undecodable: \"furlong\"")));
        QCOMPARE(ZTDistanceUnit(QStringLiteral("furlong")).value(), ZTDistanceUnitMillimetre);
        QCOMPARE(ZTDistanceUnit(ZTDistanceUnitMillimetre).encode(), QStringLiteral("mm"));
    }

    void conversion()
    {
        const ZTDistance a4Width = ZTDistance::fromMillimetres(210.0);
        QCOMPARE(a4Width.pixels(), 2100.0);
        QCOMPARE(a4Width.value(ZTDistanceUnit(ZTDistanceUnitCentimetre)), 21.0);
        QCOMPARE(ZTDistance(8.5, ZTDistanceUnit(ZTDistanceUnitInch))
                     .value(ZTDistanceUnit(ZTDistanceUnitMillimetre)),
                 215.9);
        QCOMPARE(ZTDistance(72.0, ZTDistanceUnit(ZTDistanceUnitPoint)), ZTDistance::fromPixels(254.0));
        QCOMPARE(
            (a4Width - ZTDistance::fromMillimetres(10.0)).value(ZTDistanceUnit(ZTDistanceUnitMillimetre)),
            200.0);
        QVERIFY(ZTDistance::fromPixels(1.0) < ZTDistance::fromMillimetres(0.5));
        // Halves round away from zero, as the engine expects of lengths.
        QCOMPARE(ZTDistance::fromMillimetres(0.25).roundedPixels(), 3);
        QCOMPARE(ZTDistance::fromMillimetres(-0.25).roundedPixels(), -3);
    }
};

QTEST_GUILESS_MAIN(tst_ZTDistance)
#include "tst_ZTDistance.moc"
