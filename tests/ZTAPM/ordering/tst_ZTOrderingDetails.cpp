#include "ZTAPMShippingGroupManager.h"
#include "ZTKeyAccount.h"
#include "ZTOrderingDetails.h"
#include "ZTPlatformIndependent.h"
#include "ZTProgramConfig.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstdio>
#include <limits>

namespace {

ZTOrderingDetails* details()
{
    return ZTSingleton<ZTOrderingDetails>::instance();
}

// "id" or "id brand" of each method, in list order.
QStringList names(const ZTPaymentMethodList& theMethods)
{
    QStringList result;
    for (const ZTPaymentMethod& method : theMethods)
        result.append(method.brand().isEmpty()
                          ? QString::number(method.id())
                          : QStringLiteral("%1 %2").arg(method.id()).arg(method.brand()));
    return result;
}

bool writeDocument(const QString& theDirectory, const QString& theBody)
{
    QFile file(theDirectory + QStringLiteral("/orderingdetails.xml"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    file.write(QStringLiteral("<ordering_details>%1</ordering_details>").arg(theBody).toUtf8());
    return true;
}

// A document whose meta methods carry every property a family member can take over.
const char* const thePayments = R"(
  <credit_cards>
    <card id="11" brand="VISA" name="Visa" blockable="true"/>
    <card id="13" brand="AMEX" name="Amex" form_based="false" repeatable="true" needs_password="true"/>
  </credit_cards>
  <pay_methods>
    <m id="3" name="Rechnung"/>
    <m id="1" name="Karte" form_based="true" repeatable="false" two_factor_hint="true"
       allows_shipping_address="true" e_wallet="true" blockable="false" show_billing_address="true"/>
    <m id="9" name="Online"/>
    <m id="0" name="Bar"/>
  </pay_methods>
  <online_transfer_methods>
    <t id="91" brand="SOFORT"/>
    <t id="92" brand="GIROPAY"/>
  </online_transfer_methods>
  <order_sources>
    <s input_source="0" delivery_type="1">
      <permitted_pay_method id="3"/><permitted_pay_method id="1"/><permitted_pay_method id="x"/>
    </s>
    <s input_source="0" delivery_type="0"><permitted_pay_method id="9"/><permitted_pay_method id="0"/></s>
    <s input_source="1" delivery_type="0"/>
    <s input_source="1" delivery_type="1"><permitted_pay_method id="3"/></s>
  </order_sources>)";

} // namespace

// The ordering-details document of a key account, read again at each switch.
class TestOrderingDetails : public QObject
{
    Q_OBJECT

    QTemporaryDir myDirectory;

    void read(const QString& theBody)
    {
        QVERIFY(writeDocument(myDirectory.path(), theBody));
        QSignalSpy changed(details(), &ZTOrderingDetails::changed);
        QVERIFY(ZTSingleton<ZTKeyAccount>::instance()->switchTo(myDirectory.path()));
        QCOMPARE(changed.count(), 1);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(myDirectory.isValid());
        QVERIFY(writeDocument(myDirectory.path(), QStringLiteral("<doi>true</doi>")));
        ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(myDirectory.path());
    }

    void firstReadingWithoutCurrencies()
    {
        // Must run first: the factor stays at its initial 0 until some document names a currency.
        QVERIFY(details()->requiresDOI());
        QCOMPARE(details()->currency(), QStringLiteral("EUR"));
        QVERIFY(!details()->hasSecondaryCurrency());
        QCOMPARE(details()->secondaryCurrencyFactor(), 0.0);
        QVERIFY(details()->availableOrderSources().isEmpty());
        QCOMPARE(details()->passwordPolicy().minPasswordLength(), 8);
    }

    void familiesTakeOverTheMetaMethod()
    {
        read(QString::fromLatin1(thePayments));
        const ZTPaymentMethodList cards =
            *details()->paymentMethods(ZTPaymentClass(ZTPaymentClassCreditCard));
        QCOMPARE(names(cards), (QStringList{QStringLiteral("11 VISA"), QStringLiteral("13 AMEX")}));
        for (const ZTPaymentMethod& card : cards) {
            // Taken over, whatever the card says itself, though the cards come first.
            QVERIFY(card.isFormBasedPayment());
            QVERIFY(!card.allowsFormBasedPaymentRetry());
            QVERIFY(card.show2FactorHint());
            QVERIFY(card.allowsDifferentShippingAddress());
            QVERIFY(card.isEWallet());
            QVERIFY(!card.needsPassword());
            QVERIFY(!card.showBillingAddressOnPaymentAndShippingScreen());
            QCOMPARE(card.paymentId(), ZTPaymentId(1));
        }
        // Kept: the card's own.
        QVERIFY(cards.first().isBlockable());
        QCOMPARE(cards.first().name(), QStringLiteral("Visa"));
        // The meta method of the transfers sets nothing, so they get its defaults.
        const ZTPaymentMethod sofort =
            details()->paymentMethods(ZTPaymentClass(ZTPaymentClassOnlineTransfer))->first();
        QVERIFY(!sofort.isFormBasedPayment());
        QVERIFY(sofort.allowsFormBasedPaymentRetry());
        QVERIFY(!details()->paymentMethods(ZTPaymentClass(ZTPaymentClassNone)));
    }

    void metaMethodsExpandedAndFiltered_data()
    {
        QTest::addColumn<ZTOrderSource>("source");
        QTest::addColumn<QStringList>("methods");
        QTest::addColumn<bool>("enabled");

        QTest::newRow("all") << ZTOrderSource()
                             << QStringList{"3", "11 VISA", "13 AMEX", "91 SOFORT", "92 GIROPAY", "0"}
                             << false;
        QTest::newRow("mail order: a family permitted as a whole")
            << ZTOrderSource::onlineMailOrder() << QStringList{"3", "11 VISA", "13 AMEX"} << true;
        QTest::newRow("point of sale")
            << ZTOrderSource::onlinePointOfSale() << QStringList{"91 SOFORT", "92 GIROPAY", "0"} << true;
        QTest::newRow("listed without payments") << ZTOrderSource::cdPointOfSale() << QStringList() << false;
    }
    void metaMethodsExpandedAndFiltered()
    {
        QFETCH(ZTOrderSource, source);
        QFETCH(QStringList, methods);
        QFETCH(bool, enabled);
        read(QString::fromLatin1(thePayments));
        QCOMPARE(names(source.isValid() ? details()->paymentMethods(source) : details()->paymentMethods()),
                 methods);
        QCOMPARE(details()->orderSourceEnabled(source), enabled);
    }

    void orderSources()
    {
        read(QString::fromLatin1(thePayments));
        // The invalid pair CD with mail order is skipped; the empty list of CD stays a key.
        QCOMPARE(details()->availableOrderSources(),
                 (QList<ZTOrderSource>{ZTOrderSource::onlinePointOfSale(), ZTOrderSource::onlineMailOrder(),
                                       ZTOrderSource::cdPointOfSale()}));
        QCOMPARE(details()->permittedPayments(ZTOrderSource::onlineMailOrder()),
                 (QList<ZTPaymentId>{ZTPaymentId(3), ZTPaymentId(1), ZTPaymentId()}));
        QVERIFY(details()->keyAccountPermitsPOS());
        QVERIFY(details()->canAnyOnlineOrder());
        QVERIFY(!details()->canCDPointOfSale());
        // Any delivery type of the online input source.
        QVERIFY(details()->orderSourceEnabled(ZTOrderSource(ZTInputSourceOnline, ZTDeliveryTypeUndecodable)));
        QVERIFY(!details()->orderSourceEnabled(ZTOrderSource(ZTInputSourceCD, ZTDeliveryTypeUndecodable)));

        QCOMPARE(
            names({details()->paymentMethod(ZTOrderSource::onlineMailOrder(), ZTPaymentId(1), QString())}),
            QStringList{QStringLiteral("11 VISA")});
        QCOMPARE(names({details()->paymentMethod(ZTOrderSource::onlineMailOrder(), ZTPaymentId(1),
                                                 QStringLiteral("AMEX"))}),
                 QStringList{QStringLiteral("13 AMEX")});
        QVERIFY(!details()
                     ->paymentMethod(ZTOrderSource::onlinePointOfSale(), ZTPaymentId(3), QString())
                     .isValid());
        QVERIFY(
            !details()
                 ->paymentMethod(ZTOrderSource::onlineMailOrder(), ZTPaymentId(1), QStringLiteral("SOFORT"))
                 .isValid());
    }

    void noDiscOrdersOnThisInstallation()
    {
        read(QStringLiteral("<order_sources><s input_source=\"1\" delivery_type=\"0\">"
                            "<permitted_pay_method id=\"0\"/></s></order_sources>"));
        QVERIFY(details()->canOnlyCdPointOfSale());
        ZTSingleton<ZTPlatformIndependent>::instance()->setDiscOrdersUnavailable(true);
        QVERIFY(!details()->canCDPointOfSale());
        ZTSingleton<ZTPlatformIndependent>::instance()->setDiscOrdersUnavailable(false);
    }

    void currencies_data()
    {
        QTest::addColumn<QString>("currencies");
        QTest::addColumn<QString>("primary");
        QTest::addColumn<QString>("secondary");
        QTest::addColumn<double>("factor");

        QTest::newRow("secondary with its factor") << "<c id=\"EUR\"/><c id=\"CHF\" factor=\"2\"/>"
                                                   << "EUR"
                                                   << "CHF" << 0.5;
        QTest::newRow("primary after secondary resets it") << "<c id=\"CHF\" factor=\"2\"/><c id=\"GBP\"/>"
                                                           << "GBP" << QString() << 1.0;
        QTest::newRow("factor without id") << "<c id=\"EUR\"/><c factor=\"4\"/>"
                                           << "EUR" << QString() << 0.25;
        QTest::newRow("primary without id: EUR") << "<c/>"
                                                 << "EUR" << QString() << 1.0;
        QTest::newRow("no primary element keeps the former currency")
            << "<c id=\"EUR\"/><c id=\"CHF\" factor=\"2\"/>|"
            << "EUR"
            << "CHF" << 0.5;
    }
    void currencies()
    {
        QFETCH(QString, currencies);
        QFETCH(QString, primary);
        QFETCH(QString, secondary);
        QFETCH(double, factor);
        // "a|b": read a, then b; an empty b has no "currencies" at all.
        for (const QString& part : currencies.split(QLatin1Char('|')))
            read(part.isEmpty() ? QString() : QStringLiteral("<currencies>%1</currencies>").arg(part));
        QCOMPARE(details()->currency(), primary);
        QCOMPARE(details()->secondaryCurrency(), secondary);
        QCOMPARE(details()->hasSecondaryCurrency(), !secondary.isNull());
        QCOMPARE(details()->secondaryCurrencyFactor(), factor);
    }

    void brokenFactor()
    {
        QTest::ignoreMessage(QtWarningMsg, "Fehlerhafter Umrechnungsfaktor 1,5");
        read(QStringLiteral("<currencies><c id=\"EUR\"/><c id=\"CHF\" factor=\"1,5\"/></currencies>"));
        QVERIFY(std::isinf(details()->secondaryCurrencyFactor()));
        QVERIFY(details()->hasSecondaryCurrency());
    }

    void couponsAndTexts_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<int>("coupons");
        QTest::addColumn<int>("discountCoupons");
        QTest::addColumn<QString>("packageU");

        const int unlimited = std::numeric_limits<qint32>::max();
        QTest::newRow("no limit")
            << "<allowed_coupon_entries total=\"n\" discount=\"3\"/>"
               "<discount_types><d id=\"U\" single_description=\"%1 Fotos\"/></discount_types>"
            << unlimited << 3 << "%1 Fotopack";
        QTest::newRow("one")
            << "<allowed_coupon_entries total=\"1\"/>"
               "<discount_types><d id=\"U\" group_description=\"Paket %1\"/></discount_types>"
            << 1 << 0 << "Paket %1";
        QTest::newRow("2 is no code")
            << "<allowed_coupon_entries total=\"2\" discount=\"x\"/>" << 0 << 0 << "Paket %1";
    }
    void couponsAndTexts()
    {
        QFETCH(QString, document);
        QFETCH(int, coupons);
        QFETCH(int, discountCoupons);
        QFETCH(QString, packageU);
        read(document);
        QCOMPARE(details()->maxNumberOfCoupons(), coupons);
        QCOMPARE(details()->maxNumberOfDiscountCoupons(), discountCoupons);
        // Descriptions of earlier documents stay until the model is named again.
        QCOMPARE(details()->billPositionDescriptionPackage(ZTDiscountModel(ZTDiscountModelPackage)),
                 packageU);
        QCOMPARE(details()->supportedDiscountModels(),
                 QList<ZTDiscountModel>{ZTDiscountModel(ZTDiscountModelPackage)});
        QCOMPARE(details()->billPositionDescriptionEach(ZTDiscountModel(ZTDiscountModelBulk)), QString());
        QCOMPARE(details()->billPositionDescriptionPackage(ZTDiscountModel(ZTDiscountModelBulk)),
                 QStringLiteral("%1-Stück-Paket %2"));
    }

    void groupsAndRules()
    {
        read(QStringLiteral(
            "<groups transfer_calculation=\"1\" combination=\"1\"><group id=\"2\" name=\"B\"/></groups>"
            "<client_strategy_exceptions><client_strategy_exception connect_strategy=\"velmorat-oauth2\"/>"
            "</client_strategy_exceptions><password_policy min_characters=\"12\"/>"
            "<shipment_methods><shipment_method id=\"4\"/><shipment_method id=\"0\"/></shipment_methods>"));
        QVERIFY(details()->maxTransferOnly());
        QVERIFY(!details()->summarizedTransfers());
        QVERIFY(ZTSingleton<ZTAPMShippingGroupManager>::instance()->hasShippingGroup(ZTShippingGroupId(2)));
        QVERIFY(details()->clientStrategyException().isSSOLogin());
        QCOMPARE(details()->passwordPolicy().minPasswordLength(), 12);
        QCOMPARE(details()->reasonableStartingShipmentMethod(ZTOrderSource(), ZTShipmentMethod()).id(), 0);
        QCOMPARE(details()
                     ->reasonableStartingShipmentMethod(ZTOrderSource(), details()->shipmentMethods().first())
                     .id(),
                 4);

        // A document without them: everything back to the defaults.
        read(QStringLiteral("<groups transfer_calculation=\"0\"/>"));
        QVERIFY(details()->summarizedTransfers());
        QVERIFY(details()->clientStrategyException().isDefault());
        QCOMPARE(details()->passwordPolicy().minPasswordLength(), 8);
        QVERIFY(!details()->reasonableStartingShipmentMethod(ZTOrderSource(), ZTShipmentMethod()).isValid());
        QVERIFY(ZTSingleton<ZTAPMShippingGroupManager>::instance()->shippingGroupIDs().isEmpty());
    }

    // Only the largest transfer with groups combined into one order cannot be ordered: the
    // process ends. Read in a child process, this test program itself.
    void misconfiguration_data()
    {
        QTest::addColumn<QString>("transferCalculation");
        QTest::addColumn<QString>("combination");
        QTest::addColumn<int>("exitCode");

        QTest::newRow("max only, combined: fatal") << "1"
                                                   << "0" << 1;
        QTest::newRow("max only, separate") << "1"
                                            << "1" << 0;
        QTest::newRow("summarized, combined") << "0"
                                              << "0" << 0;
        QTest::newRow("none, combined") << ""
                                        << "0" << 0;
    }
    void misconfiguration()
    {
        QFETCH(QString, transferCalculation);
        QFETCH(QString, combination);
        QFETCH(int, exitCode);

        QTemporaryDir directory;
        QVERIFY(writeDocument(directory.path(),
                              QStringLiteral("<groups transfer_calculation=\"%1\" combination=\"%2\"/>")
                                  .arg(transferCalculation, combination)));
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--read-ordering-details"), directory.path()});
        QVERIFY(child.waitForFinished(60000));
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), exitCode);
        const QByteArray message = "Misconfigured client! This client is not able to order! "
                                   "[ARTGRP_COMBINATION (0) & ARTGRP_TRANSFER_CALC (1)]";
        QCOMPARE(child.readAllStandardError().contains(message), exitCode == 1);
        QCOMPARE(child.readAllStandardOutput().contains("read"), exitCode == 0);
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--read-ordering-details") == 0) {
        ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(QString::fromLocal8Bit(argv[2]));
        ZTSingleton<ZTOrderingDetails>::instance();
        std::puts("read");
        return 0;
    }
    TestOrderingDetails test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ZTOrderingDetails.moc"
