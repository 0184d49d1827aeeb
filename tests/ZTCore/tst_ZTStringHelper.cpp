#include "ZTRegularExpression.h"
#include "ZTSquish.h"
#include "ZTStringHelper.h"

#include <QTest>

#include <algorithm>

class tst_ZTStringHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void naturalOrder_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::newRow("numbers by value") << "9 x"
                                          << "10 x";
        QTest::newRow("long numbers without overflow") << "Poster 99999999999999999999"
                                                       << "Poster 100000000000000000000";
        QTest::newRow("second number decides") << "Fotobuch 20x30 40 Seiten"
                                               << "Fotobuch 20x30 120 Seiten";
        QTest::newRow("case does not count first") << "apfel 2"
                                                   << "Birne 1";
        QTest::newRow("case breaks ties") << "Foto"
                                          << "foto";
        QTest::newRow("leading zeros tie, then plain order") << "Foto 007"
                                                             << "Foto 7";
        QTest::newRow("prefix first") << "Kalender"
                                      << "Kalender 2025";
        QTest::newRow("umlaut case-folded") << QString::fromUtf8("Ähre 2") << QString::fromUtf8("ähre 10");
    }
    void naturalOrder()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QVERIFY(ZTStringHelper::numberAwareProductNameLessThan(left, right));
        QVERIFY(!ZTStringHelper::numberAwareProductNameLessThan(right, left));
        QVERIFY(!ZTStringHelper::numberAwareProductNameLessThan(left, left));
    }

    // std::sort needs a strict weak order: irreflexive, transitive, and with transitive
    // incomparability. Checked over every triple of awkward names.
    void strictWeakOrder()
    {
        const QStringList names = {QString(),
                                   QStringLiteral("0"),
                                   QStringLiteral("00"),
                                   QStringLiteral("1"),
                                   QStringLiteral("a"),
                                   QStringLiteral("A"),
                                   QStringLiteral("a1"),
                                   QStringLiteral("a01"),
                                   QStringLiteral("a 1"),
                                   QStringLiteral("a10"),
                                   QStringLiteral("1a"),
                                   QStringLiteral("!"),
                                   QStringLiteral("~"),
                                   QStringLiteral("10 x"),
                                   QStringLiteral("9 x"),
                                   QStringLiteral("9 X")};
        const auto less = &ZTStringHelper::numberAwareProductNameLessThan;
        for (const QString& a : names) {
            QVERIFY(!less(a, a));
            for (const QString& b : names) {
                for (const QString& c : names) {
                    if (less(a, b) && less(b, c))
                        QVERIFY2(less(a, c), qPrintable(a + QLatin1Char('|') + b + QLatin1Char('|') + c));
                    const bool abEquivalent = !less(a, b) && !less(b, a);
                    const bool bcEquivalent = !less(b, c) && !less(c, b);
                    if (abEquivalent && bcEquivalent)
                        QVERIFY(!less(a, c) && !less(c, a));
                }
            }
        }
        QStringList sorted = {QStringLiteral("100 x"), QStringLiteral("10 x"), QStringLiteral("9 x")};
        std::sort(sorted.begin(), sorted.end(), less);
        QCOMPARE(sorted,
                 QStringList({QStringLiteral("9 x"), QStringLiteral("10 x"), QStringLiteral("100 x")}));
    }

    void regularExpressionAnswersAsQt()
    {
        const ZTRegularExpression days(QStringLiteral("(\\d+)(-(\\d+))*"));
        const QRegularExpressionMatch match = days.match(QStringLiteral("Lieferzeit 3-5 Tage"));
        QVERIFY(match.hasMatch());
        QCOMPARE(match.captured(1), QStringLiteral("3"));
        QCOMPARE(match.captured(3), QStringLiteral("5"));
        QVERIFY(!days.match(QStringLiteral("3"), 1).hasMatch());
        const ZTRegularExpression caseless(QStringLiteral("^foto"),
                                           QRegularExpression::CaseInsensitiveOption);
        QVERIFY(caseless.match(QStringLiteral("FOTObuch")).hasMatch());
        QVERIFY(caseless.match(QStringLiteral("FOT"), 0, QRegularExpression::PartialPreferCompleteMatch)
                    .hasPartialMatch());

        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^invalid regular expression \"\\(\" ")));
        const ZTRegularExpression broken(QStringLiteral("("));
        QVERIFY(!broken.isValid());
        QVERIFY(!broken.match(QStringLiteral("(")).hasMatch());
    }

    void squishNames()
    {
        QObject button;
        ZTSquish::setObjectName(&button, QStringLiteral(" online  mail order "));
        QCOMPARE(button.objectName(), QStringLiteral("online_mail_order"));
        QTest::ignoreMessage(QtWarningMsg, "cannot name a null object \"x\"");
        ZTSquish::setObjectName(nullptr, QStringLiteral("x"));
    }
};

QTEST_GUILESS_MAIN(tst_ZTStringHelper)
#include "tst_ZTStringHelper.moc"
