#include "ZTAPMConfig.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMGlobalStatus.h"
#include "ZTAPMObjects.h"
#include "ZTAPMSettings.h"
#include "ZTAPMStatus.h"
#include "ZTArticleId.h"
#include "ZTInitializer.h"
#include "ZTKeyAccount.h"
#include "ZTOrderingDetails.h"
#include "ZTProductAbstract.h"
#include "ZTProgramConfig.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

// The settings live in a directory of the test's own, never in the user's.
QTemporaryDir* configDirectory()
{
    static QTemporaryDir* theDirectory = new QTemporaryDir;
    return theDirectory;
}

QString settingsFile()
{
    return configDirectory()->path() + QStringLiteral("/ztapm/settings.ini");
}

QString stored(const ZTOrderSource& theSource)
{
    return QSettings(settingsFile(), QSettings::IniFormat)
        .value(QStringLiteral("selectedPayments/") + theSource.toString())
        .toString();
}

ZTPaymentMethod method(const ZTOrderSource& theSource, int theId, const QString& theBrand = QString())
{
    return ZTSingleton<ZTOrderingDetails>::instance()->paymentMethod(theSource, ZTPaymentId(theId), theBrand);
}

QString describe(const ZTPaymentMethod& theMethod)
{
    return QStringLiteral("%1 %2").arg(theMethod.paymentId().id()).arg(theMethod.brand()).trimmed();
}

// Which of the start-up singletons exist when a "Creating..." or "Created." line is logged.
QStringList theStartupLines;
QtMessageHandler thePreviousHandler = nullptr;

void recordStartup(QtMsgType theType, const QMessageLogContext& theContext, const QString& theMessage)
{
    if (theType == QtInfoMsg &&
        (theMessage == QLatin1String("Creating...") || theMessage == QLatin1String("Created."))) {
        QStringList existing;
        if (ZTSingleton<ZTAPMConfig>::exists())
            existing << QStringLiteral("config");
        if (ZTSingleton<ZTOrderingDetails>::exists())
            existing << QStringLiteral("details");
        if (ZTSingleton<ZTAPMSettings>::exists())
            existing << QStringLiteral("settings");
        if (ZTSingleton<ZTAPMGlobalStatus>::exists())
            existing << QStringLiteral("status");
        if (ZTSingleton<ZTAPMObjects>::exists())
            existing << QStringLiteral("objects");
        if (ZTSingleton<ZTAPMDataBase>::exists())
            existing << QStringLiteral("database");
        theStartupLines.append(theMessage + QLatin1Char(' ') + existing.join(QLatin1Char(',')));
    }
    thePreviousHandler(theType, theContext, theMessage);
}

} // namespace

// The order status on the demo key account (mail order by default; online point of sale permits
// the credit cards and cash, CD at a point of sale nothing) and the remembered payments.
class TestAPMStatus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startUpOrder()
    {
        thePreviousHandler = qInstallMessageHandler(&recordStartup);
        ZTSingleton<ZTInitializer>::instance()->setupAll(ZTInitializerOption());
        qInstallMessageHandler(thePreviousHandler);
        // The status first, which brings up configuration and ordering details (the settings only
        // if the default payment is not permitted); then the data base, which loads the catalogue
        // and so brings the stores into being.
        QCOMPARE(theStartupLines, (QStringList{
                                      QStringLiteral("Creating... "),
                                      QStringLiteral("Creating... config"),
                                      QStringLiteral("Created. config"),
                                      QStringLiteral("Created. config,details"),
                                      QStringLiteral("Creating... config,details,status"),
                                      QStringLiteral("Creating... config,details,status"),
                                      QStringLiteral("Created. config,details,status"),
                                      QStringLiteral("Created. config,details,status,objects"),
                                  }));
        const ZTAPMGlobalStatus* status = ZTSingleton<ZTAPMGlobalStatus>::instance();
        QCOMPARE(status->orderSource(), ZTOrderSource::onlineMailOrder());
        QCOMPARE(describe(status->paymentMethod()), QStringLiteral("3"));
        QCOMPARE(status->status().shipmentMethod().id(), 0);
        // A product's plain price is the one under the current order source.
        ZTProductAbstract* fee = ZTSingleton<ZTAPMDataBase>::instance()->paymentFeeProduct(
            method(ZTOrderSource::onlineMailOrder(), 1, QStringLiteral("AMEX")));
        QVERIFY(fee);
        QCOMPARE(fee->price(), ZTMoney(150));
        QCOMPARE(fee->fullQualifiedName(), QStringLiteral("Gebühr Kreditkarte"));
        // A print names its shipping group.
        QCOMPARE(
            ZTSingleton<ZTAPMDataBase>::instance()->productAbstract(ZTArticleId(3001))->fullQualifiedName(),
            QStringLiteral("Abzug 9x13 (Fotoabzüge und Poster)"));
    }

    void orderSourceChange()
    {
        ZTAPMStatus status;
        QCOMPARE(status.orderSource(), ZTOrderSource::onlineMailOrder());
        QCOMPARE(describe(status.paymentMethod()), QStringLiteral("3"));
        status.setShipmentMethod(ZTSingleton<ZTOrderingDetails>::instance()->shipmentMethods().value(96));
        ZTSingleton<ZTAPMSettings>::instance()->setLastSelectedPayment(
            ZTOrderSource::onlinePointOfSale(),
            method(ZTOrderSource::onlinePointOfSale(), 1, QStringLiteral("AMEX")));

        // Another delivery type: payment 3 is not permitted there, the remembered one is.
        status.setOrderSource(ZTOrderSource::onlinePointOfSale());
        QCOMPARE(describe(status.paymentMethod()), QStringLiteral("1 AMEX"));
        QVERIFY(!status.differentShippingAddressPossible());
        // The input source alone: the payment stays, although CD permits nothing.
        status.setOrderSource(ZTOrderSource::cdPointOfSale());
        QCOMPARE(describe(status.paymentMethod()), QStringLiteral("1 AMEX"));
        // Back to mail order: still permitted, so kept.
        status.setPriceKey(ZTAPMPriceKey(ZTOrderSource::onlineMailOrder()));
        QCOMPARE(describe(status.paymentMethod()), QStringLiteral("1 AMEX"));
        QVERIFY(status.differentShippingAddressPossible());
        // Never touched by a change of order source.
        QCOMPARE(status.shipmentMethod().id(), 96);
        QVERIFY(status != ZTAPMStatus());
    }

    void globalStatusSignalsAndFallbacks()
    {
        ZTAPMGlobalStatus* global = ZTSingleton<ZTAPMGlobalStatus>::instance();
        QSignalSpy changed(global, &ZTAPMGlobalStatus::orderSourceChanged);
        global->setOrderSource(ZTOrderSource::onlineMailOrder());
        QCOMPARE(changed.count(), 0);

        // Not enabled: the first source the key account lists.
        QTest::ignoreMessage(QtWarningMsg,
                             " -- Konfiguriere auf den ersten verfügbaren Bestellweg um. Default- "
                             "UND konfigurierter Bestellweg sind nicht verfügbar.");
        global->initOrderSource(ZTOrderSource::cdPointOfSale());
        QCOMPARE(global->orderSource(), ZTOrderSource::onlinePointOfSale());
        QCOMPARE(changed.count(), 1);

        // A key account without any order source: nothing to switch to.
        QTemporaryDir empty;
        QFile file(empty.path() + QStringLiteral("/orderingdetails.xml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<ordering_details/>");
        file.close();
        ZTSingleton<ZTKeyAccount>::instance()->switchTo(empty.path());
        QTest::ignoreMessage(QtWarningMsg, " -- Wir haben keinen Bestellweg.");
        global->initOrderSource();
        QCOMPARE(global->orderSource(), ZTOrderSource::onlinePointOfSale());
        QCOMPARE(changed.count(), 1);
        ZTSingleton<ZTKeyAccount>::instance()->switchTo(QStringLiteral(ZT_DEMO_DATA_DIR));
        global->setOrderSource(ZTOrderSource::onlineMailOrder());
    }

    void rememberedPayments_data()
    {
        QTest::addColumn<ZTOrderSource>("source");
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("brand");
        QTest::addColumn<QString>("text");

        QTest::newRow("ordinary") << ZTOrderSource::onlineMailOrder() << 25 << QString() << "25";
        QTest::newRow("credit card with brand") << ZTOrderSource::onlineMailOrder() << 1 << "MASTERCARD"
                                                << "1_MASTERCARD";
        QTest::newRow("online transfer with brand") << ZTOrderSource::onlineMailOrder() << 9 << "GIROPAY"
                                                    << "9_GIROPAY";
        QTest::newRow("point of sale") << ZTOrderSource::onlinePointOfSale() << 0 << QString() << "0";
    }
    void rememberedPayments()
    {
        QFETCH(ZTOrderSource, source);
        QFETCH(int, id);
        QFETCH(QString, brand);
        QFETCH(QString, text);

        ZTAPMSettings* settings = ZTSingleton<ZTAPMSettings>::instance();
        const ZTPaymentMethod chosen = method(source, id, brand);
        QVERIFY(chosen.isValid());
        settings->setLastSelectedPayment(source, chosen);
        QCOMPARE(stored(source), text);
        settings->loadSettings();
        QCOMPARE(settings->lastSelectedPayment(source), chosen);
    }

    void rememberedPaymentsEdgeCases()
    {
        ZTAPMSettings* settings = ZTSingleton<ZTAPMSettings>::instance();
        const ZTOrderSource mail = ZTOrderSource::onlineMailOrder();
        settings->setLastSelectedPayment(mail, method(mail, 3));
        // The same value again writes nothing: what another program stored meanwhile stays.
        QSettings(settingsFile(), QSettings::IniFormat)
            .setValue(QStringLiteral("selectedPayments/0_1"), QStringLiteral("40"));
        settings->setLastSelectedPayment(mail, method(mail, 3));
        QCOMPARE(stored(mail), QStringLiteral("40"));

        // A brand is cut at "_"; a text that is no number is id 0, which mail order does not permit.
        for (const QString& value : {QStringLiteral("1_MASTER_CARD"), QStringLiteral("Visa")}) {
            QSettings(settingsFile(), QSettings::IniFormat)
                .setValue(QStringLiteral("selectedPayments/0_1"), value);
            settings->loadSettings();
            QVERIFY2(!settings->lastSelectedPayment(mail).isValid(), qPrintable(value));
        }
        // A source without an item gets one on the first choice.
        settings->setLastSelectedPayment(ZTOrderSource(ZTInputSourceCD, ZTDeliveryTypeMailOrder),
                                         method(mail, 3));
        QCOMPARE(stored(ZTOrderSource(ZTInputSourceCD, ZTDeliveryTypeMailOrder)), QStringLiteral("3"));
        QVERIFY(!QSettings(settingsFile(), QSettings::IniFormat).contains(QStringLiteral("userPaymentType")));
    }

    // Two programs that remember payments at the same time keep each other's choices.
    void twoProgramsSaving()
    {
        QProcess mail;
        QProcess pointOfSale;
        mail.start(QCoreApplication::applicationFilePath(),
                   {QStringLiteral("--remember"), QStringLiteral("FM")});
        pointOfSale.start(QCoreApplication::applicationFilePath(),
                          {QStringLiteral("--remember"), QStringLiteral("FC")});
        QVERIFY(mail.waitForFinished(60000));
        QVERIFY(pointOfSale.waitForFinished(60000));
        QCOMPARE(mail.exitCode(), 0);
        QCOMPARE(pointOfSale.exitCode(), 0);
        QCOMPARE(stored(ZTOrderSource::onlineMailOrder()), QStringLiteral("25"));
        QCOMPARE(stored(ZTOrderSource::onlinePointOfSale()), QStringLiteral("1_VISA"));
    }
};

int main(int argc, char** argv)
{
    ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(QStringLiteral(ZT_DEMO_DATA_DIR));
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--remember") == 0) {
        // In the settings directory of the parent, which it inherits.
        // Alternates between two payments of the source, ending with the second.
        const bool mail = qstrcmp(argv[2], "FM") == 0;
        const ZTOrderSource source =
            mail ? ZTOrderSource::onlineMailOrder() : ZTOrderSource::onlinePointOfSale();
        const ZTPaymentMethod first = mail ? method(source, 3) : method(source, 0);
        const ZTPaymentMethod second = mail ? method(source, 25) : method(source, 1, QStringLiteral("VISA"));
        ZTAPMSettings* settings = ZTSingleton<ZTAPMSettings>::instance();
        for (int i = 0; i < 40; ++i)
            settings->setLastSelectedPayment(source, i % 2 == 0 ? first : second);
        return 0;
    }
    // Before anything asks for a settings file; the children inherit it.
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(configDirectory()->path()));
    TestAPMStatus test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ZTAPMStatus.moc"
