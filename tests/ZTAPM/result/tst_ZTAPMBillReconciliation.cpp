#include "ZTAPMBillReconciliation.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMOrderQuote.h"
#include "ZTInitializer.h"
#include "ZTOrderCalculationResult.h"
#include "ZTOrderingDetails.h"
#include "ZTShipmentMethodList.h"

#include <QDomDocument>
#include <QFile>
#include <QTest>

// The demo server answer against local quotes of the demo key account, edited row by row: which
// lines differ, in which order, with which amounts and models.
class tst_ZTAPMBillReconciliation : public QObject
{
    Q_OBJECT

    static QString demoAnswer()
    {
        QFile file(QStringLiteral(ZT_DEMO_DATA_DIR "/result.xml"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    // "kind group article local server localModel serverModel", "-" for what a line lacks.
    static QString line(const ZTAPMBillDifference& theDifference)
    {
        const auto amount = [](const ZTMoney& theAmount) {
            return theAmount == ZTMoney(ZTMoney::notSet) ? QStringLiteral("-") : theAmount.toString();
        };
        const auto model = [](const ZTDiscountModel& theModel, int theLevel) {
            return theLevel < 0 ? QStringLiteral("-")
                                : QStringLiteral("%1:%2").arg(theModel.encode()).arg(theLevel);
        };
        return QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
            .arg(int(theDifference.kind()))
            .arg(theDifference.shippingGroupId().isValid() ? theDifference.shippingGroupId().toString()
                                                           : QStringLiteral("-"))
            .arg(theDifference.articleId().isValid() ? theDifference.articleId().toString()
                                                     : QStringLiteral("-"))
            .arg(amount(theDifference.localAmount()), amount(theDifference.serverAmount()),
                 model(theDifference.localModel(), theDifference.localLevel()),
                 model(theDifference.serverModel(), theDifference.serverLevel()));
    }

private Q_SLOTS:
    void initTestCase() { ZTSingleton<ZTInitializer>::instance()->setupAll(ZTInitializerOption()); }

    void differences_data()
    {
        QTest::addColumn<QString>("basket");
        // Pairs of text to find in the answer and its replacement.
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<QStringList>("expected");

        const QString demo = QStringLiteral("1001:3 7003:4 3002:120 4001:1 5003:1");
        const int position = ZTAPMBillDifference::Position;
        const int transfer = ZTAPMBillDifference::Transfer;
        const int billTotal = ZTAPMBillDifference::BillTotal;

        // Coupons, taxes and the shipment fee in the bills are taken out of the server's sums.
        QTest::newRow("the demo answer agrees") << demo << QStringList() << QStringList();
        // Groups ascending, though the answer lists 16 before 3 and 1 first.
        QTest::newRow("ordered by group")
            << demo
            << QStringList{QStringLiteral("price=\"15\""), QStringLiteral("price=\"16\""),
                           QStringLiteral("id=\"9001\" model=\"1\" price=\"495\""),
                           QStringLiteral("id=\"9001\" model=\"1\" price=\"595\"")}
            << QStringList{QStringLiteral("%1 1 9001 495 595 f:0 f:0").arg(transfer),
                           QStringLiteral("%1 16 3002 1800 1920 b:2 b:2").arg(position)};
        // An add-on is a part on the server: its price times its quantity times the position's.
        QTest::newRow("part of a position")
            << demo
            << QStringList{QStringLiteral("quantity=\"1\" price=\"89\""),
                           QStringLiteral("quantity=\"1\" price=\"90\"")}
            << QStringList{QStringLiteral("%1 1 7003 356 358 I:1 -").arg(position)};
        QTest::newRow("position missing on the server")
            << demo
            << QStringList{QStringLiteral("<orderposition pos=\"4\""), QStringLiteral("<ignored pos=\"4\"")}
            << QStringList{QStringLiteral("%1 16 4001 1495 - b:0 -").arg(position)};
        // Within a group by editor name, which the demo articles leave empty, then by id: 3001,
        // only on the server and without a model, before 3002 and 4001 of both sides.
        QTest::newRow("positions by name, then id")
            << demo
            << QStringList{QStringLiteral("<orderposition pos=\"4\""),
                           QStringLiteral("<orderposition pos=\"6\" article_id=\"3001\" quantity=\"1\" "
                                          "price=\"19\"/><orderposition pos=\"4\""),
                           QStringLiteral("price=\"15\""),
                           QStringLiteral("price=\"14\""),
                           QStringLiteral("price=\"1495\""),
                           QStringLiteral("price=\"1494\"")}
            << QStringList{QStringLiteral("%1 16 3001 - 19 - *:0").arg(position),
                           QStringLiteral("%1 16 3002 1800 1680 b:2 b:2").arg(position),
                           QStringLiteral("%1 16 4001 1495 1494 b:0 b:0").arg(position)};
        // A group only the server bills: every line of it, then the order's sums.
        QTest::newRow("bill missing locally")
            << QStringLiteral("1001:3 7003:4 3002:120 4001:1") << QStringList()
            << QStringList{
                   QStringLiteral("%1 3 5003 - 5495 - b:0").arg(position),
                   QStringLiteral("%1 3 9003 - 395 - z:1").arg(transfer),
                   QStringLiteral("%1 3 - - 0 - -").arg(int(ZTAPMBillDifference::ExpressFee)),
                   QStringLiteral("%1 3 9202 - 150 - -").arg(int(ZTAPMBillDifference::PaymentFee)),
                   QStringLiteral("%1 3 - - 6040 - -").arg(billTotal),
                   QStringLiteral("%1 - - 12036 17531 - -").arg(int(ZTAPMBillDifference::ProductsTotal)),
                   QStringLiteral("%1 - - 1210 1605 - -").arg(int(ZTAPMBillDifference::TransferTotal)),
                   QStringLiteral("%1 - - 13936 19976 - -").arg(int(ZTAPMBillDifference::Total))};
    }
    void differences()
    {
        QFETCH(QString, basket);
        QFETCH(QStringList, edits);
        QFETCH(QStringList, expected);

        QString answer = demoAnswer();
        for (int i = 0; i + 1 < edits.size(); i += 2) {
            QVERIFY2(answer.contains(edits.at(i)), qPrintable(edits.at(i)));
            answer.replace(edits.at(i), edits.at(i + 1));
        }
        QDomDocument document;
        QVERIFY(document.setContent(answer));

        ZTAPMStatus status;
        status.setOrderSource(ZTOrderSource::onlineMailOrder());
        status.setShipmentMethod(ZTSingleton<ZTOrderingDetails>::instance()->shipmentMethods().value(2));
        ZTAPMOrderStatistic statistic;
        for (const QString& item : basket.split(QLatin1Char(' ')))
            statistic.add(ZTArticleId(item.section(QLatin1Char(':'), 0, 0).toInt()),
                          item.section(QLatin1Char(':'), 1).toInt());
        const ZTAPMOrderQuote quote(status, ZTExpressType(), statistic);
        const ZTOrderCalculationResult result(status, document.documentElement());
        QVERIFY(result.isValid());

        const ZTAPMBillReconciliation reconciliation(quote, result);
        QStringList lines;
        for (const ZTAPMBillDifference& difference : reconciliation.differences())
            lines.append(line(difference));
        QCOMPARE(lines.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
        QCOMPARE(reconciliation.agrees(), expected.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_ZTAPMBillReconciliation)
#include "tst_ZTAPMBillReconciliation.moc"
