#include "ZTAPMPriceKey.h"
#include "ZTOCRBillPositionList.h"
#include "ZTProgramConfig.h"
#include "ZTXMLOrderedElement.h"

#include <QDomDocument>
#include <QTest>

// Positions and parts of the server's order calculation, with the claims that the client's
// order takes from them. The catalogue is tests/data/result.
class tst_ZTOCRBillPositions : public QObject
{
    Q_OBJECT

private:
    static QDomElement parse(const QString& theXml)
    {
        QDomDocument document;
        document.setContent(theXml);
        return document.documentElement();
    }

    static ZTOCRBillPosition position(const QString& theXml) { return ZTOCRBillPosition(parse(theXml)); }

    // "article:quantity:id" for each part, so that a list reads as one line.
    static QString describe(const ZTOCRBillPositionPartList& theParts)
    {
        QStringList parts;
        for (const ZTOCRBillPositionPart& part : theParts)
            parts.append(QStringLiteral("%1:%2:%3")
                             .arg(part.articleId().id())
                             .arg(part.quantity())
                             .arg(part.orderPartId()));
        return parts.join(QLatin1Char(' '));
    }

    static ZTOCRBillPositionPartList parts(const QString& theDescription)
    {
        ZTOCRBillPositionPartList result;
        for (const QString& part : theDescription.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QStringList fields = part.split(QLatin1Char(':'));
            result.append(ZTOCRBillPositionPart(
                parse(QStringLiteral("<part article_id='%1' quantity='%2' order_part_id='%3' price='100'/>")
                          .arg(fields.at(0), fields.at(1), fields.at(2)))));
        }
        return result;
    }

private Q_SLOTS:
    void initTestCase()
    {
        ZTProgramConfig::instance()->setKeyAccountDirectory(QStringLiteral(ZT_TEST_DATA_DIR "/result"));
    }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void read_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("fields");

        QTest::newRow("nothing") << "<orderposition/>"
                                 << "invalid pos=-1 article=-1 quantity=0 fotos=0/0/0 price=0 sub=0 total=-1 "
                                    "model=0/0 transfer=-1/-1 parts=";
        QTest::newRow("all, with a part")
            << "<orderposition pos='3' article_id='1001' quantity='3' number_of_photos='0' "
               "max_number_of_photos='50' "
               "price='1999' total_price='5997' discount_type='w' discount_level='2' "
               "transfer_base_price='495' "
               "transfer_unit_price='10'><parts><part order_part_id='8' article_id='7003' quantity='2' "
               "price='100'/></parts></orderposition>"
            << "valid pos=3 article=1001 quantity=3 fotos=3/5/50 price=1999 sub=2199 total=6597 model=1024/2 "
               "transfer=495/10 parts=7003:2:8";
        QTest::newRow("photos per piece")
            << "<orderposition pos='0' article_id='3001' quantity='4' number_of_photos='36' "
               "discount_type='U'/>"
            << "valid pos=0 article=3001 quantity=4 fotos=144/144/0 price=0 sub=0 total=-1 model=512/0 "
               "transfer=-1/-1 parts=";
        QTest::newRow("bad numbers take the defaults")
            << "<orderposition pos='x' article_id='3001' quantity='2.5' price='' total_price='n' "
               "transfer_base_price='1e3' discount_level='-'><parts><part quantity='q' price='p'/></parts>"
               "</orderposition>"
            << "invalid pos=-1 article=3001 quantity=0 fotos=0/0/0 price=0 sub=0 total=-1 model=0/0 "
               "transfer=-1/-1 parts=-1:0:-1";
        QTest::newRow("parts outside \"parts\" are not read")
            << "<orderposition pos='1' quantity='1'><part order_part_id='1' "
               "quantity='1'/><parts/></orderposition>"
            << "valid pos=1 article=-1 quantity=1 fotos=1/1/0 price=0 sub=0 total=-1 model=0/0 "
               "transfer=-1/-1 parts=";
    }

    void read()
    {
        QFETCH(QString, xml);
        QFETCH(QString, fields);
        const ZTOCRBillPosition p = position(xml);
        const QString read =
            QStringLiteral(
                "%1 pos=%2 article=%3 quantity=%4 fotos=%5/%6/%7 price=%8 sub=%9 total=%10 model=%11/%12 "
                "transfer=%13/%14 parts=%15")
                .arg(p.isValid() ? "valid" : "invalid")
                .arg(p.orderPositionId())
                .arg(p.articleId().id())
                .arg(p.quantity())
                .arg(p.numberOfFotos())
                .arg(p.totalNumberOfFotos())
                .arg(p.maxNumberOfFotos())
                .arg(p.price().value())
                .arg(p.subTotalPrice().value())
                .arg(p.totalPrice().value())
                .arg(int(p.discountModel().value()))
                .arg(p.discountLevel())
                .arg(p.transferBasePrice().value())
                .arg(p.transferUnitPrice().value())
                .arg(describe(p.orderParts()));
        QCOMPARE(read, fields);
        QCOMPARE(p.isFotopack(), p.discountModel() == ZTDiscountModelPackage);
        QCOMPARE(p.isFotoBasePackage(), p.discountModel() == ZTDiscountModelFotoPackage);
        QCOMPARE(p.hashValue(), qint64(p.articleId().id()));
    }

    // A claim through one copy is a claim on every copy: the bill hands out copies, the order
    // claims through them.
    void claimsAreShared()
    {
        const ZTOCRBillPosition original =
            position("<orderposition pos='1' article_id='1001' quantity='3'><parts>"
                     "<part order_part_id='1' article_id='7003' quantity='1' price='100'/>"
                     "<part order_part_id='2' article_id='7003' quantity='2' price='100'/>"
                     "</parts></orderposition>");
        const ZTOCRBillPositionList bill{original};
        const ZTOCRBillPosition handedOut = bill.sorted().first();
        const ZTOCRBillPosition readAgain = position(
            "<orderposition pos='1' article_id='1001' quantity='3'><parts>"
            "<part order_part_id='1' article_id='7003' quantity='1' price='100'/></parts></orderposition>");
        QCOMPARE(readAgain, original);

        handedOut.reduceFreeQuantity(2);
        QCOMPARE(original.freeQuantity(), 1);
        QCOMPARE(bill.first().freeQuantity(), 1);
        QCOMPARE(readAgain.freeQuantity(), 3);
        QVERIFY(readAgain != original);
        handedOut.reduceFreeQuantity(2);
        QCOMPARE(original.freeQuantity(), -1);

        // A part is claimed by writing its price into the order's item.
        QDomDocument document;
        QDomElement item = document.createElement(QStringLiteral("item"));
        handedOut.orderPartByArticleId(ZTArticleId(7003)).buildPriceInformation(item, 1);
        QCOMPARE(item.attribute(QStringLiteral("price")), QStringLiteral("100"));
        QCOMPARE(item.attribute(QStringLiteral("article_id")), QStringLiteral("7003"));
        QCOMPARE(original.orderParts().first().freeQuantity(), 0);

        // The used-up part is passed over, but the list's own lookup still finds it.
        QCOMPARE(original.orderPartByArticleId(ZTArticleId(7003)).orderPartId(), 2);
        QCOMPARE(original.orderParts().orderPart(ZTArticleId(7003)).orderPartId(), 1);
        ZTXMLOrderedElement ordered(QStringLiteral("item"));
        original.orderPartByArticleId(ZTArticleId(7003)).buildPriceInformation(ordered, 2);
        QCOMPARE(ordered.toString(), QStringLiteral("<item price=\"100\" article_id=\"7003\"/>"));
        QVERIFY(!original.orderPartByArticleId(ZTArticleId(7003)).isValid());
        QVERIFY(!original.orderPartByArticleId(ZTArticleId(7001)).isValid());

        bill.first().initForXTCI();
        QCOMPARE(handedOut.freeQuantity(), 3);
        QCOMPARE(original.orderPartByArticleId(ZTArticleId(7003)).orderPartId(), 1);
        QCOMPARE(original.orderParts().last().freeQuantity(), 2);

        // Setting a quantity is the one change that detaches a part.
        ZTOCRBillPositionPart changed = original.orderParts().first();
        changed.setQuantity(5);
        QVERIFY(changed != original.orderParts().first());
        changed.buildPriceInformation(item, 1);
        QCOMPARE(original.orderParts().first().freeQuantity(), 1);
    }

    void unified_data()
    {
        QTest::addColumn<QString>("parts");
        QTest::addColumn<QString>("unified");
        QTest::newRow("merged where the later one stood") << "1:2:1 2:1:2 1:3:3"
                                                          << "2:1:2 1:5:3";
        QTest::newRow("distinct") << "1:2:1 2:1:2"
                                  << "1:2:1 2:1:2";
        QTest::newRow("three of one") << "1:1:1 1:2:2 1:3:3"
                                      << "1:6:3";
        QTest::newRow("alternating") << "1:1:1 2:1:2 1:2:3 2:2:4"
                                     << "1:3:3 2:3:4";
        QTest::newRow("without ids") << "1:1:-1 1:1:-1"
                                     << "1:2:-1";
        QTest::newRow("empty") << ""
                               << "";
    }

    void unified()
    {
        QFETCH(QString, parts);
        QFETCH(QString, unified);
        const ZTOCRBillPositionPartList list = tst_ZTOCRBillPositions::parts(parts);
        QCOMPARE(describe(list.unified()), unified);
        QCOMPARE(describe(list), parts);
    }

    void replace()
    {
        ZTOCRBillPositionPartList list = parts("1:1:1 2:1:2 1:2:3");
        QVERIFY(list.replace(ZTArticleId(1), parts("1:9:9").first()));
        QCOMPARE(describe(list), QStringLiteral("2:1:2 1:9:9"));
        QVERIFY(list.replace(ZTArticleId(3), parts("3:1:4").first()));
        QCOMPARE(describe(list), QStringLiteral("2:1:2 1:9:9 3:1:4"));
        QCOMPARE(list.orderPart(ZTArticleId(4)), ZTOCRBillPositionPart());
    }

    void order_data()
    {
        QTest::addColumn<QString>("positions");
        QTest::addColumn<QString>("sorted");
        // Unknown articles have no name and sort first, by position id.
        QTest::newRow("names, numbers in names, ids") << "1001:1 3002:2 42:7 3001:4 43:2 3001:3"
                                                      << "43:2 42:7 3001:3 3001:4 3002:2 1001:1";
        QTest::newRow("sorted already") << "3001:1 3002:2"
                                        << "3001:1 3002:2";
    }

    void order()
    {
        QFETCH(QString, positions);
        QFETCH(QString, sorted);
        ZTOCRBillPositionList list;
        for (const QString& text : positions.split(QLatin1Char(' '))) {
            const QStringList fields = text.split(QLatin1Char(':'));
            list.append(position(QStringLiteral("<orderposition article_id='%1' pos='%2' price='%2'/>")
                                     .arg(fields.at(0), fields.at(1))));
        }
        QStringList order;
        for (const ZTOCRBillPosition& p : list.sorted())
            order.append(QStringLiteral("%1:%2").arg(p.articleId().id()).arg(p.orderPositionId()));
        QCOMPARE(order.join(QLatin1Char(' ')), sorted);
    }

    void catalogue()
    {
        const ZTOCRBillPosition book =
            position("<orderposition pos='1' article_id='1001' quantity='2' price='2999'><parts>"
                     "<part order_part_id='1' article_id='7003' quantity='3'/>"
                     "<part order_part_id='2' article_id='7001' quantity='1'/>"
                     "<part order_part_id='3' article_id='7003' quantity='2'/></parts></orderposition>");
        QCOMPARE(book.countPages(), 24 + 2 * 5);
        QCOMPARE(book.shippingGroupId(), ZTShippingGroupId(1));
        QVERIFY(!book.articleClass().isNull());
        QVERIFY(book.findProduct());
        book.checkIntegrityPostOrder();

        const ZTOCRBillPosition print = position("<orderposition pos='2' article_id='3001' price='19'/>");
        QCOMPARE(print.countPages(), 0);
        const ZTOCRBillPosition unknown = position("<orderposition pos='3' article_id='42' price='5'/>");
        QCOMPARE(unknown.countPages(), 0);
        QCOMPARE(unknown.findProduct(), nullptr);
        QVERIFY(!unknown.shippingGroupId().isValid());
        QVERIFY(unknown.articleClass().isNull());
        QCOMPARE(unknown.nonOfferPrice(ZTAPMPriceKey()), ZTMoney(0));
        QCOMPARE(ZTOCRBillPositionPart().nonOfferPrice(ZTAPMPriceKey()), ZTMoney(0));

        // The price fields only, parts and quantities left aside.
        const ZTOCRBillPositionList list{book, print, unknown};
        QCOMPARE(list.subTotal(), ZTMoney(2999 + 19 + 5));
        QCOMPARE(list.filter(ZTShippingGroupId(16)), ZTOCRBillPositionList{print});
        QCOMPARE(list.filter(ZTShippingGroupId()), ZTOCRBillPositionList{unknown});
        QCOMPARE(ZTOCRBillPositionList().subTotal(), ZTMoney(0));
    }
};

QTEST_GUILESS_MAIN(tst_ZTOCRBillPositions)
#include "tst_ZTOCRBillPositions.moc"
