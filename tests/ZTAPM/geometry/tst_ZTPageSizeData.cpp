#include "ZTArticleClass.h"
#include "ZTDistanceUnit.h"
#include "ZTPageSizeData.h"
#include "ZTPageSizeDataPanoBase.h"
#include "ZTPageSizeDataPanoWing.h"
#include "ZTPrintQuality.h"

#include <QDomDocument>
#include <QTest>

namespace {

QDomElement parse(const QString& theXml)
{
    QDomDocument document;
    if (!document.setContent(theXml))
        qFatal("test document is not well-formed");
    return document.documentElement();
}

const ZTDistanceUnit mm(ZTDistanceUnitMillimetre);
const ZTDistanceUnit px(ZTDistanceUnitPixel);

ZTArticleClass articleClass(qint64 theValue)
{
    return ZTArticleClass(ZTArticleClassEnum(theValue));
}

QSet<ZTCropType> cropSet(std::initializer_list<ZTCropTypeEnum> theTypes)
{
    QSet<ZTCropType> result;
    for (ZTCropTypeEnum type : theTypes)
        result.insert(ZTCropType(type));
    return result;
}

} // namespace

Q_DECLARE_METATYPE(QSet<ZTCropType>)

// Page geometry in pixels (10 per millimetre) and the print quality traffic light.
class TestPageSizeData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pairsAndDefaults()
    {
        ZTPageSizeData defaults(QSize(10, 10), ZTBleedMargin(4, 5));
        defaults.setExtraPageSizeInPixel(QSize(2, 3));

        // Only one of the extra pair: the defaults' extras are added, on both sides.
        const ZTPageSizeData onlyOneExtra(
            parse(QStringLiteral(R"(<page width="100" height="50" extra_width_left_right="7"/>)")), mm,
            ZTArticleClass(), defaults);
        QCOMPARE(onlyOneExtra.extraPageSizeInPixel(), QSize(2, 3));
        QCOMPARE(onlyOneExtra.pageSizeInPixel(), QSize(1004, 506));
        QCOMPARE(onlyOneExtra.pageBleedMarginsInPixel(), ZTBleedMargin(4, 5));

        // The defaults' size is taken as it stands; their extras are in it already.
        const ZTPageSizeData noSize(
            parse(QStringLiteral(R"(<page extra_width_left_right="1" extra_height_top_bottom="1"/>)")), mm,
            ZTArticleClass(), defaults);
        QCOMPARE(noSize.pageSizeInPixel(), QSize(10, 10));
        QCOMPARE(noSize.extraPageSizeInPixel(), QSize(10, 10));

        const ZTPageSizeData complete(parse(QStringLiteral(
                                          R"(<cover width="302" height="214" extra_width_left_right="15"
                                                    extra_height_top_bottom="15" bleed_left_right="3"
                                                    bleed_top_bottom="2.5" variable_length_allowed="true"
                                                    max_width="900"/>)")),
                                      mm, ZTArticleClass(), defaults);
        QCOMPARE(complete.pageSizeInPixel(), QSize(3320, 2440));
        QCOMPARE(complete.extraPageSizeInPixel(), QSize(150, 150));
        QCOMPARE(complete.pageBleedMarginsInPixel(), ZTBleedMargin(30, 25));
        QVERIFY(complete.allowsVariableWidth());
        QCOMPARE(complete.maxPageWidthInPixel(), 9000);
        QCOMPARE(complete.pageSizeInMM(), QSize(332, 244));
        QVERIFY(complete.supportedCropTypes().isEmpty());

        // A null element keeps sizes, extras and bleed, but neither flag nor maximum.
        const ZTPageSizeData fromNull(QDomElement(), mm, articleClass(ZTArticleClassPrints), complete);
        QCOMPARE(fromNull.pageSizeInPixel(), complete.pageSizeInPixel());
        QCOMPARE(fromNull.extraPageSizeInPixel(), complete.extraPageSizeInPixel());
        QCOMPARE(fromNull.pageBleedMarginsInPixel(), complete.pageBleedMarginsInPixel());
        QVERIFY(!fromNull.allowsVariableWidth());
        QCOMPARE(fromNull.maxPageWidthInPixel(), 3320);
        QVERIFY(fromNull.supportedCropTypes().isEmpty());
        QVERIFY(fromNull != complete);
        QCOMPARE(ZTPageSizeData(fromNull), fromNull);
    }

    void rounding_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("pixels");
        QTest::newRow("half up") << "2.5" << 3;
        QTest::newRow("half down, negative") << "-2.5" << -3;
        QTest::newRow("below half") << "0.49" << 0;
        QTest::newRow("above half, negative") << "-1.51" << -2;
        QTest::newRow("decimal comma") << "1,5" << 2;
        QTest::newRow("malformed gives default") << "2 px" << 0;
    }
    void rounding()
    {
        QFETCH(QString, value);
        QFETCH(int, pixels);
        const ZTPageSizeData data(
            parse(
                QStringLiteral(R"(<page width="%1" height="1" bleed_left_right="%1" bleed_top_bottom="0"/>)")
                    .arg(value)),
            px, ZTArticleClass(), ZTPageSizeData());
        QCOMPARE(data.pageSizeInPixel().width(), pixels);
        QCOMPARE(data.pageBleedMarginsInPixel().horizontal(), pixels);
    }

    void millimetres()
    {
        // 1005 pixels are 100.5 mm, which rounds away from zero.
        ZTPageSizeData data(QSize(1005, -1005), ZTBleedMargin());
        QCOMPARE(data.pageSizeInMM(), QSize(101, -101));
        QCOMPARE(data.pageSizeInMM(ZTCropType(ZTCropTypeFrame)), QSize(0, -101));
        data.reducePageSize(QSize(2000, 0));
        QCOMPARE(data.pageSizeInPixel(), QSize(-995, -1005));
        QCOMPARE(ZTPageSizeData(QSize(0, 5), ZTBleedMargin()).printSizeRatio(), 5.0);
        QCOMPARE(ZTPageSizeData(QSize(300, 200), ZTBleedMargin()).printSizeRatio(), 1.5);
    }

    void cropTypes_data()
    {
        QTest::addColumn<qint64>("articleClass");
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QSet<ZTCropType>>("expected");

        QTest::newRow("enlargement 10x15") << qint64(ZTArticleClassEnlargements)
                                           << R"(width="100" height="150")" << cropSet({ZTCropTypeRatio2To3});
        QTest::newRow("enlargement 30x40") << qint64(ZTArticleClassEnlargements)
                                           << R"(width="300" height="400")" << cropSet({ZTCropTypeRatio3To4});
        QTest::newRow("enlargement square is 3:4")
            << qint64(ZTArticleClassEnlargements) << R"(width="200" height="200")"
            << cropSet({ZTCropTypeRatio3To4});
        QTest::newRow("premium square")
            << qint64(ZTArticleClassPremiumPrints) << R"(width="130" height="130")"
            << cropSet({ZTCropTypeStandard, ZTCropTypeSquare});
        QTest::newRow("print with frame and panorama")
            << qint64(ZTArticleClassPrints)
            << R"(width="150" height="100" frame_size_width="140" pano_16_to_9_width="178")"
            << cropSet({ZTCropTypeStandard, ZTCropTypeFrame, ZTCropTypePanorama16To9});
        QTest::newRow("no print class")
            << qint64(ZTArticleClassPoster) << R"(width="150" height="100" frame_size_width="140")"
            << cropSet({});
    }
    void cropTypes()
    {
        QFETCH(qint64, articleClass);
        QFETCH(QString, attributes);
        QFETCH(QSet<ZTCropType>, expected);
        const ZTPageSizeData data(parse(QStringLiteral("<page %1/>").arg(attributes)), mm,
                                  ::articleClass(articleClass), ZTPageSizeData());
        QCOMPARE(data.supportedCropTypes(), expected);
    }

    void cropLengths()
    {
        // Lengths without the extra strips; the standard form takes max_width, else the width.
        const ZTPageSizeData print(parse(QStringLiteral(
                                       R"(<page width="152" height="102" extra_width_left_right="2"
                                                extra_height_top_bottom="2" max_width="305.5"
                                                frame_size_width="140"/>)")),
                                   mm, articleClass(ZTArticleClassPrints), ZTPageSizeData());
        QCOMPARE(print.pageSizeInPixel(), QSize(1560, 1060));
        QCOMPARE(print.length(ZTCropType(ZTCropTypeStandard)), 3055);
        QCOMPARE(print.length(ZTCropType(ZTCropTypeFrame)), 1400);
        QCOMPARE(print.length(ZTCropType(ZTCropTypeSquare)), 0);
        QCOMPARE(print.pageSizeInMM(ZTCropType(ZTCropTypeStandard)), QSize(306, 106));
        QCOMPARE(print.maxPageWidthInPixel(), 3055);

        const ZTPageSizeData premium(parse(QStringLiteral(R"(<page width="130" height="130"/>)")), mm,
                                     articleClass(ZTArticleClassPremiumPrints), ZTPageSizeData());
        QCOMPARE(premium.length(ZTCropType(ZTCropTypeStandard)), 1300);
        QCOMPARE(premium.length(ZTCropType(ZTCropTypeSquare)), 1300);
        QCOMPARE(premium.maxPageWidthInPixel(), 1300);
    }

    void panoramaParts()
    {
        const ZTPageSizeData page(QSize(3000, 2000), ZTBleedMargin(30, 30));
        const QDomElement panorama =
            parse(QStringLiteral(R"(<panorama_page base_width="600.4" height="210"/>)"));
        const ZTPageSizeDataPanoBase base(panorama, mm, ZTArticleClass(), page);
        QCOMPARE(base.pageSizeInPixel(), QSize(6004, 2000));
        QCOMPARE(base.pageBleedMarginsInPixel(), ZTBleedMargin(30, 30));
        const ZTPageSizeDataPanoWing wing(panorama, mm, ZTArticleClass(), page);
        QCOMPARE(wing.pageSizeInPixel(), QSize(-1, -1));
        QCOMPARE(ZTPageSizeDataPanoBase(QDomElement(), mm, ZTArticleClass(), page).pageSizeInPixel(),
                 QSize(-1, -1));
    }

    void qualityScale_data()
    {
        QTest::addColumn<double>("pixelPerMM");
        QTest::addColumn<int>("grade");
        QTest::newRow("zero") << 0.0 << -1;
        QTest::newRow("negative") << -3.0 << -1;
        QTest::newRow("exactly green") << 150.0 / 25.4 << 2;
        QTest::newRow("just below green") << 149.9 / 25.4 << 1;
        QTest::newRow("exactly yellow") << 90.0 / 25.4 << 1;
        QTest::newRow("red") << 1.0 << 0;
        QTest::newRow("print resolution") << 12.0 << 2;
    }
    void qualityScale()
    {
        QFETCH(double, pixelPerMM);
        QFETCH(int, grade);
        QCOMPARE(ZTPrintQuality().qualityScaleForPixelPerMM(pixelPerMM), grade);
    }

    void printQuality()
    {
        const ZTPrintQuality defaults;
        QCOMPARE(defaults, ZTPrintQuality(300, 150, 90, 6));
        QCOMPARE(defaults.printSizeInPixel(QSize(254, 127)), QSize(3000, 1500));
        QCOMPARE(defaults.printSizeInPixel(QSize(0, 0)), QSize(0, 0));
        // 300 dpi are 11.81 dots per millimetre: -1 mm gives -11.8, rounded away from zero.
        QCOMPARE(defaults.printSizeInPixel(QSize(-1, -3)), QSize(-12, -35));

        const QDomElement both = parse(QStringLiteral(
            R"(<article><size dpi="200" minimum_fontsize="8"/><print_quality dpi="400" dpi_green="200"
                 minimum_fontsize="9"/></article>)"));
        QCOMPARE(ZTPrintQuality::createFromXTCI(both), ZTPrintQuality(400, 200, 90, 6));
        const QDomElement sizeOnly = parse(QStringLiteral(
            R"(<article><size dpi="250" dpi_yellow="100" pt_minimum_fontsize="4" minimum_fontsize="7"/></article>)"));
        QCOMPARE(ZTPrintQuality::createFromXTCI(sizeOnly), ZTPrintQuality(250, 150, 100, 7));
        QCOMPARE(ZTPrintQuality::createFromXTCI(parse(QStringLiteral("<article/>"))), defaults);
        QVERIFY(ZTPrintQuality(400, 200, 90, 6) != defaults);
    }
};

QTEST_GUILESS_MAIN(TestPageSizeData)
#include "tst_ZTPageSizeData.moc"
