#include "ZTCurrency.h"
#include "ZTCurrencyConfig.h"
#include "ZTMoney.h"
#include "ZTOrderingDetails.h"

#include <QDomDocument>
#include <QTest>

namespace {

const QString nbsp(QChar(0x00A0));

ZTCurrency currency(const QString& theChildren)
{
    QDomDocument document;
    document.setContent(QStringLiteral("<currency isocode=\"XXX\">%1</currency>").arg(theChildren));
    return ZTCurrency(document.documentElement());
}

} // namespace

// Sums as text: the currency's own rules, and the key account's primary and secondary currency
// (the demo: euro, and Swiss francs at 1.25 euros each).
class TestCurrency : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void format_data()
    {
        QTest::addColumn<QString>("children");
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("html");
        QTest::addColumn<bool>("withSymbol");
        QTest::addColumn<QString>("text");

        QTest::newRow("defaults, negative: minus and blank, leading zero")
            << QString() << -5 << false << false << "- 0,05";
        QTest::newRow("defaults, zero with symbol behind")
            << QString() << 0 << false << true << "0,00" + nbsp + "€";
        QTest::newRow("defaults in HTML") << QString() << 123456 << true << true << "1234,56&nbsp;&euro;";
        QTest::newRow("no decimal places: neither separator nor fraction")
            << "<decimalplaces>0</decimalplaces>" << 1234 << false << false << "12";
        QTest::newRow("one place cuts 45 hundredths to 4")
            << "<decimalplaces>1</decimalplaces>" << 145 << false << false << "1,4";
        QTest::newRow("one place, 5 hundredths read 5")
            << "<decimalplaces>1</decimalplaces>" << 105 << false << false << "1,5";
        QTest::newRow("three places add no zero")
            << "<decimalplaces>3</decimalplaces>" << 145 << false << false << "1,45";
        QTest::newRow("three places, 5 hundredths")
            << "<decimalplaces>3</decimalplaces>" << 105 << false << false << "1,5";
        QTest::newRow("front symbol stands before the minus")
            << "<symbol>CHF</symbol><symbolinfront>true</symbolinfront><decimalsep>.</decimalsep>" << -1999
            << false << true << "CHF" + nbsp + "- 19.99";
        QTest::newRow("without symbolHTML the euro's, whatever the symbol")
            << "<symbol>CHF</symbol>" << 100 << true << true << "1,00&nbsp;&euro;";
        QTest::newRow("an empty symbolHTML falls back to the symbol")
            << "<symbol>CHF</symbol><symbolHTML/>" << 100 << true << true << "1,00&nbsp;CHF";
        QTest::newRow("the most negative sum")
            << QString() << int(0x80000000) << false << false << "- 21474836,48";
    }
    void format()
    {
        QFETCH(QString, children);
        QFETCH(int, value);
        QFETCH(bool, html);
        QFETCH(bool, withSymbol);
        QFETCH(QString, text);
        QCOMPARE(currency(children).format(value, html, withSymbol), text);
    }

    void withoutIsoCode()
    {
        QTest::ignoreMessage(QtWarningMsg, "found currency without isocode");
        QDomDocument document;
        document.setContent(QStringLiteral("<currency><symbol>$</symbol></currency>"));
        const ZTCurrency kept(document.documentElement());
        QCOMPARE(kept.symbol(), QStringLiteral("$"));
        QCOMPARE(kept.genericName(), QStringLiteral("Euro"));
    }

    void keyAccountCurrencies_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("primary");
        QTest::addColumn<QString>("secondary");

        // Converted by 1 / 1.25 = 0.8 and cut toward zero: 7 hundredths give 5.6, so 5.
        QTest::newRow("cut, not rounded") << 7 << "0,07" + nbsp + "€"
                                          << "CHF" + nbsp + "0.05";
        QTest::newRow("a larger sum") << 1999 << "19,99" + nbsp + "€"
                                      << "CHF" + nbsp + "15.99";
        QTest::newRow("negative cuts toward zero") << -7 << "- 0,07" + nbsp + "€"
                                                   << "CHF" + nbsp + "- 0.05";
        QTest::newRow("below one secondary hundredth") << 1 << "0,01" + nbsp + "€"
                                                       << "CHF" + nbsp + "0.00";
    }
    void keyAccountCurrencies()
    {
        QFETCH(int, value);
        QFETCH(QString, primary);
        QFETCH(QString, secondary);

        const ZTOrderingDetails* details = ZTSingleton<ZTOrderingDetails>::instance();
        QCOMPARE(details->currency(), QStringLiteral("EUR"));
        QCOMPARE(details->secondaryCurrency(), QStringLiteral("CHF"));
        QCOMPARE(ZTMoney(value).fullText(), primary);
        QCOMPARE(ZTMoney(value).fullText(true, false, true), secondary);
        const ZTCurrencyConfig* config = ZTSingleton<ZTCurrencyConfig>::instance();
        QCOMPARE(config->text(value, false), ZTMoney(value).fullText(false));
        QCOMPARE(config->currencySymbol(true, true), QStringLiteral("CHF"));
        QCOMPARE(config->currencySymbol(true, false), QStringLiteral("&euro;"));
    }

    void unknownCode()
    {
        QTest::ignoreMessage(QtWarningMsg, "unknown currency: 'XYZ'");
        QVERIFY(!ZTSingleton<ZTCurrencyConfig>::instance()->currency(QStringLiteral("XYZ")));
        QCOMPARE(ZTSingleton<ZTCurrencyConfig>::instance()
                     ->currency(QStringLiteral("JPY"))
                     ->format(123456, false, true),
                 "¥" + nbsp + "1234");
    }
};

QTEST_GUILESS_MAIN(TestCurrency)
#include "tst_ZTCurrency.moc"
