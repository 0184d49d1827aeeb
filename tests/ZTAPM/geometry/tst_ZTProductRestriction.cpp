#include "ZTAPMProductChecker.h"
#include "ZTInitializer.h"
#include "ZTKeyAccount.h"
#include "ZTProductCheckerRegistry.h"
#include "ZTProductRestriction.h"
#include "ZTProgramConfig.h"

#include <QDir>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

Q_DECLARE_METATYPE(ZTProductRestriction)

namespace {

ZTProductRestriction restriction(int theOrientations, qint64 theClasses = 0, quint32 theCovers = 0,
                                 int theBindings = 0, int theMinimum = 0)
{
    ZTProductRestriction result;
    result.addOrientations(ZTOrientationEnum(theOrientations));
    result.addArticleClass(ZTArticleClassEnum(theClasses));
    result.setAllowedCoverTypes(ZTCoverTypeEnum(theCovers));
    result.setAllowedPageBinding(ZTPageBindingEnum(theBindings));
    result.setMinimumSize(ZTSpaceMagnitudeEnum(theMinimum), false);
    return result;
}

// Every value added on its own to every set, in the order given.
ZTProductRestriction builtOneByOne(const QList<qint64>& theValues)
{
    ZTProductRestriction result;
    for (qint64 value : theValues) {
        result.addOrientations(ZTOrientationEnum(value & ZTOrientationAll));
        result.addArticleClass(ZTArticleClassEnum(value));
        result += restriction(0, 0, quint32(value));
        result.addAllowedPageBinding(ZTPageBindingEnum(value & 0xf));
    }
    return result;
}

const qint64 book = ZTArticleClassPhotoBook;
const qint64 calendar = ZTArticleClassCalendar;

} // namespace

class TestProductRestriction : public QObject
{
    Q_OBJECT

    QTemporaryDir myKeyAccount;

private Q_SLOTS:
    void initTestCase()
    {
        // The demo, but the landscape book (1002) costs nothing.
        const QDir demo(QStringLiteral(ZT_DEMO_DATA_DIR));
        for (const QString& name : demo.entryList(QDir::Files))
            QVERIFY(QFile::copy(demo.filePath(name), myKeyAccount.filePath(name)));
        QFile prices(myKeyAccount.filePath(QStringLiteral("prices.xml")));
        QVERIFY(prices.open(QIODevice::ReadWrite));
        QString text = QString::fromUtf8(prices.readAll());
        const qsizetype from = text.indexOf(QLatin1String("<article id=\"1002\">"));
        const qsizetype length = text.indexOf(QLatin1String("</article>"), from) - from;
        const QRegularExpression price(QStringLiteral("\\bprice=\"\\d+\""));
        text.replace(from, length, text.mid(from, length).replace(price, QStringLiteral("price=\"0\"")));
        prices.resize(0);
        prices.write(text.toUtf8());
        prices.close();
        ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(myKeyAccount.path());

        QTest::ignoreMessage(QtInfoMsg, "Calculator set for Page Organization Manager (POM).");
        QTest::ignoreMessage(QtInfoMsg, "Checker registerd with Product Checker Registry (PCR).");
        ZTSingleton<ZTInitializer>::instance()->setupAll(ZTInitializerOption());
        QCOMPARE(ZTSingleton<ZTProductCheckerRegistry>::instance()->checkerCount(), 1);
    }

    void checkerAnswers_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("valid");
        QTest::newRow("priced article") << "BOOK_A4_HC" << true;
        QTest::newRow("price of 0") << "BOOK_A4L_HC" << false;
        QTest::newRow("unknown type") << "NO_SUCH_TYPE" << false;
        QTest::newRow("no type") << "" << false;
        QTest::newRow("deprecated") << "BOOKLET_A5" << false;
    }

    void checkerAnswers()
    {
        QFETCH(QString, type);
        QFETCH(bool, valid);
        // The updated key account drops the booklet, which deprecates it.
        const bool dropped = type == QLatin1String("BOOKLET_A5");
        if (dropped)
            ZTSingleton<ZTKeyAccount>::instance()->switchTo(
                QStringLiteral(ZT_DEMO_DATA_DIR "/../demo-update"));
        const ZTAPMProductChecker checker;
        QCOMPARE(checker.isValid(ZTProductType(type)), valid);
        QCOMPARE(ZTSingleton<ZTProductCheckerRegistry>::instance()->isValid(ZTProductType(type),
                                                                            ZTProductCheckerTypeSaleable),
                 valid);
        if (dropped)
            ZTSingleton<ZTKeyAccount>::instance()->switchTo(myKeyAccount.path());
    }

    void whatIsRestricted_data()
    {
        QTest::addColumn<ZTProductRestriction>("restriction");
        QTest::addColumn<bool>("empty");
        QTest::addColumn<bool>("restrictsNothing");
        QTest::addColumn<int>("effectiveOrientation");
        ZTProductRestriction lifted = restriction(0, 0, ZTCoverTypeHardcover);
        lifted.setAllowedCoverTypes(ZTCoverTypeNone);
        QTest::newRow("default") << ZTProductRestriction() << true << true << 31;
        QTest::newRow("binding only") << restriction(0, 0, 0, ZTPageBindingLeft) << true << false << 31;
        QTest::newRow("minimum only")
            << restriction(0, 0, 0, 0, ZTSpaceMagnitudeSmall) << true << false << 31;
        QTest::newRow("cover type lifted by 0") << lifted << true << true << 31;
        // Orientations restrict only when no entry is a real shape.
        QTest::newRow("landscape") << restriction(ZTOrientationLandscape) << false << true << 2;
        QTest::newRow("no real shape") << restriction(32) << false << false << 32;
        QTest::newRow("article class") << restriction(0, ZTArticleClassCard) << false << false << 31;
        QTest::newRow("cover type") << restriction(0, 0, ZTCoverTypeHardcover) << false << false << 31;
    }

    void whatIsRestricted()
    {
        QFETCH(ZTProductRestriction, restriction);
        QFETCH(bool, empty);
        QFETCH(bool, restrictsNothing);
        QFETCH(int, effectiveOrientation);
        QCOMPARE(restriction.isEmpty(), empty);
        QCOMPARE(restriction.isValid(), !empty);
        QCOMPARE(restriction.restrictsNothing(), restrictsNothing);
        QCOMPARE(restriction.restrictsAnything(), !restrictsNothing);
        QCOMPARE(int(restriction.effectiveOrientation().value()), effectiveOrientation);
        QDomDocument document;
        QDomElement element = document.createElement(QStringLiteral("template"));
        restriction.toTemplates2Format(element);
        QCOMPARE(element.attributes().isEmpty(), empty);
    }

    void matchAndJoin_data()
    {
        QTest::addColumn<ZTProductRestriction>("one");
        QTest::addColumn<ZTProductRestriction>("other");
        QTest::addColumn<bool>("matches");
        QTest::addColumn<ZTProductRestriction>("joined");
        QTest::newRow("other shape") << restriction(1, book) << restriction(2, book) << false
                                     << restriction(3, book);
        QTest::newRow("any shape, other class")
            << restriction(1, book) << restriction(0, calendar) << false << restriction(1, book | calendar);
        QTest::newRow("any shape, shared class")
            << restriction(1, book | calendar) << restriction(0, calendar) << true
            << restriction(1, book | calendar);
        // An empty set adds nothing: "all" joined with a real set is the real set.
        QTest::newRow("all and real")
            << ZTProductRestriction() << restriction(1, book, ZTCoverTypeHardcover, ZTPageBindingLeft) << true
            << restriction(1, book, ZTCoverTypeHardcover, ZTPageBindingLeft);
        // Cover types, bindings and size do not stop a match; the smaller minimum wins.
        QTest::newRow("minimum 4 and 2")
            << restriction(1, book, ZTCoverTypeHardcover, ZTPageBindingLeft, 4)
            << restriction(1, book, ZTCoverTypeSoftcover, ZTPageBindingTop, 2) << true
            << restriction(1, book, ZTCoverTypeHardcover | ZTCoverTypeSoftcover,
                           ZTPageBindingLeft | ZTPageBindingTop, 2);
        QTest::newRow("minimum 4 and 0")
            << restriction(0, 0, 0, 0, 4) << restriction(0) << true << restriction(0);
    }

    void matchAndJoin()
    {
        QFETCH(ZTProductRestriction, one);
        QFETCH(ZTProductRestriction, other);
        QFETCH(bool, matches);
        QFETCH(ZTProductRestriction, joined);
        QCOMPARE(one.matches(other), matches);
        QCOMPARE(other.matches(one), matches);
        const QString before = one.describe();
        ZTProductRestriction result = one;
        result += other;
        QVERIFY2(result == joined, qPrintable(result.describe()));
        QCOMPARE(one.describe(), before);
        result += result;
        QVERIFY(result == joined);
    }

    void orderIndependence_data()
    {
        QTest::addColumn<QList<qint64>>("values");
        QTest::addColumn<quint64>("hash");
        QTest::newRow("two bits") << QList<qint64>{1, 2} << quint64(17 * 3 ^ 29 * 3 ^ 51 * 3 ^ 3);
        QList<qint64> many;
        for (int bit = 0; bit < 45; ++bit)
            many.append(qint64(1) << bit);
        QTest::newRow("every article class") << many << builtOneByOne(many).hashValue();
    }

    void orderIndependence()
    {
        QFETCH(QList<qint64>, values);
        QFETCH(quint64, hash);
        const ZTProductRestriction forward = builtOneByOne(values);
        std::reverse(values.begin(), values.end());
        const ZTProductRestriction backward = builtOneByOne(values);
        QVERIFY(forward == backward && !(forward != backward));
        QCOMPARE(backward.hashValue(), hash);
        QCOMPARE(qHash(backward, 7), qHash(forward, 7));
        QCOMPARE(backward.describe(), forward.describe());
        ZTProductRestriction smaller = forward;
        smaller.setMinimumSize(ZTSpaceMagnitudeSmall, false);
        QVERIFY(smaller != forward);
        QCOMPARE(smaller.hashValue(), hash ^ 23 * ZTSpaceMagnitudeSmall);
    }

    void entriesAndTexts()
    {
        ZTProductRestriction result;
        result.addOrientations(ZTOrientationEnum(ZTOrientationPortrait | ZTOrientationLandscape));
        QCOMPARE(result.orientations().size(), 2);
        QVERIFY(result.addArticleClass(ZTArticleClassCard));
        QVERIFY(!result.addArticleClass(ZTArticleClassCard));
        QVERIFY(result.addArticleClass(ZTArticleClassEnum(ZTArticleClassCard | ZTArticleClassPoster)));
        result.addAllowedPageBinding(ZTPageBindingEnum(ZTPageBindingLeft | ZTPageBindingTop));
        QCOMPARE(result.pageBinding().size(), 1);
        result.setAllowedPageBinding(ZTPageBindingEnum(ZTPageBindingLeft | ZTPageBindingTop));
        QCOMPARE(result.pageBinding().size(), 2);
        result.setAllowedCoverTypes(ZTCoverTypeEnum(ZTCoverTypeHardcover | ZTCoverTypeContinuous));
        // A minimum, once set, is replaced only by force.
        QVERIFY(result.setMinimumSize(ZTSpaceMagnitudeLarge, false));
        QVERIFY(!result.setMinimumSize(ZTSpaceMagnitudeMedium, false));
        QVERIFY(result.setMinimumSize(ZTSpaceMagnitudeMedium, true));
        QVERIFY(!result.setMinimumSize(ZTSpaceMagnitudeMedium, true));
        QCOMPARE(result.describe(), QStringLiteral("o {portrait, landscape}, t {CARD, POSTER}, "
                                                   "c {hardcover, continuous}, b {left, top}, s {M}"));
        QVERIFY(ZTProductRestriction().describe().endsWith(QLatin1String("SLIPCASE}, c {}, b {}, s {}")));

        QDomDocument document;
        QDomElement element = document.createElement(QStringLiteral("template"));
        result.toTemplates2Format(element);
        QCOMPARE(element.attribute(QStringLiteral("orientation")), QStringLiteral("portrait, landscape"));
        QCOMPARE(element.attribute(QStringLiteral("article_class")), QStringLiteral("CARD, POSTER"));
        QCOMPARE(element.attribute(QStringLiteral("binding")), QStringLiteral("left, top"));
    }
};

QTEST_GUILESS_MAIN(TestProductRestriction)
#include "tst_ZTProductRestriction.moc"
