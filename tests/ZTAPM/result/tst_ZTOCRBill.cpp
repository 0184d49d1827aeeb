#include "ZTAPMDataBase.h"
#include "ZTAPMOrderStatistic.h"
#include "ZTOCRBill.h"
#include "ZTProgramConfig.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QProcess>
#include <QTest>

#include <cstdio>

namespace {

const char* const theKeyAccount = ZT_TEST_DATA_DIR "/ocr-declaration";

QDomElement parse(const QString& theXml)
{
    QDomDocument document;
    document.setContent(theXml);
    return document.documentElement();
}

// An "order" of group theGroup with theBody inside.
ZTOCRBill bill(const QString& theGroup, const QString& theBody)
{
    return ZTOCRBill(
        parse(QStringLiteral("<order><group_id>%1</group_id>%2</order>").arg(theGroup, theBody)));
}

QString position(int thePos, int theArticle, int theQuantity, const QString& theParts = QString())
{
    return QStringLiteral(
               "<orderposition pos='%1' article_id='%2' quantity='%3'><parts>%4</parts></orderposition>")
        .arg(thePos)
        .arg(theArticle)
        .arg(theQuantity)
        .arg(theParts);
}

QString part(int theArticle, int theQuantity)
{
    return QStringLiteral("<part order_part_id='1' article_id='%1' quantity='%2' price='100'/>")
        .arg(theArticle)
        .arg(theQuantity);
}

ZTAPMOrderStatistic statistic(const QList<QPair<int, int>>& theCounts)
{
    ZTAPMOrderStatistic result;
    for (const auto& count : theCounts)
        result.add(ZTArticleId(count.first), count.second);
    return result;
}

ZTProductAbstract* product(int theArticle)
{
    return ZTAPMDataBase::instance()->productAbstract(ZTArticleId(theArticle));
}

} // namespace

// One bill of the server's order calculation: reading, the claims of the client's order items
// on its positions, and the tax elements of its declaration.
class TestOCRBill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ZTProgramConfig::instance()->setKeyAccountDirectory(QString::fromUtf8(theKeyAccount));
    }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void read_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("expected");

        const QString wallArt = position(1, 5001, 1);
        const QString print = position(2, 3001, 1);
        QTest::newRow("group 0 spans the groups of its positions")
            << "0" << QString(print + wallArt + print)
            << "valid groups=3,16 positions=2,2,1 types= sub=0 taxes=";
        QTest::newRow("any other group stands for itself")
            << " 3 " << print << "valid groups=3 positions=2 types= sub=0 taxes=";
        QTest::newRow("no position") << "1"
                                     << ""
                                     << "invalid groups=1 positions= types= sub=0 taxes=";
        QTest::newRow("unreadable group")
            << "x" << print << "invalid groups=-1 positions=2 types= sub=0 taxes=";
        QTest::newRow("sales tax 0 is declared")
            << "1" << QString(print + "<bill_sum>500</bill_sum><sales_tax>0</sales_tax>")
            << "valid groups=1 positions=2 types= sub=500 taxes=<sales_tax price=\"0\"/>";
        QTest::newRow("both taxes leave the sub-total")
            << "1"
            << QString(print + "<bill_sum>500</bill_sum><provincial_sales_tax>7</provincial_sales_tax>"
                               "<sales_tax>40</sales_tax>")
            << "valid groups=1 positions=2 types= sub=453 taxes="
               "<sales_tax price=\"40\"/><provincial_sales_tax price=\"7\"/>";
        QTest::newRow("dates: by type value, unknown codes and dates dropped, the last one counts")
            << "1"
            << QString(print +
                       "<shipping_times><shipping_time express='3' min='2026-11-27T00:00:00'/>"
                       "<shipping_time express='7' min='2026-11-28T00:00:00'/><shipping_time express='0'/>"
                       "<shipping_time express='' min='2026-11-28T00:00:00'/>"
                       "<shipping_time express='0' min='2026-12-01T00:00:00'/>"
                       "<shipping_time express='3' min='2026-11-29T00:00:00'/></shipping_times>")
            << "valid groups=1 positions=2 types=1:2026-12-01,2:2026-11-29 sub=0 taxes=";
    }

    void read()
    {
        QFETCH(QString, group);
        QFETCH(QString, body);
        QFETCH(QString, expected);
        const ZTOCRBill b = bill(group, body);
        QStringList groups, positions, types;
        for (const ZTShippingGroupId& id : b.shippingGroupIds())
            groups.append(QString::number(id.id()));
        for (const ZTOCRBillPosition& p : b.positions())
            positions.append(QString::number(p.orderPositionId()));
        for (const ZTExpressType& type : b.possibleExpressTypes())
            types.append(QStringLiteral("%1:%2")
                             .arg(int(type.value()))
                             .arg(b.shippingDate(type).minDate().toString(Qt::ISODate)));
        ZTXMLOrderedElement taxes(QStringLiteral("t"));
        b.buildOrderDeclarationSalesTaxElement(taxes);
        QString declared;
        for (const ZTXMLOrderedElement& tax : taxes.children())
            declared += tax.toString();
        QCOMPARE(QStringLiteral("%1 groups=%2 positions=%3 types=%4 sub=%5 taxes=%6")
                     .arg(b.isValid() ? "valid" : "invalid", groups.join(','), positions.join(','),
                          types.join(','))
                     .arg(b.subTotalValue().value())
                     .arg(declared),
                 expected);

        // The DOM form writes the same elements.
        QDomDocument document;
        QDomElement parent = document.createElement(QStringLiteral("t"));
        b.buildOrderDeclarationSalesTaxElement(parent);
        QCOMPARE(parent.childNodes().size(), taxes.children().size());
        for (int i = 0; i < taxes.children().size(); ++i) {
            QCOMPARE(parent.childNodes().at(i).nodeName(), taxes.children().at(i).name());
            QCOMPARE(parent.childNodes().at(i).toElement().attribute("price"),
                     taxes.children().at(i).attribute("price"));
        }
    }

    void checkOrderedAddOns_data()
    {
        QTest::addColumn<QString>("parts");
        QTest::addColumn<int>("positionQuantity");
        QTest::addColumn<int>("addOnCount");
        QTest::addColumn<bool>("matches");

        // The item: 3 books and addOnCount page packages (7003); 0 means no add-on at all.
        QTest::newRow("part 2 at quantity 3 needs 6") << part(7003, 2) << 3 << 6 << true;
        QTest::newRow("5 are too few") << part(7003, 2) << 3 << 5 << false;
        QTest::newRow("no add-on, no part") << QString() << 3 << 0 << true;
        QTest::newRow("add-on without a part") << QString() << 3 << 6 << false;
        QTest::newRow("part without an add-on") << part(7003, 2) << 3 << 0 << false;
        QTest::newRow("two parts of one add-on add up") << part(7003, 1) + part(7003, 1) << 3 << 6 << true;
        QTest::newRow("a part of an unknown article") << part(42, 1) << 3 << 0 << false;
    }

    void checkOrderedAddOns()
    {
        QFETCH(QString, parts);
        QFETCH(int, positionQuantity);
        QFETCH(int, addOnCount);
        QFETCH(bool, matches);
        const ZTOCRBill b = bill("1", position(1, 1001, positionQuantity, parts));
        QList<QPair<int, int>> counts{{1001, 3}};
        if (addOnCount)
            counts.append({7003, addOnCount});
        const ZTAPMOrderStatistic item = statistic(counts);
        QCOMPARE(ZTOCRBill::checkOrderedAddOns(b.positions().first(), item, product(1001)), matches);
        QCOMPARE(b.positionByStatistic(item).isValid(), matches);
    }

    // The client's items claim quantity from the positions the bill hands out, and every copy
    // of the bill sees the claims.
    void claims()
    {
        const ZTOCRBill b =
            bill("1", position(1, 1001, 2) + position(2, 1001, 3, part(7003, 1)) + position(3, 1001, 4));
        const ZTOCRBill copy = b;
        const ZTAPMOrderStatistic twoBooks = statistic({{1001, 2}});

        // The first position without parts with room for 2 books.
        ZTOCRBillPosition taken = b.positionByStatistic(twoBooks);
        QCOMPARE(taken.orderPositionId(), 1);
        taken.reduceFreeQuantity(2);
        QCOMPARE(copy.positions().first().freeQuantity(), 0);
        QCOMPARE(copy.positionByStatistic(twoBooks).orderPositionId(), 3);
        QCOMPARE(copy.positionByArticleId(ZTArticleId(1001)).orderPositionId(), 2);
        b.positionByArticleId(ZTArticleId(1001)).reduceFreeQuantity(3);
        QCOMPARE(copy.positionByArticleId(ZTArticleId(1001)).orderPositionId(), 3);

        // Three books with one page package each need the position with the part.
        const ZTAPMOrderStatistic withPages = statistic({{1001, 3}, {7003, 3}});
        QVERIFY(!b.positionByStatistic(withPages).isValid());
        copy.initForXTCI();
        QCOMPARE(b.positionByStatistic(withPages).orderPositionId(), 2);
        QCOMPARE(b.positionByArticleId(ZTArticleId(1001)).orderPositionId(), 1);
        QVERIFY(!b.positionByArticleId(ZTArticleId(3001)).isValid());
    }

    // The one check that ends the process: an ordered article the catalogue does not know.
    void checkIntegrityPostOrder_data()
    {
        QTest::addColumn<int>("article");
        QTest::addColumn<bool>("fatal");
        QTest::newRow("known") << 1001 << false;
        QTest::newRow("unknown") << 42 << true;
    }

    void checkIntegrityPostOrder()
    {
        QFETCH(int, article);
        QFETCH(bool, fatal);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--check-integrity-post-order"), QString::number(article)});
        QVERIFY(child.waitForFinished(60000));
        QCOMPARE(child.exitStatus() == QProcess::CrashExit, fatal);
        QCOMPARE(child.readAllStandardError().contains("product not found"), fatal);
        QCOMPARE(child.readAllStandardOutput().contains("checked"), !fatal);
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--check-integrity-post-order") == 0) {
        ZTProgramConfig::instance()->setKeyAccountDirectory(QString::fromUtf8(theKeyAccount));
        bill("1", position(1, QString::fromLocal8Bit(argv[2]).toInt(), 1)).checkIntegrityPostOrder();
        std::puts("checked");
        return 0;
    }
    TestOCRBill test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ZTOCRBill.moc"
