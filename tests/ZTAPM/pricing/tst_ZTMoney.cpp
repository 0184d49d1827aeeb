#include "ZTMoney.h"
#include "ZTOrderSource.h"
#include "ZTPriceBundle.h"

#include <QDataStream>
#include <QDomDocument>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

// Amounts, price bundles and the ways of ordering.
class tst_ZTMoney : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void sentinels_data()
    {
        QTest::addColumn<ZTMoney>("money");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<bool>("null");
        QTest::addColumn<bool>("hasPrice");
        QTest::newRow("default is unset, yet has a price") << ZTMoney() << false << false << true;
        QTest::newRow("no price") << ZTMoney(-1) << false << false << false;
        QTest::newRow("free") << ZTMoney(0) << true << true << false;
        QTest::newRow("one cent") << ZTMoney(1) << true << false << true;
        QTest::newRow("largest real amount") << ZTMoney(2147483646) << true << false << true;
    }
    void sentinels()
    {
        QFETCH(ZTMoney, money);
        QFETCH(bool, valid);
        QFETCH(bool, null);
        QFETCH(bool, hasPrice);
        QCOMPARE(money.isValid(), valid);
        QCOMPARE(money.isNull(), null);
        QCOMPARE(money.hasPrice(), hasPrice);
    }

    void arithmeticIsExactAndNeverSticky()
    {
        ZTMoney total(1999);
        total *= 3;
        total += ZTMoney(1);
        total -= ZTMoney(500);
        QCOMPARE(total.value(), 5498);
        ZTMoney failed(-1);
        failed *= 4;
        QCOMPARE(failed.value(), -4);
    }

    void readsAndWritesDocuments()
    {
        QDomDocument doc;
        QDomElement row = doc.createElement(QStringLiteral("price"));
        QCOMPARE(ZTMoney::fromXmlAttribute(row, -1).value(), -1);
        QCOMPARE(ZTMoney::fromXmlAttribute(row, QStringLiteral("transfer_unit_price"), 0).value(), 0);
        ZTMoney(2995).toXmlAttribute(row);
        ZTMoney(-15).toXmlAttribute(row, QStringLiteral("discount"));
        QCOMPARE(row.attribute(QStringLiteral("price")), QStringLiteral("2995"));
        QCOMPARE(ZTMoney::fromXmlAttribute(row, -1).value(), 2995);
        QCOMPARE(ZTMoney::fromXmlAttribute(row.attributes(), QStringLiteral("discount"), 0).value(), -15);
        QCOMPARE(ZTMoney::fromXmlAttribute(row.attributes(), 7).value(), 2995);

        QDomElement total = doc.createElement(QStringLiteral("total"));
        total.appendChild(doc.createTextNode(QStringLiteral("12345")));
        row.appendChild(total);
        QCOMPARE(ZTMoney::fromXmlTag(row, QStringLiteral("total"), 0).value(), 12345);
        QCOMPARE(ZTMoney::fromXmlTag(row, QStringLiteral("missing"), 3).value(), 3);

        QJsonObject json;
        ZTMoney(-1).toJSON(json);
        QCOMPARE(json.value(QStringLiteral("price")).toInt(), -1);
        QCOMPARE(ZTMoney(json).value(), -1);
        QCOMPARE(ZTMoney(QJsonObject()).value(), 0);

        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << ZTMoney(-250);
        QDataStream in(bytes);
        QString text;
        in >> text;
        QCOMPARE(text, QStringLiteral("-250"));
    }

    void bundlesSortBargainsFirst()
    {
        const ZTArticleId article(1001);
        const ZTPriceBundle offer(article, 100, 150, 1);
        const ZTPriceBundle plain(ZTArticleId(2001), 100, -1, 10);
        const ZTPriceBundle cheaper(article, 99, -1, 50);
        QVERIFY(offer < plain);
        QVERIFY(!(plain < offer));
        QVERIFY(cheaper < offer);
        QVERIFY(offer != ZTPriceBundle(article, 100, 150, 2));
    }

    void orderSources_data()
    {
        QTest::addColumn<QString>("inputSource");
        QTest::addColumn<QString>("deliveryType");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("logText");
        QTest::addColumn<QString>("settingsKey");
        QTest::addColumn<bool>("mailOrder");
        QTest::newRow("online point of sale") << "0"
                                              << "0" << true << "FC"
                                              << "0_0" << false;
        QTest::newRow("online mail order") << "0"
                                           << "1" << true << "FM"
                                           << "0_1" << true;
        QTest::newRow("CD point of sale") << " 1 "
                                          << "0" << true << "CC"
                                          << "1_0" << false;
        QTest::newRow("CD mail order") << "1"
                                       << "1" << false << "UNKNOWN"
                                       << "1_1" << true;
        QTest::newRow("no attributes") << QString() << QString() << false << "UNKNOWN"
                                       << "_" << false;
        QTest::newRow("unknown codes") << "2"
                                       << "x" << false << "UNKNOWN"
                                       << "_" << false;
    }
    void orderSources()
    {
        QFETCH(QString, inputSource);
        QFETCH(QString, deliveryType);
        QFETCH(bool, valid);
        QFETCH(QString, logText);
        QFETCH(QString, settingsKey);
        QFETCH(bool, mailOrder);
        QDomDocument doc;
        QDomElement element = doc.createElement(QStringLiteral("order_source"));
        if (!inputSource.isNull())
            element.setAttribute(QStringLiteral("input_source"), inputSource);
        if (!deliveryType.isNull())
            element.setAttribute(QStringLiteral("delivery_type"), deliveryType);
        const ZTOrderSource source(element);
        QCOMPARE(source.isValid(), valid);
        QCOMPARE(source.toLogString(), logText);
        QCOMPARE(source.toString(), settingsKey);
        QCOMPARE(source.isMailOrder(), mailOrder);
    }

    void orderSourceOrderAndLookup()
    {
        QCOMPARE(
            ZTOrderSource::orderSources(ZTInputSourceOnline),
            (QList<ZTOrderSource>{ZTOrderSource::onlinePointOfSale(), ZTOrderSource::onlineMailOrder()}));
        QCOMPARE(ZTOrderSource::orderSources(ZTInputSourceCD),
                 QList<ZTOrderSource>{ZTOrderSource::cdPointOfSale()});
        QVERIFY(ZTOrderSource::orderSources(ZTInputSourceInvalid).isEmpty());

        // The one list of all three, in map order, which every listing follows.
        const QList<ZTOrderSource> all = ZTOrderSource::all();
        QStringList logStrings;
        for (const ZTOrderSource& source : all)
            logStrings.append(source.toLogString());
        QCOMPARE(logStrings, QStringList({QStringLiteral("FC"), QStringLiteral("FM"), QStringLiteral("CC")}));
        QVERIFY(std::is_sorted(all.cbegin(), all.cend()));

        QList<ZTOrderSource> sources{ZTOrderSource::cdPointOfSale(), ZTOrderSource::onlineMailOrder(),
                                     ZTOrderSource::onlinePointOfSale()};
        std::sort(sources.begin(), sources.end());
        QCOMPARE(sources.first(), ZTOrderSource::onlinePointOfSale());
        QCOMPARE(sources.last(), ZTOrderSource::cdPointOfSale());

        QHash<ZTOrderSource, int> payments{{ZTOrderSource::onlinePointOfSale(), 4},
                                           {ZTOrderSource::onlineMailOrder(), 1},
                                           {ZTOrderSource::cdPointOfSale(), 5}};
        QCOMPARE(payments.value(ZTOrderSource(ZTInputSourceOnline, ZTDeliveryTypeMailOrder)), 1);
        QCOMPARE(payments.value(ZTOrderSource(ZTInputSourceCD, ZTDeliveryTypePointOfSale)), 5);
    }
};

QTEST_GUILESS_MAIN(tst_ZTMoney)
#include "tst_ZTMoney.moc"
