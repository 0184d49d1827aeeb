#include "ZTAPMPriceValues.h"

#include <QDateTime>
#include <QDomDocument>
#include <QTest>

// Discount models, price keys, price values and the price table.
class tst_ZTAPMPriceKey : public QObject
{
    Q_OBJECT

private:
    static ZTOrderSource mailOrder() { return ZTOrderSource::onlineMailOrder(); }

    static ZTAPMPriceValue row(const QString& theAttributes)
    {
        QDomDocument doc;
        doc.setContent(
            QStringLiteral("<article><base_prices><price %1/></base_prices></article>").arg(theAttributes));
        return ZTAPMPriceValue(doc.documentElement().firstChildElement().firstChildElement());
    }

    static ZTAPMPriceKey keyOf(const ZTAPMPriceValue& theValue, const ZTOrderSource& theSource = mailOrder())
    {
        return ZTAPMPriceKey(theSource, theValue.discountLevel(), theValue.discountModel());
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void discountModelKeywords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("model");
        QTest::addColumn<bool>("package");
        QTest::newRow("bulk") << "b" << 2 << false;
        QTest::newRow("case and blanks ignored") << " B " << 2 << false;
        QTest::newRow("never priced is known") << "-" << 1 << false;
        QTest::newRow("package upper case") << "U" << 512 << true;
        QTest::newRow("package lower case") << "u" << 512 << false;
        QTest::newRow("any model") << "*" << 0 << false;
        QTest::newRow("missing attribute") << QString() << 0 << false;
    }
    void discountModelKeywords()
    {
        QFETCH(QString, text);
        QFETCH(int, model);
        QFETCH(bool, package);
        QDomDocument doc;
        QDomElement element = doc.createElement(QStringLiteral("position"));
        if (!text.isNull())
            element.setAttribute(QStringLiteral("discount_type"), text);
        bool isPackage = !package;
        QCOMPARE(int(ZTDiscountModel(element, &isPackage).value()), model);
        QCOMPARE(isPackage, package);
    }

    void unknownModelWarnsOnce()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^undecodable: \"q\"")));
        QVERIFY(ZTDiscountModel(QStringLiteral("q")).isNull());
        QCOMPARE(ZTDiscountModel(ZTDiscountModelBasketTransfer).encode(), QStringLiteral("unkown"));
        QVERIFY(ZTDiscountModel(ZTDiscountModelBasketTransfer).usesTransferArticle());
        QVERIFY(!ZTDiscountModel(ZTDiscountModelBulk).usesTransferArticle());
    }

    void keyHashAndCopies()
    {
        const ZTAPMPriceKey pointOfSale(ZTOrderSource::onlinePointOfSale(), 2, ZTDiscountModelBulk);
        const ZTAPMPriceKey mail(mailOrder(), 2, ZTDiscountModelBulk);
        QCOMPARE(mail.hashValue() - pointOfSale.hashValue(), 16u);
        QCOMPARE(pointOfSale.hashValue(), 2u * 4 + 2);
        QCOMPARE(ZTAPMPriceKey(ZTOrderSource::onlinePointOfSale(), 0, ZTDiscountModel()).hashValue(), 1u);
        QCOMPARE(ZTAPMPriceKey(mail, ZTDiscountModelInherited).discountLevel(), 0);
        QVERIFY(!ZTAPMPriceKey().isValid());

        ZTAPMPriceKey copy(mail);
        QVERIFY(copy.isSharedWith(mail));
        QCOMPARE(copy, mail);
        copy.setDiscountLevel(3);
        QVERIFY(!copy.isSharedWith(mail));
        QCOMPARE(mail.discountLevel(), 2);
        QCOMPARE(copy.hashValue(), mail.hashValue() + 4);
        copy.setDiscountModel(ZTDiscountModelFotoPackage);
        QCOMPARE(copy.hashValue(), mail.hashValue() + 4 - 2 + 1024);
        QCOMPARE(mail.discountModel().value(), ZTDiscountModelBulk);
    }

    void supercedes_data()
    {
        QTest::addColumn<ZTAPMPriceKey>("pattern");
        QTest::addColumn<ZTAPMPriceKey>("row");
        QTest::addColumn<bool>("covers");
        const ZTAPMPriceKey bulk1(mailOrder(), 1, ZTDiscountModelBulk);
        const ZTOrderSource anyWay(ZTInputSourceInvalid, ZTDeliveryTypeUndecodable);
        const ZTOrderSource notGiven(ZTInputSourceOnline, ZTDeliveryTypeNotGiven);
        QTest::newRow("unset key covers all") << ZTAPMPriceKey() << bulk1 << true;
        QTest::newRow("order source alone") << ZTAPMPriceKey(mailOrder()) << bulk1 << true;
        QTest::newRow("other way") << ZTAPMPriceKey(ZTOrderSource::onlinePointOfSale()) << bulk1 << false;
        QTest::newRow("level given") << ZTAPMPriceKey(anyWay, 1, ZTDiscountModel()) << bulk1 << true;
        QTest::newRow("other level") << ZTAPMPriceKey(anyWay, 0, ZTDiscountModel()) << bulk1 << false;
        QTest::newRow("other model") << ZTAPMPriceKey(anyWay, -1, ZTDiscountModelInherited) << bulk1 << false;
        QTest::newRow("delivery -1 is no wildcard") << ZTAPMPriceKey(notGiven) << bulk1 << false;
        QTest::newRow("delivery -1 matches -1")
            << ZTAPMPriceKey(notGiven) << ZTAPMPriceKey(notGiven, 0, ZTDiscountModelBulk) << true;
        QTest::newRow("row is no pattern") << bulk1 << ZTAPMPriceKey() << false;
    }
    void supercedes()
    {
        QFETCH(ZTAPMPriceKey, pattern);
        QFETCH(ZTAPMPriceKey, row);
        QFETCH(bool, covers);
        QCOMPARE(pattern.supercedes(row), covers);
    }

    void valuesFromRows()
    {
        const ZTAPMPriceValue missing = row(QString());
        QCOMPARE(missing.price().value(), -1);
        QCOMPARE(missing.baseTransferPrice().value(), 0);
        QVERIFY(!missing.isValid());
        QVERIFY(row(QStringLiteral("price=\"0\"")).isValid());
        QVERIFY(!row(QStringLiteral("price=\"10\" type=\"*\"")).isValid());

        const ZTAPMPriceValue running =
            row(QStringLiteral("price=\"2995\" non_offer_price=\"3995\" "
                               "end_offer_date=\"2030-12-31T23:59:59\" level=\"1\" quantity=\"3\""));
        QVERIFY(running.isOfferPriceValid());
        QCOMPARE(running.nonOfferPrice().value(), 3995);
        QCOMPARE(running.endOfferDateEpoch(),
                 QDateTime(QDate(2030, 12, 31), QTime(23, 59, 59)).toSecsSinceEpoch());
        const ZTAPMPriceValue ended = row(
            QStringLiteral("price=\"2495\" non_offer_price=\"2995\" end_offer_date=\"2024-01-31T23:59:59\""));
        QVERIFY(!ended.isOfferPriceValid());
        QCOMPARE(ended.nonOfferPrice().value(), -1);
        QCOMPARE(ended.price().value(), 2495);
        QVERIFY(!row(QStringLiteral("price=\"1\" non_offer_price=\"2\" end_offer_date=\"soon\""))
                     .isOfferPriceValid());

        ZTAPMPriceValue copy(running);
        QVERIFY(copy.isSharedWith(running));
        QVERIFY(copy == &running);
        copy.setUpperLimit(9);
        QVERIFY(!copy.isSharedWith(running));
        QCOMPARE(running.upperLimit(), -1);
        QCOMPARE(copy.upperLimit(), 9);
        QVERIFY(copy != running);
    }

    void tableLookupsAndBounds()
    {
        ZTAPMPriceValues table;
        table[ZTAPMPriceKey(mailOrder(), 4, ZTDiscountModelBulk)];
        QCOMPARE(table.maxDiscountLevel(), 0);
        table.clear();
        const ZTAPMPriceValue base = row(QStringLiteral("price=\"19\""));
        const ZTAPMPriceValue from50 = row(QStringLiteral("price=\"17\" level=\"1\" quantity=\"50\""));
        const ZTAPMPriceValue from500 = row(QStringLiteral("price=\"12\" level=\"2\" quantity=\"500\""));
        for (const ZTAPMPriceValue& value : {base, from50, from500})
            table.insert(keyOf(value), value);
        QCOMPARE(table.maxDiscountLevel(), 2);
        QVERIFY(!table.value(ZTAPMPriceKey(mailOrder(), -1, ZTDiscountModelBulk)).isValid());
        QCOMPARE(table.countItemsAtUpperBound(keyOf(base)), 49);
        QCOMPARE(table.countItemsAtUpperBound(keyOf(from500)), -1);
        const ZTAPMPriceValues fixed = table.fixedUpperLimits();
        QCOMPARE(fixed.value(keyOf(from50)).upperLimit(), 499);
        QCOMPARE(table.value(keyOf(from50)).upperLimit(), -1);

        ZTAPMPriceValues discounts;
        const ZTAPMPriceValue cheaper = row(QStringLiteral("price=\"15\" level=\"3\" quantity=\"1000\""));
        discounts.insert(keyOf(base), row(QStringLiteral("price=\"18\"")));
        discounts.insert(keyOf(cheaper), cheaper);
        table.unite(discounts);
        QCOMPARE(table.count(), 4);
        QCOMPARE(table.value(keyOf(base)).price().value(), 18);
        QCOMPARE(table.maxDiscountLevel(), 3);
    }

    void photoPackageRows()
    {
        const ZTOrderSource pointOfSale = ZTOrderSource::onlinePointOfSale();
        ZTAPMPriceValues table;
        const ZTAPMPriceValue package = row(QStringLiteral("type=\"w\" level=\"1\" price=\"999\""));
        const ZTAPMPriceValue perPrint =
            row(QStringLiteral("type=\"w\" level=\"2\" quantity=\"27\" price=\"29\""));
        const ZTAPMPriceValue bulk =
            row(QStringLiteral("type=\"y\" level=\"3\" quantity=\"100\" price=\"25\""));
        const ZTAPMPriceValue lonelyBulk = row(QStringLiteral("type=\"y\" level=\"1\" price=\"30\""));
        for (const ZTAPMPriceValue& value : {package, perPrint, bulk})
            table.insert(keyOf(value), value);
        table.insert(keyOf(lonelyBulk, pointOfSale), lonelyBulk);

        const ZTAPMPriceValues fixed = table.fixedDiscountModelW().fixedUpperLimits();
        const ZTAPMPriceValue converted =
            fixed.value(ZTAPMPriceKey(mailOrder(), 3, ZTDiscountModelFotoPackage));
        QVERIFY(converted.isValid());
        QVERIFY(converted.discountLimit().wasBulkModel());
        QVERIFY(converted.discountLimit().isFotoBasePackageBulkLimit());
        QVERIFY(!fixed.value(ZTAPMPriceKey(mailOrder(), 2, ZTDiscountModelFotoPackage))
                     .discountLimit()
                     .wasBulkModel());
        QCOMPARE(fixed.fotoBasePackageLimit(mailOrder()).upperLimit(), 26);
        QVERIFY(!fixed.fotoBasePackageLimit(pointOfSale).isValid());
        // Without "w" rows of its own, the point of sale keeps its "y" row, which nothing prices.
        QVERIFY(fixed.containsDiscountModel(pointOfSale, ZTDiscountModelFotoPackageBulk));
        QVERIFY(!fixed.containsDiscountModel(mailOrder(), ZTDiscountModelFotoPackageBulk));
        QCOMPARE(fixed.discountModels(),
                 (QSet<ZTDiscountModel>{ZTDiscountModelFotoPackage, ZTDiscountModelFotoPackageBulk}));
    }
};

QTEST_GUILESS_MAIN(tst_ZTAPMPriceKey)
#include "tst_ZTAPMPriceKey.moc"
