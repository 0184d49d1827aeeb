#include "ZTAPMBill.h"
#include "ZTAPMBillPosition.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTAPMDataBase.h"
#include "ZTInitializer.h"
#include "ZTOrderingDetails.h"
#include "ZTProductAbstract.h"
#include "ZTProgramConfig.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

ZTProductAbstract* product(int theId)
{
    return ZTSingleton<ZTAPMDataBase>::instance()->productAbstract(ZTArticleId(theId));
}

// "1001:3 7003:4": article ids with numbers of pieces.
ZTAPMOrderStatistic basket(const QString& theItems)
{
    ZTAPMOrderStatistic statistic;
    for (const QString& item : theItems.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        statistic.add(product(item.section(QLatin1Char(':'), 0, 0).toInt()),
                      item.section(QLatin1Char(':'), 1, 1).toInt());
    return statistic;
}

ZTAPMStatus status(const ZTOrderSource& theSource)
{
    ZTAPMStatus result;
    result.setOrderSource(theSource);
    return result;
}

// "article units x items @ unit price model:level" per position, in the order the bill made them.
QString listing(const ZTAPMBillPositionList& thePositions)
{
    QStringList lines;
    for (const ZTAPMBillPositionAbstract* entry : thePositions) {
        const QString article = QString::number(entry->product()->articleId().id());
        if (dynamic_cast<const ZTAPMBillPositionInvalid*>(entry)) {
            lines.append(article + QStringLiteral(" invalid"));
            continue;
        }
        lines.append(QStringLiteral("%1 %2x%3@%4 %5:%6")
                         .arg(article)
                         .arg(entry->unitCount())
                         .arg(entry->itemsPerUnit())
                         .arg(entry->unitPrice().value())
                         .arg(int(entry->discountModel().value()))
                         .arg(entry->discountLevel()));
    }
    return lines.join(QStringLiteral("; "));
}

} // namespace

// Bills on the demo key account: what a basket becomes, position by position, and the fees.
class tst_ZTAPMBill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ZTSingleton<ZTInitializer>::instance()->setupAll(ZTInitializerOption()); }

    void bills_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("express");
        QTest::addColumn<QString>("items");
        QTest::addColumn<QString>("positions");
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("itemCount");
        QTest::addColumn<bool>("valid");

        const QString mail = QStringLiteral("FM");
        // Nothing to price: no transfer at count 0, no payment fee on a bill of nothing.
        QTest::newRow("empty") << mail << 1 << 0 << QString() << QString() << 0 << 0 << true;
        // A bulk row at 0 pieces still leaves its position; the bill costs nothing.
        QTest::newRow("bulk count 0") << mail << 1 << 0 << QStringLiteral("1001:0")
                                      << QStringLiteral("1001 0x1@2995 2:0") << 0 << 0 << true;
        // The pages take over the level the book reached (1 from 3 books, 2 from 10); they are
        // priced but never counted, so the transfer sees 3 pieces.
        QTest::newRow("add-on inherits 1")
            << mail << 1 << 0 << QStringLiteral("1001:3 7003:4")
            << QStringLiteral("1001 3x1@2795 2:1; 7003 4x1@89 256:1; 9001 1x1@495 16:0; 9202 1x1@150 16:0")
            << 9386 << 3 << true;
        QTest::newRow("add-on inherits 2")
            << mail << 1 << 0 << QStringLiteral("1001:10 7003:2")
            << QStringLiteral("1001 10x1@2595 2:2; 7003 2x1@79 256:2; 9001 1x1@695 16:1; 9202 1x1@150 16:0")
            << 26953 << 10 << true;
        // Without the book the pages stay at level 0, and no piece is left for a transfer.
        QTest::newRow("add-on alone")
            << mail << 1 << 0 << QStringLiteral("7003:4")
            << QStringLiteral("7003 4x1@99 256:0; 9202 1x1@150 16:0") << 546 << 0 << true;
        // The express fee counts the expressable pieces of the goods, not the pages.
        QTest::newRow("express")
            << mail << 1 << int(ZTExpressTypeExpress) << QStringLiteral("1001:3 7003:12")
            << QStringLiteral("1001 3x1@2795 2:1; 7003 12x1@89 256:1; 9001 1x1@495 16:0; 9202 1x1@150 16:0; "
                              "9101 1x1@995 128:0")
            << 8385 + 1068 + 495 + 150 + 995 << 3 << true;
        // Transfer by the goods' sum: the "f" row below 50.00, the "z" row above.
        QTest::newRow("transfer f") << mail << 3 << 0 << QStringLiteral("5005:1")
                                    << QStringLiteral(
                                           "5005 1x1@1295 2:0; 9003 1x1@695 16:0; 9202 1x1@150 16:0")
                                    << 2140 << 1 << true;
        QTest::newRow("transfer z") << mail << 3 << 0 << QStringLiteral("5003:1")
                                    << QStringLiteral(
                                           "5003 1x1@5495 2:0; 9003 1x1@395 32:1; 9202 1x1@150 16:0")
                                    << 6040 << 1 << true;
        // The basket's transfer: the poster leads with base 5.95, every other piece at its unit
        // price: 120 prints at 0.01; one position of model 64.
        QTest::newRow("transfer model 2")
            << mail << 16 << 0 << QStringLiteral("3002:120 4001:1")
            << QStringLiteral("3002 120x1@15 2:2; 4001 1x1@1495 2:0; 9002 1x1@715 64:0; 9202 1x1@150 16:0")
            << 1800 + 1495 + 715 + 150 << 121 << true;
        // The slipcase has no price at the CD terminal: the bill goes on without it.
        QTest::newRow("unpriceable") << QStringLiteral("CC") << 1 << 0 << QStringLiteral("1001:1 7001:1")
                                     << QStringLiteral("1001 1x1@3995 2:0; 7001 invalid; 9001 1x1@0 16:0")
                                     << 3995 << 1 << false;
    }

    void bills()
    {
        QFETCH(QString, source);
        QFETCH(int, group);
        QFETCH(int, express);
        QFETCH(QString, items);
        QFETCH(QString, positions);
        QFETCH(int, total);
        QFETCH(int, itemCount);
        QFETCH(bool, valid);

        const ZTOrderSource orderSource =
            source == QLatin1String("CC") ? ZTOrderSource::cdPointOfSale() : ZTOrderSource::onlineMailOrder();
        const ZTAPMBill bill(ZTShippingGroupId(group), status(orderSource),
                             ZTExpressType(ZTExpressTypeEnum(express)), basket(items));
        QCOMPARE(listing(bill), positions);
        QCOMPARE(bill.totalFinalCost(), ZTMoney(total));
        // The pieces the transfer sees: the goods without the fees.
        QCOMPARE(bill.totalItemCount(
                     ZTArticleClass(ZTArticleClassEnum(ZTArticleClassAll & ~ZTArticleClassAllFees))),
                 itemCount);
        QCOMPARE(bill.totalItemCount(ZTArticleClass(ZTArticleClassAllAddOns)), 0);
        QCOMPARE(bill.isValid(), valid);
        QCOMPARE(bill.totalPriceIsVoid(), total == 0);
    }

    void feesAndTransfer()
    {
        const ZTAPMBill bill(ZTShippingGroupId(16), ZTAPMStatus(), ZTExpressType(ZTExpressTypeExpress),
                             basket(QStringLiteral("3002:120 4001:1")));
        QCOMPARE(bill.priceOfUnitTransfer(), ZTMoney(120));
        QCOMPARE(bill.priceOfBaseTransfer(), ZTMoney(595));
        QCOMPARE(bill.transferFee(), ZTMoney(715));
        QCOMPARE(bill.priceOfPaymentFee(), ZTMoney(150));
        QCOMPARE(bill.priceOfExpressFee(), ZTMoney(595));
        QCOMPARE(bill.totalItemCost(ZTArticleClass(ZTArticleClassTransfer)), ZTMoney(715));

        // A group without a transfer article: goods, but no transfer position and so no halves.
        QTest::ignoreMessage(QtWarningMsg, "-- transfer article missing for shippinggroup 14");
        const ZTAPMBill lost(ZTShippingGroupId(14), ZTAPMStatus(), ZTExpressType(),
                             basket(QStringLiteral("3002:120")));
        QCOMPARE(lost.priceOfUnitTransfer(), ZTMoney(0));
        QCOMPARE(lost.priceOfBaseTransfer(), ZTMoney(0));
        QCOMPARE(lost.totalFinalCost(), ZTMoney(1800 + 150));

        // Outside a bill, per method; a method without a fee article costs nothing.
        const ZTAPMPriceKey mail(ZTOrderSource::onlineMailOrder());
        ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
        QCOMPARE(
            ZTAPMBill::priceOfPaymentFee(
                details->paymentMethod(ZTOrderSource::onlineMailOrder(), ZTPaymentId(3), QString()), mail),
            ZTMoney(150));
        QCOMPARE(ZTAPMBill::priceOfPaymentFee(ZTPaymentMethod(), mail), ZTMoney(0));
        QCOMPARE(ZTAPMBill::priceOfShipmentFee(details->shipmentMethods().value(2), mail), ZTMoney(390));
        // No row at the point of sale: free rather than -1.
        QCOMPARE(ZTAPMBill::priceOfShipmentFee(details->shipmentMethods().value(2),
                                               ZTAPMPriceKey(ZTOrderSource::onlinePointOfSale())),
                 ZTMoney(0));
    }

    void copyAndTotals()
    {
        auto bill = std::make_unique<ZTAPMBill>(ZTShippingGroupId(1), status(ZTOrderSource::cdPointOfSale()),
                                                ZTExpressType(), basket(QStringLiteral("1001:1 7001:1")));
        {
            const ZTAPMBill copy(*bill);
            QVERIFY(!copy.isValid());
            QCOMPARE(listing(copy), listing(*bill));
            QVERIFY(copy.first() != bill->first());
        }
        // The copy is gone; the first bill still has its own positions.
        QCOMPARE(bill->totalFinalCost(), ZTMoney(3995));
        QCOMPARE(bill->billPosition(product(7001)), nullptr);
        // The slipcase has no editor name.
        QTest::ignoreMessage(QtWarningMsg, "# , Nicht bestellbar");
        bill->dump();

        // A position without a row at 5 units of -1: the bill costs nothing, not -5.
        ZTAPMBill negative(ZTShippingGroupId(1), ZTAPMStatus(), ZTExpressType(), ZTAPMOrderStatistic());
        negative.addBillPosition(
            new ZTAPMBillPosition(product(9101), 5, 1, ZTDiscountLimit(), ZTMoney(-1), ZTMoney(-1)));
        QCOMPARE(negative.totalItemCost(ZTArticleClass(ZTArticleClassAll)), ZTMoney(-5));
        QCOMPARE(negative.totalFinalCost(), ZTMoney(0));
        QVERIFY(negative.totalPriceIsVoid());
    }

    void shippingGroups()
    {
        const auto groups =
            ZTAPMBill::shippingGroupStatistics(basket(QStringLiteral("5005:1 3002:2 1001:1 7003:2")));
        QCOMPARE(groups.keys(), (QList<ZTShippingGroupId>{ZTShippingGroupId(1), ZTShippingGroupId(3),
                                                          ZTShippingGroupId(16)}));
        QCOMPARE(groups.value(ZTShippingGroupId(1)), basket(QStringLiteral("1001:1 7003:2")));
    }
};

int main(int argc, char** argv)
{
    QTemporaryDir configDirectory;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(configDirectory.path()));
    ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(QStringLiteral(ZT_DEMO_DATA_DIR));
    QCoreApplication application(argc, argv);
    tst_ZTAPMBill test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ZTAPMBill.moc"
