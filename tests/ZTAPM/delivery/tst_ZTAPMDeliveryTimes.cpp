#include "ZTAPMDeliveryTimes.h"
#include "ZTAPMShippingDate.h"
#include "ZTExpressKey.h"
#include "ZTExpressTypeList.h"

#include <QDomDocument>
#include <QLocale>
#include <QTest>

namespace {

QDomElement parse(const QString& theXml)
{
    QDomDocument document;
    if (!document.setContent(theXml))
        qFatal("test document is not well-formed");
    return document.documentElement();
}

} // namespace

// Delivery times of the catalogue, shipping dates of the server and the express key.
class TestAPMDeliveryTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expressKey()
    {
        const ZTExpressKey express(ZTShippingGroupId(2), ZTExpressType(ZTExpressTypeExpress));
        const ZTExpressKey standard(ZTShippingGroupId(2), ZTExpressType(ZTExpressTypeStandard));
        QVERIFY(!(express == standard));
        QVERIFY(express == ZTExpressKey(ZTShippingGroupId(2), ZTExpressType(QStringLiteral("3"))));
        QVERIFY(express.hasShippingGroup(ZTShippingGroupId(2)));
        QVERIFY(!express.hasShippingGroup(ZTShippingGroupId(3)));

        // Hand-computed with the integer mix; an invalid group is sign-extended.
        QCOMPARE(express.hashValue(), Q_UINT64_C(0x7915a24ff0e28a52));
        QCOMPARE(standard.hashValue(), Q_UINT64_C(0xfa58e4b35c688252));
        QCOMPARE(ZTExpressKey(ZTShippingGroupId(), ZTExpressType(ZTExpressTypeStandard)).hashValue(),
                 Q_UINT64_C(0xa24fae4dd7937459));
        QCOMPARE(ZTExpressKey(ZTShippingGroupId(0), ZTExpressType()).hashValue(), Q_UINT64_C(0));
    }

    void expressTypeList()
    {
        QCOMPARE(ZTExpressTypeList::allExpressTypes(), ZTExpressTypeList({ZTExpressTypeExpress}));

        ZTExpressTypeList list{ZTExpressTypeStandard, ZTExpressTypeExpress, ZTExpressTypeStandard};
        QCOMPARE(list.sorted(),
                 ZTExpressTypeList({ZTExpressTypeStandard, ZTExpressTypeStandard, ZTExpressTypeExpress}));
        QCOMPARE(list.asSet().size(), 2);
        QCOMPARE(list.filterOut(ZTExpressTypeList{ZTExpressTypeStandard}),
                 ZTExpressTypeList{ZTExpressTypeExpress});

        const ZTExpressTypeList other{ZTExpressTypeExpress, ZTExpressTypeStandard, ZTExpressTypeExpress};
        QCOMPARE(other.intersection(ZTExpressTypeList{ZTExpressTypeExpress}),
                 ZTExpressTypeList({ZTExpressTypeExpress, ZTExpressTypeExpress}));
    }

    void decodeLatency_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("lower");
        QTest::addColumn<int>("upper");

        QTest::newRow("single") << "3" << 3 << 3;
        QTest::newRow("range") << "3-5" << 3 << 5;
        QTest::newRow("last repetition counts") << "3-5-7" << 3 << 7;
        QTest::newRow("inside text") << "ca. 2-4 Werktage" << 2 << 4;
        QTest::newRow("reversed is kept") << "5-3" << 5 << 3;
        QTest::newRow("zero") << "0" << 0 << 0;
        QTest::newRow("no digits") << "bald" << -1 << -1;
        QTest::newRow("empty") << "" << -1 << -1;
        QTest::newRow("dangling dash") << "4-" << 4 << 4;
        QTest::newRow("lower beyond 32 bits") << "99999999999-5" << 0 << 5;
        QTest::newRow("upper beyond 32 bits") << "2-99999999999" << 2 << 2;
    }
    void decodeLatency()
    {
        QFETCH(QString, text);
        QFETCH(int, lower);
        QFETCH(int, upper);
        const ZTIntRange range = ZTAPMDeliveryTime::decodeLatency(text);
        QCOMPARE(range.lower(), lower);
        QCOMPARE(range.upper(), upper);
    }

    void deliveryTime()
    {
        const ZTAPMDeliveryTime time(
            parse(QStringLiteral(R"(<delivery_time days="3-5" delivery_type="1" express="3"/>)")));
        QVERIFY(time.isValid());
        QVERIFY(time.hasValidDayRange());
        QVERIFY(time.varies());
        QVERIFY(time.hasKey(ZTDeliveryType(ZTDeliveryTypeMailOrder), ZTExpressType(ZTExpressTypeExpress)));
        // Express is compared as a whole value, and 3 is not the keyword "3".
        QVERIFY(!time.hasKey(ZTDeliveryType(ZTDeliveryTypeMailOrder),
                             ZTExpressType(ZTExpressTypeEnum(ZTExpressTypeStandard | ZTExpressTypeExpress))));

        const ZTAPMDeliveryTime zero(
            parse(QStringLiteral(R"(<delivery_time days="0" delivery_type="0" express="0"/>)")));
        QVERIFY(zero.isValid());
        QVERIFY(!zero.hasValidDayRange());
        QVERIFY(!zero.varies());

        QVERIFY(!ZTAPMDeliveryTime().isValid());
        QVERIFY(!ZTAPMDeliveryTime(parse(QStringLiteral(R"(<delivery_time days="2" delivery_type="1"/>)")))
                     .isValid());
        QVERIFY(!ZTAPMDeliveryTime(parse(QStringLiteral(R"(<x days="2" delivery_type="post" express="0"/>)")))
                     .isValid());

        // Sorting looks at the days alone; a reversed range sorts after every proper one.
        const ZTDeliveryType mail(ZTDeliveryTypeMailOrder);
        const ZTExpressType standard(ZTExpressTypeStandard);
        const ZTAPMDeliveryTime twoToFour(ZTIntRange(2, 4), mail, standard);
        const ZTAPMDeliveryTime twoToFive(ZTIntRange(2, 5), ZTDeliveryType(ZTDeliveryTypePointOfSale),
                                          ZTExpressType(ZTExpressTypeExpress));
        const ZTAPMDeliveryTime reversed(ZTIntRange(5, 3), mail, standard);
        QVERIFY(twoToFour < twoToFive);
        QVERIFY(!(twoToFive < twoToFour));
        QVERIFY(twoToFive < reversed);
        QVERIFY(!(reversed < twoToFour));
        QVERIFY(twoToFour != twoToFive);
        QCOMPARE(twoToFour, ZTAPMDeliveryTime(ZTIntRange(2, 4), mail, standard));
    }

    void deliveryTimes()
    {
        const QDomElement element = parse(QStringLiteral(R"(
            <delivery_times>
              <delivery_time days="4-6" delivery_type="1" express="0"/>
              <delivery_time days="9" delivery_type="1" express="0"/>
              <delivery_time days="2" delivery_type="1"/>
              <note days="1" delivery_type="1" express="3"/>
              <delivery_time days="1-2" delivery_type="1" express="3"/>
              <delivery_time days="soon" delivery_type="0" express="0"/>
            </delivery_times>)"));
        QTest::ignoreMessage(QtWarningMsg, "invalid \"delivery_time\"");
        const ZTAPMDeliveryTimes times(element);
        QCOMPARE(times.size(), 4);

        const ZTDeliveryType mail(ZTDeliveryTypeMailOrder);
        const ZTDeliveryType pointOfSale(ZTDeliveryTypePointOfSale);
        // The first of two entries with one key wins.
        QCOMPARE(times.shippingTime(mail, ZTExpressType(ZTExpressTypeStandard)).maxDays(), 6);
        QCOMPARE(times.shippingTime(mail, ZTExpressType(ZTExpressTypeExpress)).minDays(), 1);
        QVERIFY(!times.shippingTime(pointOfSale, ZTExpressType(ZTExpressTypeExpress)).isValid());
        // Unreadable days still make an entry that is found, but without a usable range.
        const ZTAPMDeliveryTime unreadable =
            times.shippingTime(pointOfSale, ZTExpressType(ZTExpressTypeStandard));
        QVERIFY(unreadable.isValid());
        QVERIFY(!unreadable.hasValidDayRange());
        QVERIFY(times.isExpressable());

        // Only express itself counts as an express option.
        const ZTAPMDeliveryTimes standardOnly(parse(QStringLiteral(
            R"(<delivery_times><delivery_time days="3" delivery_type="0" express="0"/></delivery_times>)")));
        QCOMPARE(standardOnly.size(), 1);
        QVERIFY(!standardOnly.isExpressable());
        QVERIFY(standardOnly.isExpressable(pointOfSale, ZTExpressType(ZTExpressTypeStandard)));

        // Any other element: all its child elements, whatever their names.
        const ZTAPMDeliveryTimes anyName(
            parse(QStringLiteral(R"(<times><a days="1" express="0"/><b days="2" express="3"/></times>)")));
        QCOMPARE(anyName.size(), 2);
        QCOMPARE(anyName.first().deliveryType().value(), ZTDeliveryTypeNotGiven);
        QVERIFY(ZTAPMDeliveryTimes(QDomElement()).isEmpty());
    }

    void shippingDate_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("lineBreak");
        QTest::addColumn<QString>("hint");

        QTest::newRow("range")
            << R"(<shipping_time express="0" min="2024-05-03T00:00:00" max="2024-05-07T12:00:00"/>)" << false
            << "Voraussichtliches Lieferdatum:  <nobr><b>Freitag, 3. Mai 2024 - "
               "Dienstag, 7. Mai 2024</b></nobr>";
        QTest::newRow("one day, line break")
            << R"(<shipping_time min="2024-05-03T08:00:00" max="2024-05-03T18:00:00"/>)" << true
            << "Voraussichtliches Lieferdatum:<br> <nobr><b>Freitag, 3. Mai 2024</b></nobr>";
        QTest::newRow("max missing") << R"(<shipping_time min="2024-12-24T00:00:00"/>)" << false
                                     << "Voraussichtliches Lieferdatum:  <nobr><b>Dienstag, 24. Dezember "
                                        "2024</b></nobr>";
        QTest::newRow("min missing") << R"(<shipping_time max="2024-05-07T00:00:00"/>)" << false << "";
        QTest::newRow("min unreadable")
            << R"(<shipping_time min="morgen" max="2024-05-07T00:00:00"/>)" << false << "";
        QTest::newRow("wrong element") << R"(<shipping_date min="2024-05-03T00:00:00"/>)" << false << "";
    }
    void shippingDate()
    {
        QFETCH(QString, xml);
        QFETCH(bool, lineBreak);
        QFETCH(QString, hint);
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const ZTAPMShippingDate date(parse(xml));
        QCOMPARE(date.isValid(), !hint.isEmpty());
        QCOMPARE(date.createShippingDateHint(lineBreak), hint);
        QLocale::setDefault(QLocale::c());
    }

    void shippingDateValues()
    {
        const ZTAPMShippingDate date(
            parse(QStringLiteral(R"(<shipping_time min="2024-05-03T00:00:00" max="2024-05-07T00:00:00"/>)")));
        QCOMPARE(date.minDate(), QDate(2024, 5, 3));
        QCOMPARE(date.maxDate(), QDate(2024, 5, 7));
        QVERIFY(date.varies());
        QVERIFY(!(date == ZTAPMShippingDate()));
        QVERIFY(!ZTAPMShippingDate().varies());
    }
};

QTEST_GUILESS_MAIN(TestAPMDeliveryTimes)
#include "tst_ZTAPMDeliveryTimes.moc"
