#include "ZTAPMArticleDefinition.h"
#include "ZTAPMOrderTxtContent.h"
#include "ZTBasisSettings.h"

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

ZTAPMArticleDefinition definition(const QString& theXml)
{
    return ZTAPMArticleDefinition(parse(theXml));
}

// An element of the products document with a type and order text lines.
QString element(const QString& theTag, const QString& theTypeAttributes, const QString& theHead = QString(),
                const QStringList& theLines = {}, const QString& theAttributes = QString())
{
    QString lines;
    for (const QString& line : theLines)
        lines += QStringLiteral("<line>%1</line>").arg(line);
    const QString attributes = theAttributes.contains(QLatin1String("group="))
                                   ? theAttributes
                                   : theAttributes + QStringLiteral(" group=\"1\"");
    return QStringLiteral(R"(<%1 id="100" %2><type %3/><order_txt_lines head="%4">%5</order_txt_lines></%1>)")
        .arg(theTag, attributes, theTypeAttributes, theHead, lines);
}

QString addOn(const QString& thePriceClass, const QString& theHead = QString())
{
    return element(QStringLiteral("add_on"), QString(), theHead, {},
                   QStringLiteral(R"(price_class="%1")").arg(thePriceClass));
}

// A hardcover book of 26 to 98 pages, A4 upright, in millimetres.
const char* const sampleBook = R"(
    <article id="1001" group="1" name="Fotobuch A4" order_txt_type="BOOK_A4_HC" min_pages="26" max_pages="98"
             page_increment="2" price_class="BOOK">
      <type arrangement="book" cover="hardcover" material="glossy"/>
      <composition units="mm">
        <page width="210" height="297" bleed_left_right="3" bleed_top_bottom="3" binding="left"/>
        <cover width="440" height="310" extra_width_left_right="15" extra_height_top_bottom="15"
               bleed_left_right="2" bleed_top_bottom="2"/>
        <panorama_page base_width="420" wing_width="210"/>
        <spine base_width="5" page_thickness="0.12" cover_reduce_width="10" cover_reduce_height="0"/>
      </composition>
      <order_txt_lines head="[BOOK]"><line>TYPE=A4HC</line><line>border=1</line></order_txt_lines>
    </article>)";

// A 10x15 print of the prints group, which offers three crop forms.
const char* const samplePrint = R"(
    <article id="3002" group="16" name="Abzug 10x15">
      <type arrangement="prints"/>
      <print_quality dpi="300" dpi_green="200" dpi_yellow="120" pt_minimum_fontsize="5"/>
      <composition>
        <page width="152" height="102" max_width="305" frame_size_width="140" pano_16_to_9_width="181"/>
      </composition>
    </article>)";

} // namespace

// What an element of the products document becomes: class, order text, links and geometry.
class TestAPMArticleDefinition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void articleClass_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<qint64>("expected");

        const QString article = QStringLiteral("article");
        QTest::newRow("calendar") << element(article, R"(arrangement="calendar")") << Q_INT64_C(0x1);
        QTest::newRow("book") << element(article, R"(arrangement="book" cover="hardcover")")
                              << Q_INT64_C(0x2);
        QTest::newRow("lay-flat book")
            << element(article, R"(arrangement="32" cover="layflat")") << Q_INT64_C(0x4);
        QTest::newRow("card") << element(article, R"(arrangement="folded")") << Q_INT64_C(0x8);
        QTest::newRow("prints by group")
            << element(article, R"(arrangement="prints")", {}, {}, R"(group="17")") << Q_INT64_C(0x10000);
        QTest::newRow("prints, group without class")
            << element(article, R"(arrangement="prints")", {}, {}, R"(group="40")") << Q_INT64_C(0);

        QTest::newRow("poster") << element(article, R"(arrangement="single" material="poster_paper")")
                                << Q_INT64_C(0x400);
        QTest::newRow("wood") << element(article, R"(arrangement="4" material="wood")") << Q_INT64_C(0x1000);
        QTest::newRow("cardboard") << element(article, R"(arrangement="4" material="cardboard")")
                                   << Q_INT64_C(0x1000);
        QTest::newRow("acrylic") << element(article, R"(arrangement="4" material="acrylic")")
                                 << Q_INT64_C(0x200);
        QTest::newRow("canvas beats puzzle")
            << element(article, R"(arrangement="4" material="canvas" cover="puzzle")") << Q_INT64_C(0x10);
        QTest::newRow("aluminium") << element(article, R"(arrangement="4" material="aluminium")")
                                   << Q_INT64_C(0x40);
        QTest::newRow("puzzle") << element(article, R"(arrangement="4" cover="puzzle")") << Q_INT64_C(0x20);
        QTest::newRow("framed print")
            << element(article, R"(arrangement="4" cover="framed_print")") << Q_INT64_C(0x10);
        QTest::newRow("wall hanging")
            << element(article, R"(arrangement="4" cover="wall_hanging")") << Q_INT64_C(0x10);
        QTest::newRow("cushion") << element(article, R"(arrangement="4" cover="cushion")")
                                 << Q_INT64_C(0x100);
        QTest::newRow("joined cover types are no match")
            << element(article, R"(arrangement="4" cover="cushion,puzzle")") << Q_INT64_C(0x80);
        QTest::newRow("SLIPCASE line")
            << element(article, R"(arrangement="4")", "[ITEM]", {"KIND=SLIPCASE"}) << Q_INT64_C(0x4000);
        QTest::newRow("slipcase in small letters")
            << element(article, R"(arrangement="4")", "[ITEM]", {"KIND=slipcase"}) << Q_INT64_C(0x80);
        QTest::newRow("PRE_ASSEMBLED line")
            << element(article, R"(arrangement="4")", "[ITEM]", {"A=1", "PRE_ASSEMBLED=1"})
            << Q_INT64_C(0x100000000000);
        QTest::newRow("photo gift") << element(article, R"(arrangement="4")") << Q_INT64_C(0x80);
        QTest::newRow("add-on classed by arrangement")
            << element(QStringLiteral("add_on"), R"(arrangement="4" material="poster_paper")", "[FRAME]", {},
                       R"(price_class="FRAME_GLASS")")
            << Q_INT64_C(0x400);

        QTest::newRow("express fee") << element(QStringLiteral("express_fee"), {}) << Q_INT64_C(0x40000);
        QTest::newRow("transfer") << element(QStringLiteral("transfer"), {}) << Q_INT64_C(0x80000);
        QTest::newRow("pay method fee")
            << element(QStringLiteral("pay_method_fee"), {}) << Q_INT64_C(0x100000);
        QTest::newRow("shipment method fee")
            << element(QStringLiteral("shipment_method_fee"), {}) << Q_INT64_C(0x200000);
        QTest::newRow("article without arrangement") << element(article, {}) << Q_INT64_C(0);

        QTest::newRow("design before frame") << addOn("DESIGN", "[FRAME]") << Q_INT64_C(0x2000000);
        QTest::newRow("art print box") << addOn("ART_PRINT_BOX") << Q_INT64_C(0x10000000000);
        QTest::newRow("frame glass") << addOn("FRAME_GLASS_ANTIREFLEX", "[FRAME]") << Q_INT64_C(0x10000000);
        QTest::newRow("glass without frame head") << addOn("FRAME_GLASS") << Q_INT64_C(0);
        QTest::newRow("passepartout") << addOn("FRAME_PASSEPARTOUT", "[FRAME]") << Q_INT64_C(0x20000000);
        QTest::newRow("frame") << addOn("FRAME_OAK", "[FRAME]") << Q_INT64_C(0x8000000);
        QTest::newRow("poster wooden strip")
            << addOn("POSTER_WOODEN_STRIP", "[WALL_HOLDER]") << Q_INT64_C(0x8000000);
        QTest::newRow("calendar strip") << addOn("CALENDAR_STRIP_WOOD") << Q_INT64_C(0x40000000);
        QTest::newRow("wall holder") << addOn("WALL_HOLDER_ALU", "[WALL_HOLDER]") << Q_INT64_C(0x80000000);
        QTest::newRow("wall holder head, other class")
            << addOn("ENVELOPE", "[WALL_HOLDER]") << Q_INT64_C(0x100000000);
        QTest::newRow("pages") << addOn("EXTRA_PAGES", "[PAGES]") << Q_INT64_C(0x400000);
        QTest::newRow("photo product") << addOn({}, "[PHOTOPRODUCT]") << Q_INT64_C(0x400000);
        QTest::newRow("video") << addOn("VIDEO", "[VIDEO]") << Q_INT64_C(0x1000000);
        QTest::newRow("maps") << addOn("MAPS_ROUTE") << Q_INT64_C(0x4000000);
        QTest::newRow("book gift box") << addOn("BOOK_GIFT_BOX_PREMIUM") << Q_INT64_C(0x400000000);
        QTest::newRow("book gift service") << addOn("BOOK_GIFT_SERVICE") << Q_INT64_C(0x800000000);
        QTest::newRow("calendar gift box") << addOn("CALENDAR_GIFT_BOX") << Q_INT64_C(0x1000000000);
        QTest::newRow("spot colour") << addOn("SPOT_COLOR_GOLD") << Q_INT64_C(0x800000);
        QTest::newRow("matt cover") << addOn("MATT_COVER") << Q_INT64_C(0x200000000);
        QTest::newRow("linen cover") << addOn("LINEN_COVER") << Q_INT64_C(0x8000000000);
        QTest::newRow("flyleaf") << addOn("FLYLEAF") << Q_INT64_C(0x2000000000);
        QTest::newRow("calendar stand") << addOn("CALENDAR_STAND_ACRYLIC") << Q_INT64_C(0x4000000000);
        QTest::newRow("memorabilia pocket") << addOn("MEMORABILIA_POCKET") << Q_INT64_C(0x20000000000);
        QTest::newRow("calendar gift service") << addOn("CALENDAR_GIFT_SERVICE") << Q_INT64_C(0x80000000000);
        QTest::newRow("book pano pages") << addOn("BOOK_PANO_PAGES") << Q_INT64_C(0x40000000000);
        QTest::newRow("unknown add-on") << addOn("SOMETHING") << Q_INT64_C(0);
    }
    void articleClass()
    {
        QFETCH(QString, xml);
        QFETCH(qint64, expected);
        const ZTAPMArticleDefinition article = definition(xml);
        QCOMPARE(qint64(article.articleClass().value()), expected);
        QCOMPARE(article.isValid(), expected != 0);
    }

    void coverTypeByPageCount_data()
    {
        QTest::addColumn<QString>("cover");
        QTest::addColumn<int>("minPages");
        QTest::addColumn<quint32>("expected");
        QTest::newRow("monthly, one sheet") << "calendar_monthly" << 1 << quint32(0x80);
        QTest::newRow("monthly, two sheets") << "calendar_monthly" << 2 << quint32(0x100);
        QTest::newRow("monthly, 25 sheets") << "calendar_monthly" << 25 << quint32(0x40);
        QTest::newRow("monthly, 13 sheets") << "calendar_monthly" << 13 << quint32(0x20);
        QTest::newRow("twice monthly, 13 sheets") << "calendar_twice_monthly" << 13 << quint32(0x20);
        QTest::newRow("twice monthly, 25 sheets") << "calendar_twice_monthly" << 25 << quint32(0x40);
    }
    void coverTypeByPageCount()
    {
        QFETCH(QString, cover);
        QFETCH(int, minPages);
        QFETCH(quint32, expected);
        const ZTAPMArticleDefinition calendar = definition(
            QStringLiteral(
                R"(<article id="2001" group="1" min_pages="%1"><type arrangement="calendar" cover="%2"/></article>)")
                .arg(minPages)
                .arg(cover));
        QCOMPARE(quint32(calendar.coverType().value()), expected);
    }

    void orderText()
    {
        ZTAPMArticleDefinition book = definition(QString::fromLatin1(sampleBook));
        const ZTAPMArticleDefinition fresh = definition(QString::fromLatin1(sampleBook));
        QCOMPARE(book, fresh);
        QCOMPARE(book.productType(), ZTProductType(QStringLiteral("BOOK_A4_HC")));
        QCOMPARE(book.orderTxtHead(), QStringLiteral("[BOOK]"));
        QVERIFY(book.hasOrderTxtHead(QStringLiteral("[BOOK]")));
        // The prefix is compared without regard to case.
        QCOMPARE(book.orderTxtValue(QStringLiteral("BORDER")), QStringLiteral("1"));
        QVERIFY(book.canHaveBorderColor());
        QCOMPARE(book.borderWidthInPixel(), 59);
        QCOMPARE(book.orderTxtValue(QStringLiteral("TYPE=")), QStringLiteral("A4HC"));
        QCOMPARE(book.orderTxtValue(QStringLiteral("TYPE")), QStringLiteral("A4HC"));
        QCOMPARE(book.orderTxtValue(QStringLiteral("MISSING")), QString());
        // The cache is part of the value, and every copy shares it.
        QVERIFY(book != fresh);
        QCOMPARE(book.toOrderTxt(),
                 QList<QString>({QStringLiteral("[BOOK]"), QStringLiteral("TYPE=A4HC"),
                                 QStringLiteral("border=1"), QStringLiteral("DESCRIPTION=Fotobuch A4")}));

        const ZTAPMArticleDefinition wideBorder =
            definition(element(QStringLiteral("article"), R"(arrangement="4")", "[X]", {"BORDER=10"}));
        QVERIFY(!wideBorder.canHaveBorderColor());
        QCOMPARE(wideBorder.borderWidthInPixel(), 0);

        ZTBasisSettings::instance()->setRunsInMasterMode(true);
        QCOMPARE(book.name(), QStringLiteral("Fotobuch A4 [A4HC]"));
        QCOMPARE(book.editorName(), QString());
        ZTBasisSettings::instance()->setRunsInMasterMode(false);
        QCOMPARE(book.name(), QStringLiteral("Fotobuch A4"));

        // Without order_txt_lines an update keeps what was there.
        ZTAPMOrderTxtContent content;
        content.update(parse(
            QStringLiteral(R"(<a><order_txt_lines head="[H]"><l>K=V</l><x>Y=1</x></order_txt_lines></a>)")));
        QCOMPARE(content.lines(), QList<QString>({QStringLiteral("K=V"), QStringLiteral("Y=1")}));
        content.update(parse(QStringLiteral("<a/>")));
        QCOMPARE(content.head(), QStringLiteral("[H]"));
        QVERIFY(content.isValid());
        QVERIFY(!ZTAPMOrderTxtContent().isValid());
    }

    void linksAndConditions()
    {
        // The host's reader names a malformed id; the link is dropped.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Invalid article id \"x\"")));
        const ZTAPMArticleDefinition frame = definition(QStringLiteral(R"(
            <add_on id="7010" group="3" price_class="FRAME_OAK">
              <order_txt_lines head="[FRAME]"/>
              <linked_articles><linked_article id="5001"/><linked_article id="x"/><linked_article id="5002"/>
              </linked_articles>
              <required_add_ons>
                <required_add_on id="7011" group="FRAME_GLASS"/>
                <required_add_on id="7012" group="FRAME_GLASS"/>
                <required_add_on id="7013" group="PASSEPARTOUT"/>
                <required_add_on id="7014" group="NO_SUCH_CLASS"/>
                <required_add_on group="PASSEPARTOUT"/>
              </required_add_ons>
              <further_conditions>
                <further_condition condition="passepartoutRequiredForGlass, designRequired"/>
                <further_condition condition="wallHolderAndFrameNotAllowed"/>
                <further_condition condition="noSuchCondition"/>
              </further_conditions>
            </add_on>)"));
        QCOMPARE(frame.linkedArticleIds(), ZTArticleIdSet({ZTArticleId(5001), ZTArticleId(5002)}));
        QCOMPARE(frame.requiredAddOns(ZTArticleClass(ZTArticleClassFrameGlass)),
                 ZTArticleIdSet({ZTArticleId(7011), ZTArticleId(7012)}));
        QCOMPARE(frame.requiredAddOns(),
                 ZTArticleIdSet({ZTArticleId(7011), ZTArticleId(7012), ZTArticleId(7013)}));
        QVERIFY(frame.requiredAddOns(ZTArticleClass(ZTArticleClassFrame)).isEmpty());

        const ZTAPMArticleConditions conditions = frame.furtherConditions();
        QCOMPARE(int(conditions.value()), 0x1 | 0x200 | 0x80);
        QVERIFY(conditions.glassRequiresPassepartout());
        QVERIFY(conditions.designRequired());
        QVERIFY(conditions.wallholderAndFrameNotAllowed());
        QVERIFY(!conditions.geoMapsIncluded());

        using C = ZTAPMArticleConditions;
        QCOMPARE(qint64(C::articleClasses(C(ZTAPMArticleConditionGiftBoxAndGiftServiceNotAllowed)).value()),
                 Q_INT64_C(0x81c00000000));
        QCOMPARE(qint64(C::articleClasses(C(QStringLiteral("calendarRailAndGiftServiceNotAllowed"))).value()),
                 Q_INT64_C(0x80040000000));
        QCOMPARE(qint64(C::articleClasses(C(ZTAPMArticleConditionsEnum(0x18))).value()), Q_INT64_C(0));
        QCOMPARE(qint64(C::articleClasses(C(ZTAPMArticleConditionDesignRequired)).value()), Q_INT64_C(0));
    }

    void bookGeometry()
    {
        const ZTAPMArticleDefinition book = definition(QString::fromLatin1(sampleBook));
        QVERIFY(book.isValid());
        QCOMPARE(book.numberOfPages(), 26);
        QCOMPARE(book.pageBinding(), ZTPageBinding(ZTPageBindingLeft));
        QCOMPARE(book.paperType(), ZTPaperType(ZTPaperTypeGlossy));

        const auto key = [](qint32 theType, int thePages,
                            ZTPageSizeKey::Alignment theAlignment = ZTPageSizeKey::AlignmentNone) {
            return ZTPageSizeKey(ZTPageType(ZTPageTypeEnum(theType)), thePages, theAlignment);
        };
        // 10 pixels per millimetre. The cover: 440 + 2 x 15 wide, 310 + 2 x 15 high, less the 10 mm
        // the spine configuration takes off. The spine: 5 + 26 x 0.12 = 8.12 mm, cut to whole pixels.
        QCOMPARE(book.usablePrintSize(key(ZTPageTypePage, 26)), QSize(2100, 2970));
        QCOMPARE(book.usablePrintSize(key(ZTPageTypeCoverFront, 26)), QSize(4600, 3400));
        QCOMPARE(book.usablePrintSize(key(ZTPageTypeSpine, 26)), QSize(81, 3400));
        QCOMPARE(book.usablePrintSize(key(ZTPageTypeSpine, 98)), QSize(167, 3400));
        QCOMPARE(book.usablePrintSize(key(ZTPageTypePanoBasePage, 26)), QSize(4200, 2970));
        QCOMPARE(book.usablePrintSize(key(ZTPageTypePanoWingPage, 26)), QSize(2100, 2970));
        QCOMPARE(book.usablePrintSize(key(ZTPageTypeDoorBackPrintPage, 26)), QSize(400, 400));
        QVERIFY(book.canHavePanoPages());
        QCOMPARE(book.frameWidth(), QSize(0, 0));

        // A bound book has no bleed where two pages meet.
        QCOMPARE(book.bleedMargins(key(ZTPageTypePage, 26, ZTPageSizeKey::AlignmentLeft)),
                 ZTMargins(30, 30, 30, 0));
        QCOMPARE(book.bleedMargins(key(ZTPageTypePage, 26, ZTPageSizeKey::AlignmentRight)),
                 ZTMargins(30, 30, 0, 30));
        QCOMPARE(book.bleedMargins(key(ZTPageTypePage, 1, ZTPageSizeKey::AlignmentLeft)),
                 ZTMargins(30, 30, 30, 30));
        QCOMPARE(book.bleedMargins(key(ZTPageTypePanoBasePage, 26)), ZTMargins(30, 30, 0, 0));
        QCOMPARE(book.bleedMargins(key(ZTPageTypeSpine, 26)), ZTMargins(20, 0));
        QCOMPARE(book.bleedMargins(key(ZTPageTypeCoverFront, 26, ZTPageSizeKey::AlignmentLeft)),
                 ZTMargins(20, 20, 20, 0));
        QCOMPARE(book.pageSizeSpec(key(ZTPageTypeDoorBackPrintPage, 2, ZTPageSizeKey::AlignmentRight)),
                 ZTPageSizeSpec(QSize(400, 400), ZTMargins(15, 15, 0, 15)));

        // 300 dots per inch: 210 mm give 2480.3 dots, 297 mm 3507.9.
        QCOMPARE(book.printSizeInMM(), QSize(210, 297));
        QCOMPARE(book.printSizeInPixel(), QSize(2480, 3508));
        QCOMPARE(book.spaceMagnitude(), ZTSpaceMagnitude(ZTSpaceMagnitudeMedium));
        QCOMPARE(book.defaultCropType(), ZTCropType(ZTCropTypeNone));

        // Lay-flat pages are printed across the fold and keep their bleed.
        QString layFlatXml = QString::fromLatin1(sampleBook);
        layFlatXml.replace(QStringLiteral("cover=\"hardcover\""), QStringLiteral("cover=\"layflat\""));
        const ZTAPMArticleDefinition layFlat = definition(layFlatXml);
        QCOMPARE(qint64(layFlat.articleClass().value()), Q_INT64_C(0x4));
        QCOMPARE(layFlat.bleedMargins(key(ZTPageTypePage, 26, ZTPageSizeKey::AlignmentLeft)),
                 ZTMargins(30, 30, 30, 30));

        // Without composition: millimetres, default sizes, and no panorama pages.
        const ZTAPMArticleDefinition bare =
            definition(element(QStringLiteral("article"), R"(arrangement="book")"));
        QCOMPARE(bare.usablePrintSize(key(ZTPageTypePage, 1)), QSize(0, 0));
        QVERIFY(!bare.canHavePanoPages());
        QCOMPARE(bare.spaceMagnitude(), ZTSpaceMagnitude(ZTSpaceMagnitudeNone));
    }

    // A length that no int pixel size holds is refused like a malformed one: it reads as 0, and
    // the article warns once for all its sizes. Without the refusal the sums below overflow.
    void extremeLengths_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QSize>("page");
        QTest::addColumn<QSize>("cover");
        QTest::addColumn<int>("spine");

        const QString sizes = QStringLiteral("sizes of article 1001: no length of at most 1 km: ");
        QTest::newRow("strip of 2^30 pixels")
            << QStringLiteral(R"(extra_width_left_right="15")")
            << QStringLiteral(R"(extra_width_left_right="107374182.4")")
            << sizes + QStringLiteral(R"(cover extra_width_left_right="107374182.4")") << QSize(2100, 2970)
            << QSize(4300, 3400) << 81;
        QTest::newRow("width of the int maximum")
            << QStringLiteral(R"(<page width="210")") << QStringLiteral(R"(<page width="214748364.7")")
            << sizes + QStringLiteral(R"(page width="214748364.7")") << QSize(0, 2970) << QSize(4600, 3400)
            << 81;
        QTest::newRow("negative, and bad twice")
            << QStringLiteral(R"(wing_width="210")")
            << QStringLiteral(R"(wing_width="-1e12" max_width="1e400")")
            << sizes + QStringLiteral(R"(panorama_page max_width="1e400", panorama_page wing_width="-1e12")")
            << QSize(2100, 2970) << QSize(4600, 3400) << 81;
        QTest::newRow("just 1 km") << QStringLiteral(R"(<page width="210")")
                                   << QStringLiteral(R"(<page width="1000000")") << QString()
                                   << QSize(10000000, 2970) << QSize(4600, 3400) << 81;
        QTest::newRow("page thickness 1e300")
            << QStringLiteral(R"(page_thickness="0.12")") << QStringLiteral(R"(page_thickness="1e300")")
            << QStringLiteral(R"(spine of article 1001 : page_thickness="1e300" is no length)")
            << QSize(2100, 2970) << QSize(4600, 3400) << 50;
    }

    void extremeLengths()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, warning);
        QFETCH(QSize, page);
        QFETCH(QSize, cover);
        QFETCH(int, spine);
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        QString xml = QString::fromLatin1(sampleBook);
        QVERIFY(xml.contains(from));
        xml.replace(from, to);
        const ZTAPMArticleDefinition book = definition(xml);

        const auto key = [](ZTPageTypeEnum theType, int thePages) {
            return ZTPageSizeKey(ZTPageType(theType), thePages);
        };
        QCOMPARE(book.usablePrintSize(key(ZTPageTypePage, 26)), page);
        QCOMPARE(book.usablePrintSize(key(ZTPageTypeCoverFront, 26)), cover);
        QCOMPARE(book.usablePrintSize(key(ZTPageTypeSpine, 26)).width(), spine);
        // Whatever the page count, the spine stays an int.
        QVERIFY(book.usablePrintSize(key(ZTPageTypeSpine, -1)).width() >= spine);
        QVERIFY(book.printSizeInPixel().width() >= 0);
        QVERIFY(book.maxLengthInPixels() >= 0);
    }

    void printGeometry()
    {
        const ZTAPMArticleDefinition print = definition(QString::fromLatin1(samplePrint));
        QCOMPARE(qint64(print.articleClass().value()), qint64(ZTArticleClassPrints));
        QCOMPARE(print.printDPI(), 300);
        QCOMPARE(print.minimumFontSizePT(), 5);
        QCOMPARE(print.qualityScaleForPixelPerMM(5.0), 1);
        QCOMPARE(print.supportedCropTypes(),
                 QSet<ZTCropType>({ZTCropType(ZTCropTypeStandard), ZTCropType(ZTCropTypeFrame),
                                   ZTCropType(ZTCropTypePanorama16To9)}));
        QCOMPARE(print.defaultCropType(), ZTCropType(ZTCropTypeFrame));
        QCOMPARE(print.length(ZTCropType(ZTCropTypeStandard)), 3050);
        QCOMPARE(print.length(ZTCropType(ZTCropTypePanorama16To9)), 1810);
        // 300 dpi are 11.811 dots per millimetre: 152 mm 1795.3, 102 mm 1204.7, 140 mm 1653.5,
        // 305 mm 3602.4.
        QCOMPARE(print.printSizeInPixel(), QSize(1795, 1205));
        QCOMPARE(print.printSizeInPixel(ZTCropType(ZTCropTypeFrame)), QSize(1654, 1205));
        QCOMPARE(print.printSizeInPixel(ZTCropType(ZTCropTypeSquare)), QSize(0, 1205));
        QCOMPARE(print.maxLengthInPixels(), 3602);
        QVERIFY(print.printSizeIs2By3());
        QCOMPARE(print.spaceMagnitude(), ZTSpaceMagnitude(ZTSpaceMagnitudeSmall));

        const ZTAPMArticleDefinition enlargement = definition(QStringLiteral(
            R"(<article id="3005" group="18"><type arrangement="prints"/>
                 <composition><page width="300" height="400"/></composition></article>)"));
        QCOMPARE(enlargement.defaultCropType(), ZTCropType(ZTCropTypeRatio3To4));
    }

    void sharedBody()
    {
        const ZTAPMArticleDefinition first = definition(QString::fromLatin1(samplePrint));
        ZTAPMArticleDefinition copy = first;
        const ZTAPMArticleDefinition second = definition(QStringLiteral(
            R"(<add_on id="9999" group="2" name="Neu" price_class="DESIGN"><type arrangement="folded"/></add_on>)"));
        copy.update(second);
        // Both handles show the update; id, class and price class stay.
        QCOMPARE(first.name(), QStringLiteral("Neu"));
        QCOMPARE(first.shippingGroupId(), ZTShippingGroupId(2));
        QCOMPARE(first.arrangement(), ZTProductArrangement(ZTProductArrangementFolded));
        QCOMPARE(first.articleId(), ZTArticleId(3002));
        QCOMPARE(qint64(first.articleClass().value()), qint64(ZTArticleClassPrints));
        QCOMPARE(first.priceClass(), ZTPriceClass());
        QVERIFY(first.supportedCropTypes().isEmpty());
        QCOMPARE(first, copy);
    }
};

QTEST_GUILESS_MAIN(TestAPMArticleDefinition)
#include "tst_ZTAPMArticleDefinition.moc"
