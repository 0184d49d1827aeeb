#include "ZTArticleClass.h"
#include "ZTCoverType.h"
#include "ZTCropType.h"
#include "ZTEmptyMeansAllSet.h"
#include "ZTFotoPaperType.h"
#include "ZTMaterialType.h"
#include "ZTOrientation.h"
#include "ZTPageBinding.h"
#include "ZTPageType.h"
#include "ZTPaperType.h"
#include "ZTProductArrangement.h"
#include "ZTSpaceMagnitude.h"

#include <QDomDocument>
#include <QTest>

#include <cmath>
#include <functional>

namespace {

// One vocabulary seen through 64-bit values, so that one table of test rows covers them all.
struct Vocabulary
{
    std::function<qint64(const QString&)> decode;
    std::function<QString(qint64)> encode;
    std::function<QStringList()> keywords;
    std::function<QList<qint64>()> values;
};

template <typename WRAPPER>
Vocabulary vocabulary()
{
    using Enum = decltype(WRAPPER().value());
    Vocabulary result;
    result.decode = [](const QString& text) { return qint64(WRAPPER(text).value()); };
    result.encode = [](qint64 value) { return WRAPPER(Enum(value)).encode(); };
    result.keywords = [] { return WRAPPER().allKnownKeywords(); };
    result.values = [] {
        QList<qint64> values;
        for (Enum value : WRAPPER().allKnownEnumValues())
            values.append(qint64(value));
        return values;
    };
    return result;
}

const QHash<QString, Vocabulary>& vocabularies()
{
    static const QHash<QString, Vocabulary> theVocabularies{
        {QStringLiteral("ZTArticleClass"), vocabulary<ZTArticleClass>()},
        {QStringLiteral("ZTOrientation"), vocabulary<ZTOrientation>()},
        {QStringLiteral("ZTCoverType"), vocabulary<ZTCoverType>()},
        {QStringLiteral("ZTPageBinding"), vocabulary<ZTPageBinding>()},
        {QStringLiteral("ZTSpaceMagnitude"), vocabulary<ZTSpaceMagnitude>()},
        {QStringLiteral("ZTCropType"), vocabulary<ZTCropType>()},
        {QStringLiteral("ZTFotoPaperType"), vocabulary<ZTFotoPaperType>()},
        {QStringLiteral("ZTPageType"), vocabulary<ZTPageType>()},
        {QStringLiteral("ZTPaperType"), vocabulary<ZTPaperType>()},
        {QStringLiteral("ZTMaterialType"), vocabulary<ZTMaterialType>()},
        {QStringLiteral("ZTProductArrangement"), vocabulary<ZTProductArrangement>()},
    };
    return theVocabularies;
}

} // namespace

class tst_ZTProductVocabularies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentKeywords_data();
    void documentKeywords();
    void everyKeywordRoundTrips_data();
    void everyKeywordRoundTrips();
    void wideBitsSurvive();
    void paperAndMaterialDoNotOverlap();
    void shippingGroupMapping_data();
    void shippingGroupMapping();
    void fotoPaperList_data();
    void fotoPaperList();
    void naturalPieces();
    void emptyMeansAllSets();
};

void tst_ZTProductVocabularies::documentKeywords_data()
{
    QTest::addColumn<QString>("vocabulary");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("value");

    const auto row = [](const char* vocabulary, const char* text, qint64 value) {
        QTest::addRow("%s %s", vocabulary, text)
            << QString::fromLatin1(vocabulary) << QString::fromLatin1(text) << value;
    };
    // Element names of the products document, which the product factory decodes.
    row("ZTArticleClass", "article", 0x3ffff);
    row("ZTArticleClass", "add_on", Q_INT64_C(0xfffffc00000));
    row("ZTArticleClass", "express_fee", 0x40000);
    row("ZTArticleClass", "transfer", 0x80000);
    row("ZTArticleClass", "pay_method_fee", 0x100000);
    row("ZTArticleClass", "shipment_method_fee", 0x200000);
    row("ZTArticleClass", "unknown_element", 0);
    row("ZTArticleClass", " Wall_Holder ", Q_INT64_C(0x80000000));
    row("ZTArticleClass", "PRE_ASSEMBLED", Q_INT64_C(0x100000000000));
    row("ZTArticleClass", "17592186044416", Q_INT64_C(0x100000000000));
    row("ZTArticleClass", "32767", 32767);
    row("ZTArticleClass", "CALENDAR, PHOTOBOOK,PHOTOBOOK_LAYFLAT", 7);
    row("ZTOrientation", "31", 31);
    row("ZTOrientation", "portrait,landscape", 3);
    row("ZTProductArrangement", "4", 4);
    row("ZTProductArrangement", "Book", 32);
    row("ZTProductArrangement", "", 0);
    row("ZTMaterialType", "16", 16);
    row("ZTMaterialType", "aluminum", 16);
    row("ZTMaterialType", "matt", 0);
    row("ZTCoverType", "1024", 0x400);
    row("ZTCoverType", "2147483648", 0x80000000);
    row("ZTCoverType", "calendar_monthly", 32);
    row("ZTPageType", "1032", 1032);
    row("ZTPageType", "page, door_backprint", 1032);
    row("ZTPageType", "pano_wing_page", 0x400008);
    row("ZTCropType", "ratio_3_to_4", 32);
    row("ZTPageBinding", "", 0);
    row("ZTPageBinding", "left,top", 3);
}

void tst_ZTProductVocabularies::documentKeywords()
{
    QFETCH(QString, vocabulary);
    QFETCH(QString, text);
    QFETCH(qint64, value);
    QVERIFY(vocabularies().contains(vocabulary));
    QCOMPARE(vocabularies().value(vocabulary).decode(text), value);
}

void tst_ZTProductVocabularies::everyKeywordRoundTrips_data()
{
    QTest::addColumn<QString>("vocabulary");
    for (auto it = vocabularies().cbegin(); it != vocabularies().cend(); ++it)
        QTest::newRow(qPrintable(it.key())) << it.key();
}

void tst_ZTProductVocabularies::everyKeywordRoundTrips()
{
    QFETCH(QString, vocabulary);
    const Vocabulary& v = vocabularies()[vocabulary];

    // Each value is written as a keyword that reads back as that value, and is read from its
    // number too. A keyword given twice would fail here, as the later one wins when reading.
    for (qint64 value : v.values()) {
        const QString keyword = v.encode(value);
        QVERIFY2(!keyword.isEmpty(), qPrintable(QString::number(value)));
        QCOMPARE(v.decode(keyword), value);
        QCOMPARE(v.decode(QString::number(value)), value);
    }
    // Each keyword reads as a known value, in upper case as well.
    for (const QString& keyword : v.keywords()) {
        const qint64 value = v.decode(keyword);
        QVERIFY2(v.values().contains(value), qPrintable(keyword));
        QCOMPARE(v.decode(keyword.toUpper()), value);
    }
}

void tst_ZTProductVocabularies::wideBitsSurvive()
{
    const ZTArticleClass wide(ZTArticleClassEnum(ZTArticleClassCalendar | ZTArticleClassWallHolder |
                                                 ZTArticleClassEnvelope | ZTArticleClassPreAssembled));
    QCOMPARE(wide.countBits(), 4);
    QCOMPARE(wide.encodeCSV(), QStringLiteral("CALENDAR, WALL_HOLDER, ENVELOPE, PRE_ASSEMBLED"));
    QCOMPARE(ZTArticleClass(wide.encodeCSV()), wide);
    // Numbers stand for single values only; several are written as a list.
    QCOMPARE(ZTArticleClass(QString::number(qint64(wide.value()))).value(), ZTArticleClassNone);
    QVERIFY(ZTArticleClass(ZTArticleClassMemorabiliaPocket).isAddOn());
    QVERIFY(!ZTArticleClass(ZTArticleClassPreAssembled).isAddOn());

    // The highest cover bit is a bit like the others, not a negative value.
    const ZTCoverType cover(ZTCoverTypeEnum(ZTCoverTypeContinuous | ZTCoverTypeCalendarMonthly));
    QCOMPARE(cover.countBits(), 2);
    QCOMPARE(cover.encodeCSV(), QStringLiteral("calendar_monthly, continuous"));
    QCOMPARE(ZTCoverType(cover.encodeCSV()), cover);
    QCOMPARE(ZTEmptyMeansAllSet<ZTCoverType>::decompose(cover).size(), 2);
}

void tst_ZTProductVocabularies::paperAndMaterialDoNotOverlap()
{
    // Both read the attribute "material"; a text must mean something in at most one of them.
    for (const QString& keyword : ZTPaperType().allKnownKeywords())
        QVERIFY2(ZTMaterialType(keyword).isNull(), qPrintable(keyword));
    for (const QString& keyword : ZTMaterialType().allKnownKeywords())
        QVERIFY2(ZTPaperType(keyword).isNull(), qPrintable(keyword));
}

void tst_ZTProductVocabularies::shippingGroupMapping_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<qint64>("articleClass");

    QTest::newRow("calendar") << 1 << qint64(ZTArticleClassCalendar);
    QTest::newRow("picture box prints") << 12 << qint64(ZTArticleClassPictureBoxPrints);
    QTest::newRow("digital") << 14 << qint64(ZTArticleClassDigital);
    QTest::newRow("prints") << 16 << qint64(ZTArticleClassPrints);
    QTest::newRow("premium prints") << 17 << qint64(ZTArticleClassPremiumPrints);
    QTest::newRow("enlargements") << 18 << qint64(ZTArticleClassEnlargements);
    QTest::newRow("beyond") << 19 << qint64(0);
    QTest::newRow("zero") << 0 << qint64(0);
    QTest::newRow("invalid") << -1 << qint64(0);
}

void tst_ZTProductVocabularies::shippingGroupMapping()
{
    QFETCH(int, group);
    QFETCH(qint64, articleClass);

    const ZTArticleClass fromGroup = ZTArticleClass::createFromShippingGroupId(ZTShippingGroupId(group));
    QCOMPARE(qint64(fromGroup.value()), articleClass);
    if (articleClass != 0)
        QCOMPARE(fromGroup.shippingGroup(), ZTShippingGroupId(group));
    else
        QVERIFY(!fromGroup.shippingGroup().isValid());
}

void tst_ZTProductVocabularies::fotoPaperList_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("papers");
    QTest::addColumn<bool>("warns");

    QTest::newRow("empty") << QString() << QList<int>{} << false;
    QTest::newRow("blank") << " " << QList<int>{} << false;
    QTest::newRow("one") << "glossy" << QList<int>{1} << false;
    QTest::newRow("order kept") << " Matt , glossy" << QList<int>{2, 1} << false;
    QTest::newRow("numbers and gaps") << "glossy,,4," << QList<int>{1, 4} << false;
    QTest::newRow("twice") << "glossy,1" << QList<int>{1} << false;
    QTest::newRow("unknown skipped") << "velvet,matt,3" << QList<int>{2} << true;
}

void tst_ZTProductVocabularies::fotoPaperList()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, papers);
    QFETCH(bool, warns);

    if (warns)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                               "^Unknown photo paper types ignored: .*\"velvet\", \"3\"")));
    else
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QList<int> values;
    for (const ZTFotoPaperType& paper : ZTFotoPaperType::createFromXTCI(text))
        values.append(paper.value());
    QCOMPARE(values, papers);
}

void tst_ZTProductVocabularies::naturalPieces()
{
    // Photo paper of a class.
    QCOMPARE(ZTFotoPaperType::defaultFor(ZTArticleClassPremiumPrints), ZTFotoPaperTypeGlossy);
    QCOMPARE(ZTFotoPaperType::defaultFor(ZTArticleClassPhotoBook), ZTFotoPaperTypeMatt);
    QCOMPARE(ZTFotoPaperType::defaultFor(ZTArticleClassNone), ZTFotoPaperTypeMatt);

    // Size classes grow with the area; the limits belong to the smaller class.
    const QList<QPair<int, ZTSpaceMagnitudeEnum>> areas{
        {-5, ZTSpaceMagnitudeNone},         {0, ZTSpaceMagnitudeNone},     {100, ZTSpaceMagnitudeExtraSmall},
        {101, ZTSpaceMagnitudeSmall},       {624, ZTSpaceMagnitudeMedium}, {1247, ZTSpaceMagnitudeLarge},
        {2500, ZTSpaceMagnitudeExtraLarge}, {2501, ZTSpaceMagnitudeHuge}};
    for (const auto& [area, magnitude] : areas)
        QCOMPARE(ZTSpaceMagnitude::fromSquareCentimeters(area), magnitude);

    // Page ratios: a single shape, and the mean of several.
    QCOMPARE(ZTOrientation().defaultWidthHeightRatio(), 1.0);
    QCOMPARE(ZTOrientation(ZTOrientationPortrait).defaultWidthHeightRatio(), 0.75);
    QVERIFY(qFuzzyCompare(ZTOrientation(ZTOrientationAll).defaultWidthHeightRatio(), 1.0));
    QVERIFY(
        qFuzzyCompare(ZTOrientation(QStringLiteral("portrait,landscape")).defaultWidthHeightRatio(), 1.0));
    QVERIFY(qFuzzyCompare(ZTOrientation(QStringLiteral("landscape,panorama")).defaultWidthHeightRatio(),
                          std::sqrt(8.0 / 3.0)));

    // The template format: keywords, nothing for 0.
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("restriction"));
    ZTOrientation().toTemplates2Format(element);
    ZTArticleClass().toTemplates2Format(element);
    ZTPageBinding().toTemplates2Format(element);
    QVERIFY(!element.hasAttributes());
    ZTOrientation(ZTOrientationAll).toTemplates2Format(element);
    ZTArticleClass(ZTArticleClassEnum(ZTArticleClassCalendar | ZTArticleClassCard))
        .toTemplates2Format(element);
    ZTPageBinding(ZTPageBindingTop).toTemplates2Format(element);
    QCOMPARE(ZTOrientation(element.attribute(QStringLiteral("orientation"))), ZTOrientationAll);
    QCOMPARE(element.attribute(QStringLiteral("article_class")), QStringLiteral("CALENDAR, CARD"));
    QCOMPARE(element.attribute(QStringLiteral("binding")), QStringLiteral("top"));
}

void tst_ZTProductVocabularies::emptyMeansAllSets()
{
    const auto bindings =
        ZTEmptyMeansAllSet<ZTPageBinding>::decompose(ZTPageBinding(QStringLiteral("left,top")));
    QCOMPARE(bindings.size(), 2);
    QCOMPARE(bindings.compose(), ZTPageBinding(ZTPageBindingEnum(ZTPageBindingLeft | ZTPageBindingTop)));
    QCOMPARE(ZTEmptyMeansAllSet<ZTPageBinding>().compose(), ZTPageBindingNone);

    const auto classes = ZTEmptyMeansAllSet<ZTArticleClass>::decompose(ZTArticleClassAllDesignable);
    QCOMPARE(classes.size(), 15);
    QVERIFY(classes.contains(ZTArticleClassSlipcase));
    QVERIFY(ZTEmptyMeansAllSet<ZTArticleClass>::decompose(ZTArticleClassAllAddOns)
                .contains(ZTArticleClassCalendarGiftService));
    QCOMPARE(ZTEmptyMeansAllSet<ZTOrientation>::decompose(ZTOrientationAll).size(), 5);

    ZTPageBinding copy(ZTPageBindingRight);
    ZTPageBinding moved(std::move(copy));
    copy = moved;
    QCOMPARE(copy, ZTPageBindingRight);
}

QTEST_GUILESS_MAIN(tst_ZTProductVocabularies)
#include "tst_ZTProductVocabularies.moc"
