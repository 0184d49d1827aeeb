#include "ZTAPMProductChecker.h"
#include "ZTInitializer.h"
#include "ZTKeyAccount.h"
#include "ZTProductCheckerRegistry.h"
#include "ZTProductRestriction.h"
#include "ZTProgramConfig.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
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

// Adds every value on its own, in the order given.
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

QStringList infoMessages;
QtMessageHandler previousHandler = nullptr;

void recordingHandler(QtMsgType theType, const QMessageLogContext& theContext, const QString& theMessage)
{
    if (theType == QtInfoMsg)
        infoMessages.append(theMessage);
    if (previousHandler)
        previousHandler(theType, theContext, theMessage);
}

const char bookA4[] = "BOOK_A4_HC";
const char bookA4Landscape[] = "BOOK_A4L_HC";

} // namespace

class TestProductRestriction : public QObject
{
    Q_OBJECT

    QTemporaryDir myKeyAccount;

private Q_SLOTS:
    void initTestCase()
    {
        // The demo, but the landscape book costs nothing.
        QVERIFY(myKeyAccount.isValid());
        const QDir demo(QStringLiteral(ZT_DEMO_DATA_DIR));
        for (const QString& name : demo.entryList(QDir::Files))
            QVERIFY(QFile::copy(demo.filePath(name), myKeyAccount.filePath(name)));
        QFile prices(myKeyAccount.filePath(QStringLiteral("prices.xml")));
        QVERIFY(prices.open(QIODevice::ReadWrite));
        QString text = QString::fromUtf8(prices.readAll());
        const qsizetype from = text.indexOf(QLatin1String("<article id=\"1002\">"));
        const qsizetype to = text.indexOf(QLatin1String("</article>"), from);
        QVERIFY(from > 0 && to > from);
        QString article = text.mid(from, to - from);
        article.replace(QRegularExpression(QStringLiteral("\\bprice=\"\\d+\"")),
                        QStringLiteral("price=\"0\""));
        text.replace(from, to - from, article);
        prices.resize(0);
        prices.write(text.toUtf8());
        prices.close();
        ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(myKeyAccount.path());

        previousHandler = qInstallMessageHandler(recordingHandler);
        ZTSingleton<ZTInitializer>::instance()->setupAll(ZTInitializerOption());
        qInstallMessageHandler(previousHandler);
    }

    void startUpRegistersTheChecker()
    {
        const QString registered = QStringLiteral("Checker registerd with Product Checker Registry (PCR).");
        QCOMPARE(infoMessages.count(registered), 1);
        QVERIFY(infoMessages.indexOf(QStringLiteral("Calculator set for Page Organization Manager (POM).")) <
                infoMessages.indexOf(registered));
        QCOMPARE(ZTSingleton<ZTProductCheckerRegistry>::instance()->checkerCount(), 1);
    }

    void checkerAnswers_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("dropped");
        QTest::addColumn<bool>("valid");
        QTest::newRow("priced article") << bookA4 << false << true;
        QTest::newRow("priced add-on") << "SLIPCASE_A4" << false << true;
        QTest::newRow("price of 0") << bookA4Landscape << false << false;
        QTest::newRow("unknown type") << "NO_SUCH_TYPE" << false << false;
        QTest::newRow("no type") << "" << false << false;
        QTest::newRow("deprecated") << "BOOKLET_A5" << true << false;
    }

    void checkerAnswers()
    {
        QFETCH(QString, type);
        QFETCH(bool, dropped);
        QFETCH(bool, valid);
        // A key account without the booklet deprecates it.
        if (dropped)
            ZTSingleton<ZTKeyAccount>::instance()->switchTo(
                QStringLiteral(ZT_DEMO_DATA_DIR "/../demo-update"));
        const ZTAPMProductChecker checker;
        QCOMPARE(checker.isValid(ZTProductType(type)), valid);
        QCOMPARE(ZTSingleton<ZTProductCheckerRegistry>::instance()->isValid(ZTProductType(type),
                                                                            ZTProductCheckerTypeSaleable),
                 valid);
        QCOMPARE(checker.type(), ZTProductCheckerType(ZTProductCheckerTypeSaleable));
        QVERIFY(checker.isValidBoxStyle(ZTProductType(type), ZTArticleVariants({1})));
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

    void matches_data()
    {
        QTest::addColumn<ZTProductRestriction>("one");
        QTest::addColumn<ZTProductRestriction>("other");
        QTest::addColumn<bool>("matches");
        const qint64 book = ZTArticleClassPhotoBook;
        const qint64 calendar = ZTArticleClassCalendar;
        QTest::newRow("other shape, same class") << restriction(1, book) << restriction(2, book) << false;
        QTest::newRow("other shape, no classes") << restriction(1) << restriction(2) << false;
        QTest::newRow("shared shape") << restriction(3, book) << restriction(2, book) << true;
        QTest::newRow("any shape, other class") << restriction(1, book) << restriction(0, calendar) << false;
        QTest::newRow("any shape, shared class")
            << restriction(1, book | calendar) << restriction(0, calendar) << true;
        QTest::newRow("any class") << restriction(1, book) << restriction(1) << true;
        QTest::newRow("cover, binding, size ignored")
            << restriction(1, book, ZTCoverTypeHardcover, ZTPageBindingLeft, ZTSpaceMagnitudeLarge)
            << restriction(1, book, ZTCoverTypeSoftcover, ZTPageBindingTop) << true;
    }

    void matches()
    {
        QFETCH(ZTProductRestriction, one);
        QFETCH(ZTProductRestriction, other);
        QFETCH(bool, matches);
        QCOMPARE(one.matches(other), matches);
        QCOMPARE(other.matches(one), matches);
    }

    void join_data()
    {
        QTest::addColumn<ZTProductRestriction>("one");
        QTest::addColumn<ZTProductRestriction>("other");
        QTest::addColumn<ZTProductRestriction>("joined");
        const qint64 book = ZTArticleClassPhotoBook;
        const qint64 calendar = ZTArticleClassCalendar;
        QTest::newRow("sets united") << restriction(1, book, ZTCoverTypeHardcover, ZTPageBindingLeft)
                                     << restriction(2, calendar, ZTCoverTypeSoftcover, ZTPageBindingTop)
                                     << restriction(3, book | calendar,
                                                    ZTCoverTypeHardcover | ZTCoverTypeSoftcover,
                                                    ZTPageBindingLeft | ZTPageBindingTop);
        // An empty set adds nothing: "all" joined with a real set is the real set.
        QTest::newRow("all and real")
            << ZTProductRestriction() << restriction(1, book, ZTCoverTypeHardcover, ZTPageBindingLeft)
            << restriction(1, book, ZTCoverTypeHardcover, ZTPageBindingLeft);
        QTest::newRow("minimum 4 and 0") << restriction(0, 0, 0, 0, 4) << restriction(0) << restriction(0);
        QTest::newRow("minimum 4 and 2")
            << restriction(0, 0, 0, 0, 4) << restriction(0, 0, 0, 0, 2) << restriction(0, 0, 0, 0, 2);
        QTest::newRow("minimum 2 and 4")
            << restriction(0, 0, 0, 0, 2) << restriction(0, 0, 0, 0, 4) << restriction(0, 0, 0, 0, 2);
    }

    void join()
    {
        QFETCH(ZTProductRestriction, one);
        QFETCH(ZTProductRestriction, other);
        QFETCH(ZTProductRestriction, joined);
        const QString before = one.describe();
        ZTProductRestriction result = one;
        result += other;
        QVERIFY2(result == joined, qPrintable(result.describe()));
        // The copy that was joined detached from the original.
        QCOMPARE(one.describe(), before);
        result += result;
        QVERIFY(result == joined);
    }

    void orderIndependence_data()
    {
        QTest::addColumn<QList<qint64>>("values");
        QTest::addColumn<quint64>("hash");
        // 17 * 3 ^ 23 * 0 ^ 29 * 3 ^ 51 * 3 ^ 3
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
        std::rotate(values.begin(), values.begin() + values.size() / 2, values.end());
        const ZTProductRestriction rotated = builtOneByOne(values);
        for (const ZTProductRestriction& other : {backward, rotated}) {
            QVERIFY(forward == other);
            QVERIFY(!(forward != other));
            QCOMPARE(other.hashValue(), hash);
            QCOMPARE(qHash(other, 7), qHash(forward, 7));
            QCOMPARE(other.describe(), forward.describe());
        }
        QCOMPARE(forward.hashValue(), hash);
        ZTProductRestriction smaller = forward;
        smaller.setMinimumSize(ZTSpaceMagnitudeSmall, false);
        QVERIFY(smaller != forward);
        QCOMPARE(smaller.hashValue(), hash ^ 23 * ZTSpaceMagnitudeSmall);
    }

    void minimumSize_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("force");
        QTest::addColumn<bool>("changed");
        QTest::addColumn<int>("after");
        QTest::newRow("first minimum") << 0 << 4 << false << true << 4;
        QTest::newRow("kept without force") << 4 << 2 << false << false << 4;
        QTest::newRow("replaced with force") << 4 << 2 << true << true << 2;
        QTest::newRow("same value with force") << 4 << 4 << true << false << 4;
        QTest::newRow("lifted with force") << 4 << 0 << true << true << 0;
    }

    void minimumSize()
    {
        QFETCH(int, start);
        QFETCH(int, size);
        QFETCH(bool, force);
        QFETCH(bool, changed);
        QFETCH(int, after);
        ZTProductRestriction result = restriction(0, 0, 0, 0, start);
        QCOMPARE(result.setMinimumSize(ZTSpaceMagnitudeEnum(size), force), changed);
        QCOMPARE(int(result.minimumSize().value()), after);
    }

    void entries()
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
        result.setMinimumSize(ZTSpaceMagnitudeMedium, false);
        QCOMPARE(result.describe(), QStringLiteral("o {portrait, landscape}, t {CARD, POSTER}, "
                                                   "c {hardcover, continuous}, b {left, top}, s {M}"));

        QDomDocument document;
        QDomElement element = document.createElement(QStringLiteral("template"));
        result.toTemplates2Format(element);
        QCOMPARE(element.attribute(QStringLiteral("orientation")), QStringLiteral("portrait, landscape"));
        QCOMPARE(element.attribute(QStringLiteral("article_class")), QStringLiteral("CARD, POSTER"));
        QCOMPARE(element.attribute(QStringLiteral("binding")), QStringLiteral("left, top"));
        QCOMPARE(ZTProductRestriction().describe(),
                 QStringLiteral("o {portrait, landscape, square, panorama, "
                                "vertical_panorama}, t {CALENDAR, PHOTOBOOK, "
                                "PHOTOBOOK_LAYFLAT, CARD, WALL_DECOR, PUZZLE, "
                                "METAL_PRINT, PHOTO_GIFT, TEXTILE, "
                                "ACRYLIC_PRINT, POSTER, PICTURE_BOX_PRINTS, "
                                "PICTURE_BOX, DIGITAL, SLIPCASE}, c {}, b {}, "
                                "s {}"));
    }
};

QTEST_GUILESS_MAIN(TestProductRestriction)
#include "tst_ZTProductRestriction.moc"
