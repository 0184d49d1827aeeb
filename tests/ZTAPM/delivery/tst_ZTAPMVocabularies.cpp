#include "ZTDeliveryType.h"
#include "ZTExpressType.h"
#include "ZTShippingGroupsTransferCalculationModel.h"
#include "ZTShippingGroupsTransmitModel.h"
#include "ZTTransferModel.h"

#include <QTest>

// The keyword tables of the delivery and shipping-group vocabularies, as the documents use them.
class TestAPMVocabularies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decode_data()
    {
        QTest::addColumn<QString>("vocabulary");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");

        QTest::newRow("express 3 with blanks") << "express"
                                               << " 3 " << 2;
        QTest::newRow("express joined") << "express"
                                        << "0,3" << 3;
        QTest::newRow("express empty") << "express"
                                       << "" << 0;
        QTest::newRow("express value is no keyword") << "express"
                                                     << "2" << 0;
        QTest::newRow("express unknown") << "express"
                                         << "9" << 0;
        QTest::newRow("delivery unknown") << "delivery"
                                          << "post" << -2;
        QTest::newRow("delivery empty") << "delivery"
                                        << "" << -1;
        QTest::newRow("delivery mail") << "delivery"
                                       << "1" << 1;
        QTest::newRow("delivery unknown then known") << "delivery"
                                                     << "post,0" << -2;
        QTest::newRow("transfer 2") << "transfer"
                                    << "2" << 2;
        QTest::newRow("transfer empty") << "transfer"
                                        << "" << -1;
        QTest::newRow("transfer unknown") << "transfer"
                                          << "3" << -1;
        QTest::newRow("transmit empty") << "transmit"
                                        << "" << 0;
        QTest::newRow("transmit 0") << "transmit"
                                    << "0" << 1;
        QTest::newRow("transmit 1") << "transmit"
                                    << "1" << 2;
        QTest::newRow("transmit unknown") << "transmit"
                                          << "7" << 0;
        QTest::newRow("calculation 0") << "calculation"
                                       << "0" << 1;
        QTest::newRow("calculation 1") << "calculation"
                                       << "1" << 2;
        QTest::newRow("calculation unknown") << "calculation"
                                             << "x" << 0;
    }
    void decode()
    {
        QFETCH(QString, vocabulary);
        QFETCH(QString, text);
        QFETCH(int, expected);
        // Constructors decode leniently: a bad keyword gives the default without a message.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        int value = 0;
        if (vocabulary == QLatin1String("express"))
            value = ZTExpressType(text).value();
        else if (vocabulary == QLatin1String("delivery"))
            value = ZTDeliveryType(text).value();
        else if (vocabulary == QLatin1String("transfer"))
            value = ZTTransferModel(text).value();
        else if (vocabulary == QLatin1String("transmit"))
            value = ZTShippingGroupsTransmitModel(text).value();
        else
            value = ZTShippingGroupsTransferCalculationModel(text).value();
        QCOMPARE(value, expected);
    }

    void expressType()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^undecodable: \"9\" ")));
        QCOMPARE(ZTExpressType().decodeOneElement(QStringLiteral("9")), ZTExpressTypeNone);

        const ZTExpressType none(ZTExpressTypeNone);
        QCOMPARE(none.encode(), QString());
        QCOMPARE(none.encodeCSV(), QStringLiteral("ExpressableType_UNKNOWN"));
        QVERIFY(none.encodeBits().isEmpty());
        QVERIFY(!none.isValid());

        const ZTExpressType both(ZTExpressTypeEnum(ZTExpressTypeStandard | ZTExpressTypeExpress));
        QCOMPARE(both.encode(), QStringLiteral("ExpressableType_UNKNOWN"));
        QCOMPARE(both.encodeCSV(), QStringLiteral("0, 3"));
        QCOMPARE(ZTExpressType(both.encodeCSV()), both);

        QCOMPARE(ZTExpressType(QStringLiteral("0")).iconName(), QString());
        QCOMPARE(ZTExpressType(QStringLiteral("3")).iconName(),
                 QStringLiteral("ico_express_delivery_checkout"));
        QCOMPARE(both.iconName(), QStringLiteral("ico_express_delivery_checkout"));
    }

    void deliveryType()
    {
        QVERIFY(!ZTDeliveryType(QStringLiteral("post")).isValid());
        const ZTDeliveryType notGiven{QString()};
        QVERIFY(notGiven.isValid());
        QCOMPARE(ZTDeliveryType::allDeliveryTypes(),
                 QList<ZTDeliveryType>({ZTDeliveryTypePointOfSale, ZTDeliveryTypeMailOrder}));
        QVERIFY(!ZTDeliveryType::allDeliveryTypes().contains(notGiven));
        QCOMPARE(ZTDeliveryType(ZTDeliveryTypeMailOrder).encode(), QStringLiteral("1"));
        // Words for logs and tools; a missing keyword is not "any": it matches no real question.
        QCOMPARE(ZTDeliveryType(ZTDeliveryTypePointOfSale).toLogString(), QStringLiteral("point of sale"));
        QCOMPARE(ZTDeliveryType(ZTDeliveryTypeMailOrder).toLogString(), QStringLiteral("mail order"));
        QCOMPARE(notGiven.toLogString(), QStringLiteral("not given"));
        QCOMPARE(ZTDeliveryType(QStringLiteral("post")).toLogString(), QStringLiteral("unknown"));
        QCOMPARE(ZTTransferModel(ZTTransferModelPerBasket).encode(), QStringLiteral("2"));
    }
};

QTEST_GUILESS_MAIN(TestAPMVocabularies)
#include "tst_ZTAPMVocabularies.moc"
