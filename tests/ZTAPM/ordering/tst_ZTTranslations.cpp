#include "ZTAddressLayoutType.h"
#include "ZTShipmentMethod.h"
#include "ZTTranslations.h"

#include <QCoreApplication>
#include <QTest>

// The language a program takes from its environment, and the engine's dialog texts in both
// languages, through the catalogue the build compiles and a program installs.
class tst_ZTTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languageFromEnvironment_data()
    {
        QTest::addColumn<QByteArray>("lcAll");
        QTest::addColumn<QByteArray>("lcMessages");
        QTest::addColumn<QByteArray>("lang");
        QTest::addColumn<QString>("language");

        QTest::newRow("nothing set") << QByteArray() << QByteArray() << QByteArray() << "en";
        QTest::newRow("C") << QByteArray() << QByteArray() << QByteArray("C") << "en";
        QTest::newRow("C with a code set") << QByteArray() << QByteArray() << QByteArray("C.UTF-8") << "en";
        QTest::newRow("POSIX") << QByteArray() << QByteArray() << QByteArray("POSIX") << "en";
        QTest::newRow("German") << QByteArray() << QByteArray() << QByteArray("de_DE.UTF-8") << "de";
        QTest::newRow("German with modifier")
            << QByteArray() << QByteArray() << QByteArray("de_AT@euro") << "de";
        QTest::newRow("French") << QByteArray() << QByteArray() << QByteArray("fr_FR.UTF-8") << "fr";
        QTest::newRow("LC_MESSAGES before LANG")
            << QByteArray() << QByteArray("C") << QByteArray("de_DE") << "en";
        QTest::newRow("LC_ALL before both")
            << QByteArray("de_CH.UTF-8") << QByteArray("en_GB") << QByteArray("C") << "de";
        QTest::newRow("an empty LC_ALL counts as unset")
            << QByteArray("") << QByteArray() << QByteArray("de_DE") << "de";
    }
    void languageFromEnvironment()
    {
        QFETCH(QByteArray, lcAll);
        QFETCH(QByteArray, lcMessages);
        QFETCH(QByteArray, lang);
        QFETCH(QString, language);
        const auto set = [](const char* theName, const QByteArray& theValue) {
            if (theValue.isNull())
                qunsetenv(theName);
            else
                qputenv(theName, theValue);
        };
        set("LC_ALL", lcAll);
        set("LC_MESSAGES", lcMessages);
        set("LANG", lang);
        QCOMPARE(ZTTranslations::languageFromEnvironment(), language);
    }

    void engineTexts_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("registration");
        QTest::addColumn<QString>("intro");
        QTest::addColumn<QString>("company");

        // German is the language of the code: there is no catalogue to install.
        QTest::newRow("de") << "de" << QStringList() << "Noch kein Kunde?"
                            << "<i>Für diesen Dienstleister werden weitere Angaben benötigt.</i>"
                            << "Firma";
        QTest::newRow("en") << "en" << QStringList{QStringLiteral("ZTAPM")} << "Not a customer yet?"
                            << "<i>This carrier needs further details.</i>"
                            << "Company";
        // A later call replaces what an earlier one installed.
        QTest::newRow("de again") << "de" << QStringList() << "Noch kein Kunde?"
                                  << "<i>Für diesen Dienstleister werden weitere Angaben benötigt.</i>"
                                  << "Firma";
    }
    void engineTexts()
    {
        QFETCH(QString, language);
        QFETCH(QStringList, installed);
        QFETCH(QString, registration);
        QFETCH(QString, intro);
        QFETCH(QString, company);
        QCOMPARE(
            ZTTranslations::install(language, {QStringLiteral("ZTAPM")}, QStringLiteral(ZT_TRANSLATIONS_DIR)),
            installed);
        const ZTShipmentMethod method;
        QCOMPARE(method.registrationText(), registration);
        QCOMPARE(method.intro(), intro);
        QCOMPARE(ZTAddressLayoutType(ZTAddressLayoutTypeBillingCompany).visibleName(), company);
    }
};

QTEST_GUILESS_MAIN(tst_ZTTranslations)
#include "tst_ZTTranslations.moc"
