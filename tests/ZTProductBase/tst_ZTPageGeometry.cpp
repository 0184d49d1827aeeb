#include "ZTArticleVariants.h"
#include "ZTBarcodeDefinitionList.h"
#include "ZTConfiguredArticleVariantList.h"
#include "ZTDiagnosticCollector.h"
#include "ZTPageCountOrganization.h"
#include "ZTSpineConfig.h"
#include "ZTTranslations.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

namespace {

QDomElement parse(const QString& theXml)
{
    QDomDocument document;
    document.setContent(theXml);
    return document.documentElement();
}

QDomElement article(const QString& theSpineAttributes, const QString& theUnits = QStringLiteral("mm"))
{
    return parse(
        QStringLiteral("<article id=\"1001\"><composition units=\"%1\"><spine %2/></composition></article>")
            .arg(theUnits, theSpineAttributes));
}

} // namespace

class tst_ZTPageGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spineWidth_data();
    void spineWidth();
    void spineFontHeight_data();
    void spineFontHeight();
    void spineReading();
    void pageCounts_data();
    void pageCounts();
    void pageCountsOfSpecialProducts();
    void barcodes();
    void variants();
    void findings_data();
    void findings();
};

void tst_ZTPageGeometry::spineWidth_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("units");
    QTest::addColumn<uint>("pages");
    QTest::addColumn<double>("pixels");

    const QString book = QStringLiteral("base_width=\"3\" page_thickness=\"0.1\" min_width=\"5\"");
    QTest::newRow("no pages: the minimum") << book << "mm" << 0u << 50.0;
    QTest::newRow("thin book: still the minimum") << book << "mm" << 20u << 50.0;
    QTest::newRow("24 pages") << book << "mm" << 24u << 54.0;
    QTest::newRow("100 pages") << book << "mm" << 100u << 130.0;
    QTest::newRow("in centimetres") << "base_width=\"0.3\" page_thickness=\"0.01\""
                                    << "cm" << 100u << 130.0;
    QTest::newRow("units missing: mm") << "base_width=\"3\""
                                       << "" << 10u << 30.0;
    QTest::newRow("no spine element") << QString() << "mm" << 100u << 0.0;
}

void tst_ZTPageGeometry::spineWidth()
{
    QFETCH(QString, attributes);
    QFETCH(QString, units);
    QFETCH(uint, pages);
    QFETCH(double, pixels);

    const ZTSpineConfig spine = ZTSpineConfig::createFromProductsXML(
        attributes.isNull() ? parse(QStringLiteral("<article id=\"1\"/>")) : article(attributes, units));
    QCOMPARE(spine.spineWidth(pages).pixels(), pixels);
    QCOMPARE(spine.hasSpine(), pixels > 0.0);
}

void tst_ZTPageGeometry::spineFontHeight_data()
{
    QTest::addColumn<uint>("pages");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("pixels");

    // Spine 5.4 mm at 24 pages, 13 mm at 100; 0.5 mm margin each side; fonts 2 to 8 mm.
    QTest::newRow("wide spine: the maximum") << 100u << "Summer 2024" << 80.0;
    QTest::newRow("two lines share the width") << 100u << "Summer\n2024" << 60.0;
    QTest::newRow("narrow spine") << 24u << "Summer" << 44.0;
    QTest::newRow("a closing newline is no line") << 24u << "Summer\n" << 44.0;
    QTest::newRow("three lines: below the minimum") << 24u << "A\nB\nC" << 0.0;
    QTest::newRow("empty text counts as one line") << 24u << "" << 44.0;
}

void tst_ZTPageGeometry::spineFontHeight()
{
    QFETCH(uint, pages);
    QFETCH(QString, text);
    QFETCH(double, pixels);

    const ZTSpineConfig spine = ZTSpineConfig::createFromProductsXML(
        article(QStringLiteral("base_width=\"3\" page_thickness=\"0.1\" min_width=\"5\" text_margin=\"0.5\" "
                               "min_font_height=\"2\" max_font_height=\"8\"")));
    QCOMPARE(spine.spineMaxFontHeigth(pages, text).pixels(), pixels);
}

void tst_ZTPageGeometry::spineReading()
{
    const ZTSpineConfig spine = ZTSpineConfig::createFromProductsXML(
        article(QStringLiteral("base_width=\"2,5\" cover_reduce_width=\"12.34\" cover_reduce_height=\"1\"")));
    QCOMPARE(spine.baseWidth().pixels(), 25.0);
    QCOMPARE(spine.coverReduceSize(), QSize(123, 10));
    QCOMPARE(ZTSpineConfig::createFromProductsXML(article(QString())).coverReduceSize(), QSize(0, 0));

    // Bad lengths cost themselves, with one warning for the article.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                           "^spine of article 1001 : page_thickness=\"thin\" is no length; "
                                           "min_width=\"-1\" is negative$")));
    const ZTSpineConfig bad = ZTSpineConfig::createFromProductsXML(
        article(QStringLiteral("base_width=\"3\" page_thickness=\"thin\" min_width=\"-1\"")));
    QCOMPARE(bad.spineWidth(100).pixels(), 30.0);

    ZTSpineConfig copy = bad;
    QCOMPARE(copy, bad);
    copy.setPageThickness(ZTDistance::fromMillimetres(0.1));
    QVERIFY(copy != bad);
    QCOMPARE(bad.pageThickness().pixels(), 0.0);
    QVERIFY(ZTSpineConfig() == ZTSpineConfig::createFromProductsXML(parse(QStringLiteral("<article/>"))));
}

void tst_ZTPageGeometry::pageCounts_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("minPages");
    QTest::addColumn<int>("maxPages");
    QTest::addColumn<int>("increment");
    QTest::addColumn<QString>("warning");

    QTest::newRow("nothing: one page") << "" << 1 << 1 << 1 << "";
    QTest::newRow("photo book") << "min_pages=\"26\" max_pages=\"146\" page_increment=\"4\"" << 26 << 146 << 4
                                << "";
    QTest::newRow("only the minimum: fixed") << "min_pages=\"24\"" << 24 << 24 << 1 << "";
    QTest::newRow("blank is missing") << "min_pages=\" \" max_pages=\"\"" << 1 << 1 << 1 << "";
    QTest::newRow("blanks around numbers") << "min_pages=\" 12 \" max_pages=\"+14\"" << 12 << 14 << 1 << "";
    QTest::newRow("garbage minimum") << "min_pages=\"many\" max_pages=\"10\"" << 1 << 10 << 1
                                     << "min_pages=\"many\" is no number";
    QTest::newRow("decimal") << "min_pages=\"24.0\"" << 1 << 1 << 1 << "min_pages=\"24.0\" is no number";
    QTest::newRow("negative minimum") << "min_pages=\"-4\"" << 1 << 1 << 1 << "min_pages -4 is below 1";
    QTest::newRow("maximum below minimum")
        << "min_pages=\"20\" max_pages=\"10\"" << 20 << 20 << 1 << "max_pages 10 is below min_pages 20";
    QTest::newRow("zero increment") << "min_pages=\"10\" max_pages=\"20\" page_increment=\"0\"" << 10 << 20
                                    << 1 << "page_increment 0 is below 1";
    QTest::newRow("unreachable maximum") << "min_pages=\"26\" max_pages=\"100\" page_increment=\"4\"" << 26
                                         << 98 << 4 << "max_pages 100 is not reachable in steps of 4 from 26";
    QTest::newRow("two problems, one warning")
        << "min_pages=\"x\" page_increment=\"y\"" << 1 << 1 << 1
        << "min_pages=\"x\" is no number; page_increment=\"y\" is no number";
}

void tst_ZTPageGeometry::pageCounts()
{
    QFETCH(QString, attributes);
    QFETCH(int, minPages);
    QFETCH(int, maxPages);
    QFETCH(int, increment);
    QFETCH(QString, warning);

    if (warning.isEmpty())
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    else
        QTest::ignoreMessage(
            QtWarningMsg,
            QStringLiteral("page counts of article 1001 : %1").arg(warning).toUtf8().constData());

    const ZTPageCountOrganization pages = ZTPageCountOrganization::createFromProductsXML(
        parse(QStringLiteral("<article id=\"1001\" %1/>").arg(attributes)));
    QCOMPARE(pages, ZTPageCountOrganization(minPages, maxPages, increment));
}

void tst_ZTPageGeometry::pageCountsOfSpecialProducts()
{
    QCOMPARE(ZTPageCountOrganization(), ZTPageCountOrganization(1, 1, 1));
    QCOMPARE(ZTPageCountOrganization::createFromProductsXML(QDomElement()), ZTPageCountOrganization());

    const ZTPageCountOrganization book(26, 146, 4);
    QCOMPARE(book.clone(false), book);
    QCOMPARE(book.clone(true), ZTPageCountOrganization(26, 26, 4));
    QVERIFY(book.allowsPageCount(30));
    QVERIFY(!book.allowsPageCount(28));
    QVERIFY(!book.allowsPageCount(150));
    QVERIFY(!book.allowsPageCount(22));

    // A picture box holds its pieces unless the article says otherwise.
    QCOMPARE(ZTPageCountOrganization::createFromProductsXMLForPictureBox(
                 parse(QStringLiteral("<article id=\"5\" pieces=\"20\"/>"))),
             ZTPageCountOrganization(20, 20, 1));
    QCOMPARE(ZTPageCountOrganization::createFromProductsXMLForPictureBox(parse(
                 QStringLiteral("<article id=\"5\" pieces=\"20\" min_pages=\"10\" max_pages=\"30\"/>"))),
             ZTPageCountOrganization(10, 30, 1));
    QTest::ignoreMessage(QtWarningMsg, "page counts of article 5 : pieces=\"lots\" is no number");
    QCOMPARE(ZTPageCountOrganization::createFromProductsXMLForPictureBox(
                 parse(QStringLiteral("<article id=\"5\" pieces=\"lots\"/>"))),
             ZTPageCountOrganization());

    QCOMPARE(ZTPageCountOrganization::createForCardWithInsertedFoto(), ZTPageCountOrganization(2, 2, 1));
    QCOMPARE(ZTPageCountOrganization::createForAdventCalendarWithDoorBackPrint(),
             ZTPageCountOrganization(25, 25, 1));
}

void tst_ZTPageGeometry::barcodes()
{
    const QDomElement book = parse(QStringLiteral(
        "<article id=\"1001\"><composition units=\"mm\"><barcode>"
        "<position x=\"10\" y=\"280\" width=\"40\" height=\"12\"/>"
        "<position x=\"1,5\" y=\"2\" width=\"30\" height=\"10\" rotation=\"90\" format=\"ean13\"/>"
        "<position x=\"5\" y=\"5\" width=\"0\" height=\"10\"/>"
        "<position x=\"5\" y=\"5\" width=\"20\" height=\"10\" rotation=\"45\"/>"
        "<position x=\"abc\" y=\"-1\" width=\"20\" height=\"10\"/>"
        "</barcode></composition></article>"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                           "^barcodes of article 1001 : position 3: the area 50,50 0x100 "
                                           "px is empty or off the cover, skipped; position 4: "
                                           "rotation=\"45\" is not 0, 90, 180 or 270; position 5: "
                                           "x=\"abc\" is no length; position 5: .* skipped$")));
    const ZTBarcodeDefinitionList list = ZTBarcodeDefinitionList::createFromXTCI(
        book.firstChildElement(QStringLiteral("composition")).firstChildElement(QStringLiteral("barcode")),
        ZTDistanceUnit(ZTDistanceUnitMillimetre));

    ZTBarcodeDefinitionList expected;
    expected << ZTBarcodeDefinition(QRect(100, 2800, 400, 120), 0, QStringLiteral("code128"))
             << ZTBarcodeDefinition(QRect(15, 20, 300, 100), 90, QStringLiteral("ean13"))
             << ZTBarcodeDefinition(QRect(50, 50, 200, 100), 0, QStringLiteral("code128"));
    QCOMPARE(list, expected);

    // The unit is the caller's: an inch is 254 pixels.
    const QDomElement inch =
        parse(QStringLiteral("<barcode><position x=\"1\" width=\"0.5\" height=\"0.25\"/></barcode>"));
    QCOMPARE(
        ZTBarcodeDefinitionList::createFromXTCI(inch, ZTDistanceUnit(ZTDistanceUnitInch)).value(0).area(),
        QRect(254, 0, 127, 64));

    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QVERIFY(ZTBarcodeDefinitionList::createFromXTCI(QDomElement(), ZTDistanceUnit(ZTDistanceUnitMillimetre))
                .isEmpty());
}

void tst_ZTPageGeometry::variants()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "variants of article 7001 skipped: id \"x\" is no positive number; id 1 is "
                         "listed twice; id \"0\" is no positive number");
    const ZTConfiguredArticleVariantList list(parse(QStringLiteral(
        "<add_on id=\"7001\"><variants>"
        "<variant id=\"1\" name=\"Classic white\"/><variant id=\" 2 \" name=\" Linen grey \"/>"
        "<variant id=\"x\" name=\"broken\"/><variant id=\"1\" name=\"again\"/><variant id=\"0\"/>"
        "</variants></add_on>")));
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(0), ZTConfiguredArticleVariant(1, QStringLiteral("Classic white")));
    QCOMPARE(list.variant(2).name(), QStringLiteral("Linen grey"));
    QVERIFY(!list.variant(3).isValid());
    QVERIFY(!list.containsId(0));

    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QVERIFY(ZTConfiguredArticleVariantList(parse(QStringLiteral("<article id=\"1\"/>"))).isEmpty());

    // The chosen variants: sorted, each once, only real ids.
    ZTArticleVariants chosen({3, 1, 3, 0, -2});
    chosen.insert(list.at(1));
    QCOMPARE(chosen.ids(), QList<int>({1, 2, 3}));
    QVERIFY(chosen.contains(2));
    QVERIFY(!chosen.contains(0));
    QCOMPARE(chosen, ZTArticleVariants({2, 3, 1}));
}

// The finding beside a log line tells the same problems in the language of the installed
// catalogue, German without one; the log line keeps its words in both.
void tst_ZTPageGeometry::findings_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("log");
    QTest::addColumn<QString>("finding");

    const QString pages = QStringLiteral("<article id=\"1001\" min_pages=\"x\" page_increment=\"0\"/>");
    const QString pagesLog = QStringLiteral(
        "page counts of article 1001 : min_pages=\"x\" is no number; page_increment 0 is below 1");
    QTest::newRow("page counts, de") << "de" << pages << pagesLog
                                     << "Seitenzahlen von Artikel 1001: min_pages=\"x\" ist keine Zahl; "
                                        "page_increment 0 ist kleiner als 1";
    QTest::newRow("page counts, en") << "en" << pages << pagesLog
                                     << "page counts of article 1001: min_pages=\"x\" is no number; "
                                        "page_increment 0 is below 1";
    const QString barcode =
        QStringLiteral("<article id=\"1001\"><composition units=\"mm\"><barcode>"
                       "<position x=\"5\" y=\"5\" width=\"20\" height=\"10\" rotation=\"45\"/>"
                       "</barcode></composition></article>");
    const QString barcodeLog =
        QStringLiteral("barcodes of article 1001 : position 1: rotation=\"45\" is not 0, 90, 180 or 270");
    QTest::newRow("barcodes, de")
        << "de" << barcode << barcodeLog
        << "Barcodes von Artikel 1001: Position 1: rotation=\"45\" ist nicht 0, 90, 180 oder 270";
    QTest::newRow("barcodes, en")
        << "en" << barcode << barcodeLog
        << "barcodes of article 1001: position 1: rotation=\"45\" is not 0, 90, 180 or 270";
}

void tst_ZTPageGeometry::findings()
{
    QFETCH(QString, language);
    QFETCH(QString, document);
    QFETCH(QString, log);
    QFETCH(QString, finding);
    ZTTranslations::install(language, {QStringLiteral("ZTProductBase")}, QStringLiteral(ZT_TRANSLATIONS_DIR));
    QTest::ignoreMessage(QtWarningMsg, log.toUtf8().constData());
    QStringList found;
    {
        ZTDiagnosticCollector collector;
        collector.install();
        const QDomElement element = parse(document);
        const QDomElement barcode = element.firstChildElement(QStringLiteral("composition"))
                                        .firstChildElement(QStringLiteral("barcode"));
        if (barcode.isNull())
            ZTPageCountOrganization::createFromProductsXML(element);
        else
            ZTBarcodeDefinitionList::createFromXTCI(barcode, ZTDistanceUnit(ZTDistanceUnitMillimetre));
        for (const ZTDiagnostic& diagnostic : collector.diagnostics())
            found << diagnostic.message();
    }
    ZTTranslations::install(QStringLiteral("de"), {});
    QCOMPARE(found, QStringList{finding});
}

QTEST_GUILESS_MAIN(tst_ZTPageGeometry)
#include "tst_ZTPageGeometry.moc"
