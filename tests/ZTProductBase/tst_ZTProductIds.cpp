#include "ZTArticleId.h"
#include "ZTPriceClass.h"
#include "ZTPriceClassSet.h"
#include "ZTProductType.h"
#include "ZTShippingGroupId.h"
#include "ZTShippingGroupIdList.h"

#include <QDomDocument>
#include <QMap>
#include <QSet>
#include <QTest>

namespace {

QDomElement parse(const QString& theXml)
{
    QDomDocument document;
    document.setContent(theXml);
    return document.documentElement();
}

} // namespace

class tst_ZTProductIds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void articleIdAttributes_data();
    void articleIdAttributes();
    void articleIdWritesItsAttributes();
    void specialArticleFamilies_data();
    void specialArticleFamilies();
    void shippingGroupIds_data();
    void shippingGroupIds();
    void idsAsKeys();
    void productTypeAndPriceClass();
    void priceClassFamilies();
};

void tst_ZTProductIds::articleIdAttributes_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("articleIdAttribute");
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("warns");

    QTest::newRow("id") << "<article id=\"1001\"/>" << false << 1001 << true << false;
    QTest::newRow("blanks") << "<article id=\" 42 \"/>" << false << 42 << true << false;
    QTest::newRow("missing") << "<article name=\"x\"/>" << false << -1 << false << false;
    QTest::newRow("empty") << "<article id=\"\"/>" << false << -1 << false << false;
    QTest::newRow("garbage") << "<article id=\"12a\"/>" << false << -1 << false << true;
    QTest::newRow("zero") << "<article id=\"0\"/>" << false << 0 << false << false;
    QTest::newRow("negative") << "<article id=\"-7\"/>" << false << -7 << false << false;
    QTest::newRow("article_id") << "<position article_id=\"5\" id=\"9\"/>" << true << 5 << true << false;
    QTest::newRow("article_id missing") << "<position id=\"9\"/>" << true << -1 << false << false;
    QTest::newRow("article_id garbage") << "<position article_id=\"five\"/>" << true << -1 << false << true;
}

void tst_ZTProductIds::articleIdAttributes()
{
    QFETCH(QString, xml);
    QFETCH(bool, articleIdAttribute);
    QFETCH(int, id);
    QFETCH(bool, valid);
    QFETCH(bool, warns);

    const QDomElement element = parse(xml);
    if (warns)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Invalid article id ")));
    else
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    const ZTArticleId articleId =
        articleIdAttribute ? ZTArticleId::fromArtIdAttribute(element) : ZTArticleId::fromIdAttribute(element);
    QCOMPARE(articleId.id(), id);
    QCOMPARE(articleId.isValid(), valid);
    QCOMPARE(articleId.toString(), QString::number(id));
}

void tst_ZTProductIds::articleIdWritesItsAttributes()
{
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("article"));
    ZTArticleId(1234).toIdAttribute(element);
    ZTArticleId(77).toArtIdAttribute(element);
    QCOMPARE(element.attribute(QStringLiteral("id")), QStringLiteral("1234"));
    QCOMPARE(element.attribute(QStringLiteral("article_id")), QStringLiteral("77"));
    QCOMPARE(ZTArticleId::fromIdAttribute(element), ZTArticleId(1234));
    QCOMPARE(ZTArticleId::fromArtIdAttribute(element), ZTArticleId(77));

    QCOMPARE(ZTArticleId(), ZTArticleId(ZTArticleId::InvalidId));
    QCOMPARE(ZTArticleId::fromString(QStringLiteral(" 15 ")), ZTArticleId(15));
    QVERIFY(!ZTArticleId::fromString(QStringLiteral("1.5")).isValid());

    QString text;
    QDebug(&text) << ZTArticleId(3) << ZTShippingGroupId(4);
    QCOMPARE(text, QStringLiteral("ZTArticleId(3) ZTShippingGroupId(4) "));
}

void tst_ZTProductIds::specialArticleFamilies_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("card");
    QTest::addColumn<bool>("advent");

    QTest::newRow("below cards") << 70999 << false << false;
    QTest::newRow("first card") << 71000 << true << false;
    QTest::newRow("last card") << 71099 << true << false;
    QTest::newRow("above cards") << 71100 << false << false;
    QTest::newRow("below advent") << 72399 << false << false;
    QTest::newRow("first advent") << 72400 << false << true;
    QTest::newRow("last advent") << 72499 << false << true;
    QTest::newRow("above advent") << 72500 << false << false;
    QTest::newRow("invalid") << -1 << false << false;
}

void tst_ZTProductIds::specialArticleFamilies()
{
    QFETCH(int, id);
    QFETCH(bool, card);
    QFETCH(bool, advent);
    QCOMPARE(ZTArticleId(id).isCardWithInsertedFoto(), card);
    QCOMPARE(ZTArticleId(id).isAdventCalendarWithDoorBackPrint(), advent);
}

void tst_ZTProductIds::shippingGroupIds_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("warns");

    QTest::newRow("group element") << "<group id=\"3\" name=\"Prints\"/>" << QString() << 3 << true << false;
    QTest::newRow("group zero") << "<group id=\"0\"/>" << QString() << 0 << true << false;
    QTest::newRow("group without id") << "<group name=\"x\"/>" << QString() << -1 << false << false;
    QTest::newRow("article's group") << "<article id=\"9\" group=\"12\"/>"
                                     << "group" << 12 << true << false;
    QTest::newRow("garbage") << "<article group=\"twelve\"/>"
                             << "group" << -1 << false << true;
    QTest::newRow("negative") << "<article group=\"-1\"/>"
                              << "group" << -1 << false << false;
}

void tst_ZTProductIds::shippingGroupIds()
{
    QFETCH(QString, xml);
    QFETCH(QString, attribute);
    QFETCH(int, id);
    QFETCH(bool, valid);
    QFETCH(bool, warns);

    const QDomElement element = parse(xml);
    if (warns)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Invalid shipping group id ")));
    else
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    const ZTShippingGroupId groupId =
        attribute.isEmpty() ? ZTShippingGroupId(element) : ZTShippingGroupId(element, attribute);
    QCOMPARE(groupId.id(), id);
    QCOMPARE(groupId.isValid(), valid);

    const ZTShippingGroupId fromText = ZTShippingGroupId::createFrom(
        element.attribute(attribute.isEmpty() ? QStringLiteral("id") : attribute));
    QCOMPARE(fromText, groupId);
}

void tst_ZTProductIds::idsAsKeys()
{
    QSet<ZTArticleId> articles{ZTArticleId(5), ZTArticleId(5), ZTArticleId(6)};
    QCOMPARE(articles.size(), 2);
    QVERIFY(ZTArticleId(5) < ZTArticleId(6));

    QMap<ZTShippingGroupId, QString> groups;
    groups.insert(ZTShippingGroupId(30), QStringLiteral("c"));
    groups.insert(ZTShippingGroupId(10), QStringLiteral("a"));
    groups.insert(ZTShippingGroupId(20), QStringLiteral("b"));
    QCOMPARE(groups.keys(),
             (QList<ZTShippingGroupId>{ZTShippingGroupId(10), ZTShippingGroupId(20), ZTShippingGroupId(30)}));
    QVERIFY(ZTShippingGroupId(1) != ZTShippingGroupId(2));
    QCOMPARE(QSet<ZTShippingGroupId>({ZTShippingGroupId(1), ZTShippingGroupId(1)}).size(), 1);

    const ZTShippingGroupIdList list(groups.keys());
    QCOMPARE(list.size(), 3);
    QCOMPARE(list.first(), ZTShippingGroupId(10));
}

void tst_ZTProductIds::productTypeAndPriceClass()
{
    QVERIFY(!ZTProductType().isValid());
    QVERIFY(!ZTProductType(QStringLiteral("  ")).isValid());
    const ZTProductType type(QStringLiteral(" PHOTOBOOK_A4 "));
    QVERIFY(type.isValid());
    QCOMPARE(type.orderTxtName(), QStringLiteral("PHOTOBOOK_A4"));
    QCOMPARE(type, ZTProductType(QStringLiteral("PHOTOBOOK_A4")));
    QVERIFY(type != ZTProductType(QStringLiteral("photobook_a4")));
    QCOMPARE(type.calcHashValue(), ZTProductType(QStringLiteral("PHOTOBOOK_A4")).calcHashValue());
    QCOMPARE(QSet<ZTProductType>({type, ZTProductType(QStringLiteral("PHOTOBOOK_A4"))}).size(), 1);

    QVERIFY(!ZTPriceClass().isValid());
    QCOMPARE(ZTPriceClass::create(QString()), ZTPriceClass());
    const ZTPriceClass glass = ZTPriceClass::create(QStringLiteral(" FRAME_GLASS "));
    QVERIFY(glass.isValid());
    QCOMPARE(glass.toString(), QStringLiteral("FRAME_GLASS"));
    QVERIFY(glass != ZTPriceClass::create(QStringLiteral("frame_glass")));
}

void tst_ZTProductIds::priceClassFamilies()
{
    // The add-on rules ask the families in a fixed order; a class in two families would be
    // classed by whichever comes first, so the families must not overlap.
    const QList<const ZTPriceClassSet*> families{&ZTPriceClassSet::frameGlasses(),
                                                 &ZTPriceClassSet::spotColorAll(),
                                                 &ZTPriceClassSet::bookGiftBoxes(),
                                                 &ZTPriceClassSet::calendarStrips(),
                                                 &ZTPriceClassSet::bookGiftService(),
                                                 &ZTPriceClassSet::calendarGiftBoxes(),
                                                 &ZTPriceClassSet::framePassepartout(),
                                                 &ZTPriceClassSet::designPriceClasses(),
                                                 &ZTPriceClassSet::posterWoodenStrips(),
                                                 &ZTPriceClassSet::calendarGiftService(),
                                                 &ZTPriceClassSet::mattCoverPriceClasses(),
                                                 &ZTPriceClassSet::linenCoverPriceClasses(),
                                                 &ZTPriceClassSet::wallholderPriceClasses(),
                                                 &ZTPriceClassSet::artPrintBoxPriceClasses(),
                                                 &ZTPriceClassSet::bookPanoPagesPriceClasses(),
                                                 &ZTPriceClassSet::calendarStandPriceClasses(),
                                                 &ZTPriceClassSet::memorabiliaPocketPriceClass(),
                                                 &ZTPriceClassSet::flyleafAndInsideCoverPriceClasses(),
                                                 &ZTPriceClassSet::maps(),
                                                 &ZTPriceClassSet::envelops()};
    QSet<ZTPriceClass> seen;
    for (const ZTPriceClassSet* family : families) {
        QVERIFY(!family->isEmpty());
        for (const ZTPriceClass& priceClass : *family) {
            QVERIFY2(priceClass.isValid(), "empty keyword in a family");
            QVERIFY2(!seen.contains(priceClass), qPrintable(priceClass.toString()));
            seen.insert(priceClass);
        }
    }
    QCOMPARE(ZTPriceClassSet::framePassepartout().size(), 1);
    QVERIFY(ZTPriceClassSet::frameGlasses().contains(ZTPriceClass::create(QStringLiteral("FRAME_GLASS"))));
    QVERIFY(!ZTPriceClassSet::frameGlasses().contains(ZTPriceClass()));
}

QTEST_GUILESS_MAIN(tst_ZTProductIds)
#include "tst_ZTProductIds.moc"
