#include "ZTAPMDataBase.h"
#include "ZTAPMShippingGroup.h"
#include "ZTAPMShippingGroupManager.h"
#include "ZTArticleClass.h"

#include <QDomDocument>
#include <QTest>

namespace {

QDomElement groups(const QString& theGroups)
{
    static QList<QDomDocument> theDocuments;
    QDomDocument document;
    document.setContent(QStringLiteral("<groups>%1</groups>").arg(theGroups));
    theDocuments.append(document);
    return document.documentElement();
}

ZTAPMShippingGroupManager* manager()
{
    return ZTSingleton<ZTAPMShippingGroupManager>::instance();
}

QList<int> ids(const QList<ZTAPMShippingGroup>& theGroups)
{
    QList<int> result;
    for (const ZTAPMShippingGroup& group : theGroups)
        result.append(group.id().id());
    return result;
}

QList<int> ids(const ZTShippingGroupIdList& theIds)
{
    QList<int> result;
    for (const ZTShippingGroupId& id : theIds)
        result.append(id.id());
    return result;
}

} // namespace

// The shipping groups of the ordering details (the demo catalogue decides which are active).
class TestShippingGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void group_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("transferModel");
        QTest::addColumn<QList<int>>("papers");
        QTest::addColumn<int>("defaultPaper");
        QTest::addColumn<QDateTime>("prices");

        const QDateTime fallback(QDate(1970, 5, 26), QTime(9, 30));
        QTest::newRow("defaults: the class's usual paper, the fixed stamp")
            << "<group id=\"16\"/>" << 16 << QString() << -1 << QList<int>{ZTFotoPaperTypeGlossy}
            << int(ZTFotoPaperTypeGlossy) << fallback;
        QTest::newRow("all attributes")
            << "<group id=\"1\" name=\"Bücher\" transfer_model=\"2\" "
               "prices_last_change=\"2026-11-02T08:00:00\" "
               "paper_type=\"satin,matt\"/>"
            << 1 << "Bücher" << 2 << QList<int>{ZTFotoPaperTypeSatin, ZTFotoPaperTypeMatt}
            << int(ZTFotoPaperTypeMatt) << QDateTime(QDate(2026, 11, 2), QTime(8, 0));
        QTest::newRow("neither paper the class's usual one: the first")
            << "<group id=\"16\" paper_type=\"pearl,satin\" transfer_model=\"7\" "
               "prices_last_change=\"soon\"/>"
            << 16 << QString() << -1 << QList<int>{ZTFotoPaperTypePearl, ZTFotoPaperTypeSatin}
            << int(ZTFotoPaperTypePearl) << fallback;
        QTest::newRow("no id: invalid, and nameless whatever it says")
            << "<group name=\"Poster\"/>" << -1 << QString() << -1 << QList<int>{ZTFotoPaperTypeMatt}
            << int(ZTFotoPaperTypeMatt) << fallback;
    }
    void group()
    {
        QFETCH(QString, xml);
        QFETCH(int, id);
        QFETCH(QString, name);
        QFETCH(int, transferModel);
        QFETCH(QList<int>, papers);
        QFETCH(int, defaultPaper);
        QFETCH(QDateTime, prices);

        const ZTAPMShippingGroup group(groups(xml).firstChildElement(), 4);
        QCOMPARE(group.id().id(), id);
        QCOMPARE(group.name(), name);
        QCOMPARE(int(group.transferModel().value()), transferModel);
        QList<int> parsed;
        for (const ZTFotoPaperType& paper : group.fotoPaperTypes())
            parsed.append(paper.value());
        QCOMPARE(parsed, papers);
        QCOMPARE(int(group.defaultFotoPaperType().value()), defaultPaper);
        QCOMPARE(group.lastChange(ZTKeyAccountDataType(ZTKeyAccountDataTypePrices)), prices);
        QVERIFY(!group.lastChange(ZTKeyAccountDataType(ZTKeyAccountDataTypeNone)).isValid());
        QCOMPARE(group.priceListTabPosition(), 4);
        QCOMPARE(group, ZTAPMShippingGroup(groups(xml).firstChildElement(), 4));
        QVERIFY(group != ZTAPMShippingGroup(groups(xml).firstChildElement(), 5));
    }

    void notAGroup()
    {
        QTest::ignoreMessage(QtWarningMsg, "Tag name is not group");
        const ZTAPMShippingGroup group(groups(QStringLiteral("<grp id=\"1\"/>")).firstChildElement(), 0);
        QVERIFY(!group.isValid());
        QVERIFY(group.fotoPaperTypes().isEmpty());
        QCOMPARE(group.defaultFotoPaperType(), ZTFotoPaperType());
    }

    void registry_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QList<int>>("byId");
        QTest::addColumn<QList<int>>("active");
        QTest::addColumn<QList<int>>("priceList");
        QTest::addColumn<QList<int>>("positions");

        // Groups 1, 3 and 16 have articles in the demo catalogue; 14 has none.
        QTest::newRow("price-list order differs from id order")
            << "<group id=\"16\" name=\"P\"/><group id=\"1\" name=\"B\"/><group id=\"3\" name=\"W\"/>"
            << QList<int>{1, 3, 16} << QList<int>{1, 3, 16} << QList<int>{16, 1, 3} << QList<int>{1, 2, 0};
        QTest::newRow("nameless, without articles, invalid: stored, not active")
            << "<group id=\"3\"/><group id=\"14\" name=\"D\"/><group name=\"X\"/><group id=\"1\" name=\"B\"/>"
            << QList<int>{-1, 1, 3, 14} << QList<int>{1} << QList<int>{1} << QList<int>{2, 3, 0, 1};
        QTest::newRow("a later group of an id replaces the earlier one, position and all")
            << "<group id=\"1\" name=\"Alt\"/><group id=\"3\" name=\"W\"/><group id=\"1\" name=\"B\"/>"
            << QList<int>{1, 3} << QList<int>{1, 3} << QList<int>{3, 1} << QList<int>{2, 1};
        QTest::newRow("empty") << QString() << QList<int>() << QList<int>() << QList<int>() << QList<int>();
    }
    void registry()
    {
        QFETCH(QString, xml);
        QFETCH(QList<int>, byId);
        QFETCH(QList<int>, active);
        QFETCH(QList<int>, priceList);
        QFETCH(QList<int>, positions);

        manager()->update(groups(xml));
        QCOMPARE(ids(manager()->shippingGroupIDs()), byId);
        QCOMPARE(ids(manager()->shippingGroups()), byId);
        QCOMPARE(ids(manager()->activeShippingGroups()), active);
        QCOMPARE(ids(manager()->sortedShippingGroups()), priceList);
        QList<int> tabs;
        for (int id : byId) {
            QVERIFY(manager()->hasShippingGroup(ZTShippingGroupId(id)));
            tabs.append(manager()->priceListTabPosition(ZTShippingGroupId(id)));
        }
        QCOMPARE(tabs, positions);
        QVERIFY(!manager()->hasShippingGroup(ZTShippingGroupId(99)));
        QCOMPARE(manager()->shippingGroup(ZTShippingGroupId(99)).priceListTabPosition(), -1);
        QCOMPARE(manager()->defaultFotoPaperType(ZTShippingGroupId(99)), ZTFotoPaperType());
        QCOMPARE(manager()->lastChange(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts)).isValid(),
                 !byId.isEmpty());
    }

    void sortIdsAndStamps()
    {
        manager()->update(groups(
            QStringLiteral("<group id=\"30\" name=\"C\" products_last_change=\"2026-01-01T00:00:00\"/>"
                           "<group id=\"10\" name=\"A\" products_last_change=\"2026-03-01T00:00:00\"/>"
                           "<group id=\"20\" name=\"B\" brand_policy=\"true\" max_order_items=\"7\"/>")));
        // Unknown ids first, in their given order; then price-list order.
        QCOMPARE(ids(manager()->sortShippingGroupIds({ZTShippingGroupId(20), ZTShippingGroupId(5),
                                                      ZTShippingGroupId(30), ZTShippingGroupId(10),
                                                      ZTShippingGroupId(4)})),
                 (QList<int>{5, 4, 30, 10, 20}));
        QCOMPARE(manager()->lastChange(ZTKeyAccountDataType(ZTKeyAccountDataTypeProducts)),
                 QDateTime(QDate(2026, 3, 1), QTime(0, 0)));
        QCOMPARE(manager()->shippingGroupName(ZTShippingGroupId(10)), QStringLiteral("A"));
        QVERIFY(manager()->isBrand(ZTShippingGroupId(20)));
        QCOMPARE(manager()->maxOrderItems(ZTShippingGroupId(20)), 7);
        QCOMPARE(manager()->fotoPaperTypes(ZTArticleClass::createFromShippingGroupId(ZTShippingGroupId(10))),
                 manager()->fotoPaperTypes(ZTShippingGroupId(10)));

        // A handle held across an update keeps its group.
        const ZTAPMShippingGroup held = manager()->shippingGroup(ZTShippingGroupId(10));
        manager()->update(groups(QString()));
        QCOMPARE(held.name(), QStringLiteral("A"));
        QVERIFY(!manager()->hasShippingGroup(ZTShippingGroupId(10)));
    }
};

QTEST_GUILESS_MAIN(TestShippingGroups)
#include "tst_ZTAPMShippingGroups.moc"
