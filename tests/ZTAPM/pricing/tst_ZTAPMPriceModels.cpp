#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMBillPosition.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTAPMBillPositionList.h"

#include <QDomDocument>
#include <QFile>
#include <QHash>
#include <QTest>

// The price models: which model prices an article, the amount to the cent, and the positions a
// bill under construction receives.
class tst_ZTAPMPriceModels : public QObject
{
    Q_OBJECT

private:
    QHash<int, ZTAPMArticlePriceInfo> myInfos;

    static ZTOrderSource orderSource(const QString& theName)
    {
        if (theName == QLatin1String("pos"))
            return ZTOrderSource::onlinePointOfSale();
        if (theName == QLatin1String("cd"))
            return ZTOrderSource::cdPointOfSale();
        return ZTOrderSource::onlineMailOrder();
    }

    // "units x items @ unit price / non-offer price, model:level lower..upper", one per position.
    static QString listing(const ZTAPMBillPositionList& thePositions)
    {
        QStringList lines;
        for (const ZTAPMBillPositionAbstract* entry : thePositions) {
            if (dynamic_cast<const ZTAPMBillPositionInvalid*>(entry)) {
                lines.append(QStringLiteral("invalid"));
                continue;
            }
            const ZTDiscountLimit limit = entry->discountLimit();
            lines.append(QStringLiteral("%1x%2@%3/%4 %5:%6 %7..%8")
                             .arg(entry->unitCount())
                             .arg(entry->itemsPerUnit())
                             .arg(entry->unitPrice().value())
                             .arg(entry->nonOfferPrice().value())
                             .arg(int(limit.discountModel().value()))
                             .arg(limit.discountLevel())
                             .arg(limit.lowerLimit())
                             .arg(limit.upperLimit()));
        }
        return lines.join(QStringLiteral("; "));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(QStringLiteral(ZT_TEST_DATA_DIR "/models/prices.xml"));
        QDomDocument doc;
        QVERIFY(file.open(QIODevice::ReadOnly) && doc.setContent(&file));
        const QDomElement root = doc.documentElement();
        for (const QString& name : ZTAPMArticlePriceInfo::xtciNodeNames()) {
            const QDomElement section = root.firstChildElement(ZTAPMArticlePriceInfo::xtciSectionName(name));
            for (QDomElement node = section.firstChildElement(name); !node.isNull();
                 node = node.nextSiblingElement(name)) {
                const ZTAPMArticlePriceInfo info = ZTAPMArticlePriceInfo::createFromXTCI(node);
                myInfos.insert(info.articleId().id(), info);
            }
        }
    }

    void priceFor_data()
    {
        QTest::addColumn<QStringList>("request");
        QTest::addColumn<int>("amount");
        QTest::addColumn<QString>("positions");

        QFile file(QStringLiteral(ZT_TEST_DATA_DIR "/models/pricefor.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine()).trimmed();
            if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
                continue;
            const QStringList fields = line.split(QLatin1Char('|'));
            QCOMPARE(fields.size(), 4);
            QTest::newRow(qPrintable(fields.at(0).trimmed()))
                << fields.at(1).split(QLatin1Char(' '), Qt::SkipEmptyParts) << fields.at(2).trimmed().toInt()
                << fields.at(3).trimmed();
        }
    }

    // The amount is the same with and without a bill; only the bill receives positions.
    void priceFor()
    {
        QFETCH(QStringList, request);
        QFETCH(int, amount);
        QFETCH(QString, positions);

        QCOMPARE(request.size(), 5);
        QVERIFY(myInfos.contains(request.at(0).toInt()));
        const ZTAPMArticlePriceInfo& info = myInfos[request.at(0).toInt()];
        const ZTAPMPriceKey key(orderSource(request.at(1)), -1, ZTDiscountModelEnum(request.at(2).toInt()));
        const int count = request.at(3).toInt();
        const int billingSum = request.at(4).toInt();
        QCOMPARE(info.priceFor(key, count, ZTMoney(billingSum), nullptr, nullptr), ZTMoney(amount));

        ZTAPMBillPositionList bill;
        QCOMPARE(info.priceFor(key, count, ZTMoney(billingSum), &bill, nullptr), ZTMoney(amount));
        QCOMPARE(listing(bill), positions);
        qDeleteAll(bill);
    }

    void explainPrice_data()
    {
        QTest::addColumn<int>("article");
        QTest::addColumn<int>("keyModel");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<int>("amount");
        QTest::addColumn<QString>("candidates");

        QTest::newRow("flat beats bulk total") << 90002 << 0 << 2 << 16 << 100 << "2=1000 16=100";
        QTest::newRow("express fee: only x") << 90006 << 128 << 12 << 128 << 1490 << "128=1490";
        QTest::newRow("express fee without x rows") << 90001 << 128 << 1 << 0 << -1 << "";
        QTest::newRow("basket-wide transfer") << 90011 << 0 << 3 << 64 << 0 << "16=0";
        QTest::newRow("nothing prices") << 90013 << 0 << 1 << 0 << -1 << "1=-1";
        QTest::newRow("inherited level 0 without a bill") << 90007 << 0 << 3 << 256 << 450 << "256=450";
    }

    // The explanation answers what priceFor answers, and names the model that gave it.
    void explainPrice()
    {
        QFETCH(int, article);
        QFETCH(int, keyModel);
        QFETCH(int, count);
        QFETCH(int, chosen);
        QFETCH(int, amount);
        QFETCH(QString, candidates);

        const ZTAPMArticlePriceInfo& info = myInfos[article];
        const ZTAPMPriceKey key(ZTOrderSource::onlineMailOrder(), 0, ZTDiscountModelEnum(keyModel));
        const ZTAPMPriceExplanation explanation = info.explainPrice(key, count, ZTMoney(0), nullptr);
        QCOMPARE(explanation.amount(), info.priceFor(key, count, ZTMoney(0), nullptr, nullptr));
        QCOMPARE(explanation.amount(), ZTMoney(amount));
        QCOMPARE(int(explanation.chosenModel().value()), chosen);
        QStringList texts;
        for (const ZTAPMPriceExplanation::Candidate& candidate : explanation.candidates())
            texts.append(
                QStringLiteral("%1=%2").arg(int(candidate.first.value())).arg(candidate.second.value()));
        QCOMPARE(texts.join(QLatin1Char(' ')), candidates);
    }

    void ladder()
    {
        // By model value, then level; other order sources left out.
        QStringList rows;
        for (const ZTAPMPriceValue& value : myInfos[90003].ladder(ZTOrderSource::onlineMailOrder()))
            rows.append(
                QStringLiteral("%1:%2").arg(int(value.discountModel().value())).arg(value.discountLevel()));
        QCOMPARE(rows.join(QLatin1Char(' ')), QStringLiteral("2:0 16:0 32:1"));
        QVERIFY(myInfos[90003].ladder(ZTOrderSource::cdPointOfSale()).isEmpty());
    }

    void modelTies_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("billingSum");
        QTest::addColumn<int>("model");
        QTest::addColumn<int>("amount");

        QTest::newRow("b and f tie: the lower model value") << "b:100 f:200" << 2 << 0 << 2 << 200;
        QTest::newRow("f cheaper than b") << "b:100 f:150" << 2 << 0 << 16 << 150;
        QTest::newRow("z and I both price: z") << "z:300 I:50" << 1 << 2000 << 32 << 300;
        QTest::newRow("I although dearer than b") << "b:100 I:500" << 1 << 0 << 256 << 500;
    }

    // Models are tried in ascending model value, so ties and the two overriding models come out
    // the same in every run; the bill is priced in the model reported.
    void modelTies()
    {
        QFETCH(QString, rows);
        QFETCH(int, count);
        QFETCH(int, billingSum);
        QFETCH(int, model);
        QFETCH(int, amount);

        // "z" rows start at a sum of 1000 at level 1; all others are level 0 rows from 1 piece.
        QString xml = QStringLiteral("<article id=\"91001\"><base_prices>");
        for (const QString& row : rows.split(QLatin1Char(' '))) {
            const QString type = row.section(QLatin1Char(':'), 0, 0);
            const bool sum = type == QLatin1String("z");
            xml += QStringLiteral("<price input_source=\"0\" delivery_type=\"1\" type=\"%1\" level=\"%2\" "
                                  "quantity=\"%3\" price=\"%4\"/>")
                       .arg(type, sum ? QStringLiteral("1") : QStringLiteral("0"),
                            sum ? QStringLiteral("1000") : QStringLiteral("1"),
                            row.section(QLatin1Char(':'), 1));
        }
        QDomDocument doc;
        QVERIFY(doc.setContent(xml + QStringLiteral("</base_prices></article>")));
        const ZTAPMArticlePriceInfo info = ZTAPMArticlePriceInfo::createFromXTCI(doc.documentElement());
        const ZTAPMPriceKey key(ZTOrderSource::onlineMailOrder());

        QCOMPARE(int(info.bestDiscountModel(key, count, ZTMoney(billingSum), 0).value()), model);
        const ZTAPMPriceExplanation explanation = info.explainPrice(key, count, ZTMoney(billingSum), nullptr);
        QCOMPARE(int(explanation.chosenModel().value()), model);
        QCOMPARE(explanation.amount(), ZTMoney(amount));
        ZTAPMBillPositionList bill;
        QCOMPARE(info.priceFor(key, count, ZTMoney(billingSum), &bill, nullptr), ZTMoney(amount));
        QCOMPARE(bill.size(), 1);
        QCOMPARE(int(bill.first()->discountModel().value()), model);
        qDeleteAll(bill);
    }

    void bestPriceCount_data()
    {
        QTest::addColumn<QString>("rows");
        QTest::addColumn<int>("count");

        // "type:level:from:price" rows of one order source.
        QTest::newRow("no rows") << "" << 0x7fffffff;
        QTest::newRow("cheaper step") << "b:0:1:100 b:1:10:90" << 10;
        QTest::newRow("equal steps: the first stays") << "b:0:1:100 b:1:10:100" << 1;
        QTest::newRow("equal photo package steps: the first stays") << "w:1:1:40 w:2:27:40" << 1;
        QTest::newRow("equal converted bulk step takes over") << "w:1:1:40 y:2:27:40" << 27;
        QTest::newRow("dearer converted bulk step") << "w:1:1:40 y:2:27:41" << 1;
    }

    void bestPriceCount()
    {
        QFETCH(QString, rows);
        QFETCH(int, count);

        QString xml = QStringLiteral("<article id=\"91002\"><base_prices>");
        for (const QString& row : rows.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QStringList fields = row.split(QLatin1Char(':'));
            xml += QStringLiteral("<price input_source=\"0\" delivery_type=\"1\" type=\"%1\" level=\"%2\" "
                                  "quantity=\"%3\" price=\"%4\"/>")
                       .arg(fields.at(0), fields.at(1), fields.at(2), fields.at(3));
        }
        QDomDocument doc;
        QVERIFY(doc.setContent(xml + QStringLiteral("</base_prices></article>")));
        const ZTAPMArticlePriceInfo info = ZTAPMArticlePriceInfo::createFromXTCI(doc.documentElement());
        QCOMPARE(info.bestPriceCount(ZTAPMPriceKey(ZTOrderSource::onlineMailOrder())), count);
    }

    void modelsOnTheirOwn()
    {
        const ZTAPMPriceKey mail(ZTOrderSource::onlineMailOrder());

        // An inherited level beyond the add-on's ladder falls to the nearest lower row.
        const ZTAPMArticlePriceInfo& addOn = myInfos[90007];
        ZTAPMBillPositionList list;
        ZTAPMPriceKey key(ZTOrderSource::onlineMailOrder(), 3, ZTDiscountModelInherited);
        QCOMPARE(addOn.priceInheritedDiscount(key, 2, &list), ZTMoney(200));
        key.setDiscountLevel(1);
        QCOMPARE(addOn.priceInheritedDiscount(key, 2, &list), ZTMoney(300));
        QCOMPARE(
            addOn.priceFor(ZTAPMPriceKey(ZTOrderSource::cdPointOfSale()), 1, ZTMoney(0), nullptr, nullptr),
            ZTMoney(-1));
        QCOMPARE(listing(list), QStringLiteral("2x1@100/-1 256:2 1..-1; 2x1@150/-1 256:0 1..-1"));
        qDeleteAll(list);
        list.clear();

        // "z" and "I" win whenever they price; otherwise the cheapest, and 0 if nothing prices.
        QCOMPARE(myInfos[90003].bestDiscountModel(mail, 1, ZTMoney(2500), 0),
                 ZTDiscountModel(ZTDiscountModelBillingSumTransfer));
        QCOMPARE(myInfos[90002].bestDiscountModel(mail, 1, ZTMoney(0), 0),
                 ZTDiscountModel(ZTDiscountModelBulkTransfer));
        QCOMPARE(addOn.bestDiscountModel(mail, 1, ZTMoney(0), 5), ZTDiscountModel(ZTDiscountModelInherited));
        QCOMPARE(myInfos[90013].bestDiscountModel(mail, 1, ZTMoney(0), 0), ZTDiscountModel());

        // Models called directly leave positions, even for a missing row.
        QCOMPARE(myInfos[90001].priceBulk(ZTAPMPriceKey(mail, ZTDiscountModelBulk), 12, &list),
                 ZTMoney(2988));
        QCOMPARE(myInfos[90001].priceBulkTransfer(mail, 1, &list), ZTMoney(-1));
        QCOMPARE(myInfos[90003].priceBillingSumTransfer(mail, ZTMoney(4999), &list), ZTMoney(495));
        QCOMPARE(myInfos[90009].priceFotoPackage(ZTAPMPriceKey(mail, ZTDiscountModelBulk), 30, &list),
                 ZTMoney(-1));
        QCOMPARE(listing(list),
                 QStringLiteral("12x1@249/-1 2:1 10..99; 1x1@-1/-1 0:0 1..-1; 1x1@495/-1 16:0 1..-1"));
        qDeleteAll(list);

        // The transfer price never makes positions and, over a basket, is the base half only.
        QCOMPARE(myInfos[90003].transferPriceFor(mail, 2, ZTMoney(6000), nullptr), ZTMoney(0));
        QCOMPARE(myInfos[90005].transferPriceFor(mail, 9, ZTMoney(0), nullptr), ZTMoney(995));
        QCOMPARE(myInfos[90011].transferPriceFor(mail, 9, ZTMoney(0), nullptr), ZTMoney(0));
    }

    void orderable()
    {
        QVERIFY(myInfos[90001].isOrderableThisWay(ZTOrderSource::onlineMailOrder()));
        QVERIFY(!myInfos[90001].isOrderableThisWay(ZTOrderSource::onlinePointOfSale()));
        QVERIFY(!myInfos[90001].canOrderPOS());
        QVERIFY(myInfos[90002].canOrderPOS());
        QVERIFY(!myInfos[90013].isOrderableThisWay(ZTOrderSource::onlineMailOrder()));
        // A flat fee of 0 pieces costs nothing, which is a price.
        QVERIFY(myInfos[90011].isOrderableThisWay(ZTOrderSource::cdPointOfSale()));
    }
};

QTEST_GUILESS_MAIN(tst_ZTAPMPriceModels)
#include "tst_ZTAPMPriceModels.moc"
