#include "ZTFotopackList.h"
#include "ZTOCRBillCouponList.h"
#include "ZTProgramConfig.h"

#include <QDomDocument>
#include <QTest>

// Coupons of the server's order calculation and the customer's photo packs. The catalogue is
// tests/data/result.
class tst_ZTOCRBillCoupons : public QObject
{
    Q_OBJECT

private:
    static QDomElement parse(const QString& theXml)
    {
        QDomDocument document;
        document.setContent(theXml);
        return document.documentElement();
    }

    // "CODE:value" per coupon, "!" after a defective one.
    static QString describe(const ZTOCRBillCouponList& theCoupons)
    {
        QStringList coupons;
        for (const ZTOCRBillCoupon& coupon : theCoupons)
            coupons.append(QStringLiteral("%1:%2%3")
                               .arg(coupon.code())
                               .arg(coupon.value().value())
                               .arg(coupon.isDefective() ? "!" : ""));
        return coupons.join(QLatin1Char(' '));
    }

    static ZTOCRBillCouponList coupons(const QString& theDescription)
    {
        ZTOCRBillCouponList result;
        for (const QString& coupon : theDescription.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QStringList fields = coupon.split(QLatin1Char(':'));
            result.append(ZTOCRBillCoupon(fields.at(0), fields.at(1).toInt()));
        }
        return result;
    }

    static QString describe(const ZTFotopackList& thePacks)
    {
        QStringList packs;
        for (const ZTFotopack& pack : thePacks)
            packs.append(QStringLiteral("%1:%2").arg(pack.articleId().id()).arg(pack.residualAmount()));
        return packs.join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void initTestCase()
    {
        ZTProgramConfig::instance()->setKeyAccountDirectory(QStringLiteral(ZT_TEST_DATA_DIR "/result"));
    }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void readCoupons_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("coupons");
        QTest::newRow("valid ones in order")
            << "<order><coupon_sum code='B'>100</coupon_sum><bill_sum>5</bill_sum><coupon_sum> 0 "
               "</coupon_sum><coupon_sum code='A'>25</coupon_sum></order>"
            << "B:100 :0 A:25";
        QTest::newRow("no number, below 0, empty")
            << "<order><coupon_sum code='A'>1.5</coupon_sum><coupon_sum code='B'>-1</coupon_sum>"
               "<coupon_sum code='C'/><coupon_sum code='D'>7</coupon_sum></order>"
            << "D:7";
        QTest::newRow("a blank code is no code") << "<order><coupon_sum code='  '>3</coupon_sum></order>"
                                                 << ":3";
        QTest::newRow("none") << "<order/>"
                              << "";
    }

    void readCoupons()
    {
        QFETCH(QString, xml);
        QFETCH(QString, coupons);
        ZTOCRBillCouponList list{ZTOCRBillCoupon(QStringLiteral("X"), 1)};
        list.readCoupons(parse(xml));
        QCOMPARE(describe(ZTOCRBillCouponList(list.cbegin() + 1, list.cend())), coupons);
        QCOMPARE(list.first().code(), QStringLiteral("X"));
    }

    void unite_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("other");
        QTest::addColumn<QString>("united");
        QTest::newRow("same code adds up") << "A:100"
                                           << "A:50"
                                           << "A:150";
        QTest::newRow("new codes appended in order") << "A:100 B:5"
                                                     << "C:1 A:50 D:2"
                                                     << "A:150 B:5 C:1 D:2";
        QTest::newRow("no code merges with no code") << ":10 A:1"
                                                     << ":20 :30"
                                                     << ":60 A:1";
        QTest::newRow("what was appended is united too") << ""
                                                         << "A:1 A:2"
                                                         << "A:3";
        QTest::newRow("codes are case sensitive") << "a:1"
                                                  << "A:2"
                                                  << "a:1 A:2";
    }

    void unite()
    {
        QFETCH(QString, list);
        QFETCH(QString, other);
        QFETCH(QString, united);
        ZTOCRBillCouponList mine = coupons(list);
        const ZTOCRBillCouponList others = coupons(other);
        QCOMPARE(describe(mine.unite(others)), united);
        QCOMPARE(describe(mine), united);
        // The other list's coupons keep their values.
        QCOMPARE(describe(others), other);
    }

    void defective()
    {
        ZTOCRBillCouponList list = coupons("A:100 :0 B:0 A:20 :5");
        const ZTOCRBillCouponList before = list;
        QCOMPARE(describe(list.filterDefective()), QStringLiteral("A:100 A:20 :5"));
        QCOMPARE(describe(list.filterUserCoupons()), QStringLiteral("A:100 B:0 A:20"));

        list.markCouponAsDefective(QStringLiteral("A"));
        QCOMPARE(describe(list), QStringLiteral("A:100! :0 B:0 A:20! :5"));
        QCOMPARE(describe(list.filterDefective()), QStringLiteral(":5"));
        QCOMPARE(list.totalValue(), ZTMoney(125));
        QCOMPARE(describe(before), QStringLiteral("A:100 :0 B:0 A:20 :5"));
        QVERIFY(list.first() != before.first());
        QCOMPARE(ZTOCRBillCouponList().totalValue(), ZTMoney(0));
    }

    void coupon()
    {
        const ZTOCRBillCoupon user(QStringLiteral("SOMMER"), 500);
        QVERIFY(user.isUserCoupon());
        QCOMPARE(user.codeInQuotes(), QStringLiteral("<b>SOMMER</b>"));
        const ZTOCRBillCoupon granted(QString(), 0);
        QVERIFY(granted.isValid());
        QVERIFY(!granted.isUserCoupon());
        QCOMPARE(granted.codeInQuotes(), QString());
        QVERIFY(!ZTOCRBillCoupon().isValid());
        QCOMPARE(ZTOCRBillCoupon().value(), ZTMoney(-1));

        // By where the records lie: one of two records comes first, a copy is neither.
        const ZTOCRBillCoupon copy = user;
        QVERIFY((user < granted) != (granted < user));
        QVERIFY(!(copy < user) && !(user < copy));
        QCOMPARE(copy, ZTOCRBillCoupon(QStringLiteral("SOMMER"), 500));
        ZTOCRBillCoupon changed = copy;
        changed.setValue(400);
        QVERIFY(changed != user);
        QCOMPARE(user.value(), ZTMoney(500));
    }

    void fotopacks_data()
    {
        QTest::addColumn<QString>("packs");
        QTest::addColumn<QString>("sorted");
        const QString pack =
            QStringLiteral("<photopack article_id='%1' residual_amount='%2' initial_amount='50' "
                           "valid_until='%3'/>");
        const QString later = QStringLiteral("2999-06-01T10:00:00");
        QTest::newRow("groups, then print widths")
            << pack.arg(3002).arg(1).arg(later) + pack.arg(5001).arg(2).arg(later) +
                   pack.arg(3001).arg(3).arg(later) + pack.arg(1001).arg(4).arg(later)
            << "1001:4 5001:2 3001:3 3002:1";
        QTest::newRow("one article: by day, then by the rest")
            << pack.arg(3001).arg(9).arg("2999-06-02T08:00:00") + pack.arg(3001).arg(8).arg(later) +
                   pack.arg(3001).arg(6).arg(later)
            << "3001:6 3001:8 3001:9";
        QTest::newRow("one article, one day: document order")
            << pack.arg(3001).arg(7).arg("2999-06-01T23:00:00") + pack.arg(3001).arg(5).arg(later)
            << "3001:7 3001:5";
        QTest::newRow("only the heights differ: document order")
            << pack.arg(3003).arg(1).arg(later) + pack.arg(3002).arg(2).arg(later) << "3003:1 3002:2";
        QTest::newRow("expired, unknown, undated are dropped")
            << pack.arg(3001).arg(1).arg("2001-01-01T00:00:00") + pack.arg(42).arg(2).arg(later) +
                   QStringLiteral("<photopack article_id='3001' residual_amount='3'/>") +
                   pack.arg(3002).arg(4).arg(later)
            << "3002:4";
    }

    void fotopacks()
    {
        QFETCH(QString, packs);
        QFETCH(QString, sorted);
        ZTFotopackList list{ZTFotopack()};
        list.update(parse(QStringLiteral("<customer><photopacks>%1</photopacks></customer>").arg(packs)));
        QCOMPARE(describe(list), sorted);

        int residual = 0;
        for (const ZTFotopack& pack : list)
            residual += pack.residualAmount();
        QCOMPARE(list.totalResidualAmount(), residual);
        QCOMPARE(list.totalInitialAmount(), 50 * int(list.size()));
        QCOMPARE(list.filter(ZTArticleId(3001)).size(), sorted.count(QStringLiteral("3001")));
        QCOMPARE(list.totalResidualAmount(ZTArticleId(3001)) + list.totalResidualAmount(ZTArticleId(3002)) +
                     list.totalResidualAmount(ZTArticleId(3003)) +
                     list.totalResidualAmount(ZTArticleId(1001)) +
                     list.totalResidualAmount(ZTArticleId(5001)),
                 residual);

        list.update(parse(QStringLiteral("<customer/>")));
        QVERIFY(list.isEmpty());
    }

    void fotopack()
    {
        const ZTFotopack undated(
            parse(QStringLiteral("<photopack article_id='3001' residual_amount='3' initial_amount='5'/>")));
        QCOMPARE(undated.validUntil(), QDateTime(QDate(1970, 5, 26), QTime(9, 30)));
        QCOMPARE(undated.initialAmount(), 5);
        QVERIFY(!undated.isValid());
        QCOMPARE(ZTFotopack().articleId(), ZTArticleId(-1));

        // Equal only while nothing has been used: the rest is held against the other's start.
        const QString pack =
            QStringLiteral("<photopack article_id='3001' residual_amount='%1' initial_amount='10' "
                           "valid_until='2999-01-01T00:00:00'/>");
        const ZTFotopack unused(parse(pack.arg(10)));
        const ZTFotopack used(parse(pack.arg(4)));
        QVERIFY(unused == ZTFotopack(parse(pack.arg(10))));
        QVERIFY(used != ZTFotopack(parse(pack.arg(4))));
        QVERIFY(unused == used);
        QVERIFY(used != unused);
    }
};

QTEST_GUILESS_MAIN(tst_ZTOCRBillCoupons)
#include "tst_ZTOCRBillCoupons.moc"
