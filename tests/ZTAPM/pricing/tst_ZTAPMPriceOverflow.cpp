#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMBillPositionInvalid.h"
#include "ZTAPMBillPositionList.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

#include <climits>

// Hostile price tables: amounts beyond 32 bits are no price with one warning, never a wrapped
// number, and levels or bounds at the ends of the integers neither hang a walk nor overflow.
class tst_ZTAPMPriceOverflow : public QObject
{
    Q_OBJECT

private:
    // An article of mail-order rows; each of theRows is the attributes of one "price" element.
    static ZTAPMArticlePriceInfo article(const QStringList& theRows)
    {
        QString xml = QStringLiteral("<article id=\"1\"><base_prices>");
        for (const QString& row : theRows)
            xml += QStringLiteral("<price input_source=\"0\" delivery_type=\"1\" %1/>").arg(row);
        QDomDocument doc;
        doc.setContent(xml + QStringLiteral("</base_prices></article>"));
        return ZTAPMArticlePriceInfo::createFromXTCI(doc.documentElement());
    }

    static ZTAPMPriceKey mail(int theLevel = -1, ZTDiscountModelEnum theModel = ZTDiscountModelNone)
    {
        return ZTAPMPriceKey(ZTOrderSource::onlineMailOrder(), theLevel, theModel);
    }

    // "units@unit price" per position, "invalid" for an invalid one.
    static QString listing(const ZTAPMBillPositionList& thePositions)
    {
        QStringList lines;
        for (const ZTAPMBillPositionAbstract* entry : thePositions)
            lines.append(
                dynamic_cast<const ZTAPMBillPositionInvalid*>(entry)
                    ? QStringLiteral("invalid")
                    : QStringLiteral("%1@%2").arg(entry->unitCount()).arg(entry->unitPrice().value()));
        return lines.join(QStringLiteral("; "));
    }

    static void expectWarning(bool theWarns)
    {
        if (theWarns)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("does not fit in 32 bits: no price$")));
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void amountsThatDoNotFit_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("amount");
        QTest::addColumn<QString>("positions");
        QTest::addColumn<bool>("warns");

        QTest::newRow("bulk total beyond 32 bits")
            << QStringList{"price=\"2148\""} << 1000000 << -1 << "invalid" << true;
        QTest::newRow("bulk total on the unset sentinel")
            << QStringList{"price=\"1\""} << INT_MAX << -1 << "invalid" << true;
        QTest::newRow("the largest amount fits")
            << QStringList{"price=\"2147483646\""} << 1 << 2147483646 << "1@2147483646" << false;
        QTest::newRow("a flat price that fits wins over the total that does not")
            << QStringList{"price=\"2148\"", "type=\"f\" price=\"500\""} << 1000000 << 500 << "1@500"
            << false;
        QTest::newRow("inherited price times a huge count")
            << QStringList{"type=\"I\" price=\"3\""} << 1000000000 << -1 << "invalid" << true;
        QTest::newRow("photos beyond a base package bound of the smallest integer")
            << QStringList{"type=\"w\" level=\"1\" price=\"1000\"",
                           "type=\"w\" level=\"2\" quantity=\"-2147483647\" price=\"1\""}
            << 5 << -1 << "invalid" << true;
        QTest::newRow("free photos beyond that bound still fit")
            << QStringList{"type=\"w\" level=\"1\" price=\"1000\"",
                           "type=\"w\" level=\"2\" quantity=\"-2147483647\" price=\"0\""}
            << 5 << 1000 << "1@1000" << false;
    }

    // The same answer with and without a bill, and exactly one warning per question.
    void amountsThatDoNotFit()
    {
        QFETCH(QStringList, rows);
        QFETCH(int, count);
        QFETCH(int, amount);
        QFETCH(QString, positions);
        QFETCH(bool, warns);
        const ZTAPMArticlePriceInfo info = article(rows);
        expectWarning(warns);
        QCOMPARE(info.priceFor(mail(), count, ZTMoney(0), nullptr, nullptr), ZTMoney(amount));
        ZTAPMBillPositionList bill;
        expectWarning(warns);
        QCOMPARE(info.priceFor(mail(), count, ZTMoney(0), &bill, nullptr), ZTMoney(amount));
        QCOMPARE(listing(bill), positions);
        qDeleteAll(bill);
        expectWarning(warns);
        QCOMPARE(info.explainPrice(mail(), count, ZTMoney(0), nullptr).amount(), ZTMoney(amount));
    }

    void moneyArithmetic_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<char>("operation");
        QTest::addColumn<int>("operand");
        QTest::addColumn<int>("result");

        QTest::newRow("sum beyond 32 bits") << INT_MAX << '+' << 1 << -1;
        QTest::newRow("sum onto the unset sentinel") << 2147483646 << '+' << 1 << -1;
        QTest::newRow("difference below 32 bits") << INT_MIN << '-' << 1 << -1;
        QTest::newRow("smallest integer is an amount") << INT_MIN + 1 << '-' << 1 << INT_MIN;
        QTest::newRow("product beyond 32 bits") << 100000 << '*' << 100000 << -1;
        QTest::newRow("product onto the unset sentinel") << INT_MAX << '*' << 1 << -1;
        QTest::newRow("no price times a count is plain arithmetic") << -1 << '*' << 4 << -4;
        QTest::newRow("an exact large product") << 1073741823 << '*' << 2 << 2147483646;
    }
    void moneyArithmetic()
    {
        QFETCH(int, value);
        QFETCH(char, operation);
        QFETCH(int, operand);
        QFETCH(int, result);
        ZTMoney money(value);
        if (operation == '+')
            money += ZTMoney(operand);
        else if (operation == '-')
            money -= ZTMoney(operand);
        else
            money *= operand;
        QCOMPARE(money.value(), result);
    }

    void levelsAtTheEndsOfTheIntegers_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("amount");
        QTest::addColumn<int>("levelZeroUpperLimit");

        const QString base = QStringLiteral("price=\"100\"");
        QTest::newRow("a level just below the largest, not reached")
            << QStringList{base, "level=\"2147483646\" quantity=\"50\" price=\"80\""} << 10 << 1000 << -1;
        QTest::newRow("a level just below the largest, reached")
            << QStringList{base, "level=\"2147483646\" quantity=\"50\" price=\"80\""} << 60 << 4800 << -1;
        QTest::newRow("the largest level")
            << QStringList{base, "level=\"2147483647\" quantity=\"50\" price=\"80\""} << 60 << 4800 << -1;
        QTest::newRow("a level 1 bound of the smallest integer")
            << QStringList{base, "level=\"1\" quantity=\"-2147483648\" price=\"90\""} << 1 << 90 << INT_MIN;
    }

    // Without a row-by-row walk the first two levels cost minutes per question; the last two
    // overflowed on computing the upper bounds.
    void levelsAtTheEndsOfTheIntegers()
    {
        QFETCH(QStringList, rows);
        QFETCH(int, count);
        QFETCH(int, amount);
        QFETCH(int, levelZeroUpperLimit);
        const ZTAPMArticlePriceInfo info = article(rows);
        QCOMPARE(info.priceFor(mail(), count, ZTMoney(0), nullptr, nullptr), ZTMoney(amount));
        QCOMPARE(info.priceValue(mail(0, ZTDiscountModelBulk)).upperLimit(), levelZeroUpperLimit);
        // The catalogue's walk up the ladder: the row of the highest level by its bound.
        const ZTAPMPriceValue top = info.ladder(ZTOrderSource::onlineMailOrder()).last();
        QCOMPARE(info.priceAtBound(mail(), top.discountLimit()), top.price());
        QCOMPARE(top.upperLimit(), -1);
    }

    void inheritedLevelFarAboveTheLadder()
    {
        const ZTAPMArticlePriceInfo info =
            article({"type=\"I\" price=\"50\"", "type=\"I\" level=\"2\" quantity=\"5\" price=\"30\""});
        QCOMPARE(info.priceInheritedDiscount(mail(INT_MAX - 1, ZTDiscountModelInherited), 2, nullptr),
                 ZTMoney(60));
    }
};

QTEST_GUILESS_MAIN(tst_ZTAPMPriceOverflow)
#include "tst_ZTAPMPriceOverflow.moc"
