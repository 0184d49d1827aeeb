#include "ZTXMLBuilder.h"
#include "ZTXMLParser.h"

#include <QDomDocument>
#include <QTest>

#include <QRandomGenerator>

#include <cstring>
#include <limits>

// Readers must never fail loudly: a malformed value gives the caller's default.
class tst_ZTXMLParser : public QObject
{
    Q_OBJECT

private:
    static QDomElement parse(const QString& theXml)
    {
        QDomDocument document;
        if (!document.setContent(theXml))
            qFatal("test document does not parse");
        return document.documentElement();
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void fastDecodeInt_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<int>("value");
        QTest::newRow("plain") << "42" << true << 42;
        QTest::newRow("blanks and sign") << " \t-7 \n" << true << -7;
        QTest::newRow("plus") << "+3" << true << 3;
        QTest::newRow("leading zeros") << "007" << true << 7;
        QTest::newRow("max") << "2147483647" << true << std::numeric_limits<int>::max();
        QTest::newRow("min") << "-2147483648" << true << std::numeric_limits<int>::min();
        QTest::newRow("overflow") << "2147483648" << false << 0;
        QTest::newRow("long overflow") << "99999999999999999999999" << false << 0;
        QTest::newRow("empty") << "" << false << 0;
        QTest::newRow("sign only") << "-" << false << 0;
        QTest::newRow("inner blank") << "1 2" << false << 0;
        QTest::newRow("decimal") << "4.0" << false << 0;
        QTest::newRow("hex") << "0x10" << false << 0;
        QTest::newRow("unit") << "12mm" << false << 0;
        QTest::newRow("arabic digits") << QString::fromUtf8("\u0661\u0662") << false << 0;
    }
    void fastDecodeInt()
    {
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(int, value);
        bool decoded = !ok;
        QCOMPARE(ZTXMLParser::fastDecodeInt(text, &decoded), value);
        QCOMPARE(decoded, ok);
        QCOMPARE(ZTXMLParser::fastDecodeInt(text), value);
    }

    void attributesFallBackToDefaults()
    {
        const QDomElement e = parse(QStringLiteral(
            "<e n=\" 12 \" bad=\"12x\" empty=\"\" blank=\"  \" yes=\"YES\" no=\"0\" maybe=\"vielleicht\""
            " when=\"2024-03-01T10:15:00\" never=\"gestern\" name=\"Fotobuch A4\"/>"));
        const ZTXMLParser parser; // callers reach the static operations through an object, too
        QCOMPARE(parser.intAttribute(e, QStringLiteral("n"), -1), 12);
        QCOMPARE(ZTXMLParser::intAttribute(e, QStringLiteral("bad"), -1), -1);
        QCOMPARE(ZTXMLParser::intAttribute(e, QStringLiteral("empty"), -1), -1);
        QCOMPARE(ZTXMLParser::intAttribute(e, QStringLiteral("missing"), -1), -1);
        QCOMPARE(ZTXMLParser::intAttribute(e.attributes(), QStringLiteral("n"), -1), 12);
        QCOMPARE(ZTXMLParser::intAttribute(e.attributes(), QStringLiteral("bad"), 5), 5);

        QCOMPARE(ZTXMLParser::attribute(e, QStringLiteral("name"), QStringLiteral("x"), true),
                 QStringLiteral("Fotobuch A4"));
        QCOMPARE(ZTXMLParser::attribute(e, QStringLiteral("missing"), QStringLiteral("mm"), false),
                 QStringLiteral("mm"));
        QCOMPARE(ZTXMLParser::attribute(e, QStringLiteral("blank"), QStringLiteral("mm"), true),
                 QStringLiteral("mm"));
        QCOMPARE(ZTXMLParser::attribute(e, QStringLiteral("empty"), QStringLiteral("mm"), false), QString());

        QCOMPARE(ZTXMLParser::boolAttribute(e, QStringLiteral("yes"), false), true);
        QCOMPARE(ZTXMLParser::boolAttribute(e, QStringLiteral("no"), true), false);
        QCOMPARE(ZTXMLParser::boolAttribute(e, QStringLiteral("maybe"), true), true);
        QCOMPARE(ZTXMLParser::boolAttribute(e, QStringLiteral("maybe"), false), false);
        QCOMPARE(ZTXMLParser::boolAttribute(e, QStringLiteral("missing"), true), true);

        const QDateTime fallback = QDateTime::fromString(QStringLiteral("1970-05-26T09:30:00"), Qt::ISODate);
        QCOMPARE(ZTXMLParser::dateTimeAttribute(e, QStringLiteral("when"), Qt::ISODate, fallback),
                 QDateTime(QDate(2024, 3, 1), QTime(10, 15)));
        QCOMPARE(ZTXMLParser::dateTimeAttribute(e, QStringLiteral("never"), Qt::ISODate, fallback), fallback);
        QVERIFY(!ZTXMLParser::dateTimeAttribute(e, QStringLiteral("missing"), Qt::ISODate, QDateTime())
                     .isValid());
    }

    void readDistance_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<double>("pixels");
        QTest::newRow("number") << "210" << 2100.0;
        QTest::newRow("fraction") << "0.05" << 0.5;
        QTest::newRow("decimal comma") << "12,5" << 125.0;
        QTest::newRow("blanks") << " 3 " << 30.0;
        QTest::newRow("malformed gives default") << "12mm" << 70.0;
        QTest::newRow("two commas give default") << "1,2,3" << 70.0;
        QTest::newRow("infinite gives default") << "inf" << 70.0;
    }
    void readDistance()
    {
        QFETCH(QString, value);
        QFETCH(double, pixels);
        QDomDocument document;
        QDomElement e = document.createElement(QStringLiteral("page"));
        e.setAttribute(QStringLiteral("width"), value);
        const ZTDistanceUnit mm(ZTDistanceUnitMillimetre);
        QCOMPARE(ZTXMLParser::readDistance(e, QStringLiteral("width"), 7.0, mm).pixels(), pixels);
        QCOMPARE(ZTXMLParser::readDistance(e, QStringLiteral("height"), 7.0, mm).pixels(), 70.0);
    }

    // Plain decimals take a quicker road than the general conversion: the values must not differ
    // in a single bit.
    void readDistanceAgreesWithTheGeneralConversion()
    {
        QDomDocument document;
        QDomElement e = document.createElement(QStringLiteral("page"));
        // Pixels, so that the value read is the distance, below the longest one accepted.
        const ZTDistanceUnit unit(ZTDistanceUnitPixel);
        QRandomGenerator random(1511);
        for (int i = 0; i < 20000; ++i) {
            const int whole = int(random.bounded(1, 8));
            const int fraction = int(random.bounded(0, 16 - whole));
            QString text = random.bounded(4) == 0 ? QStringLiteral("-") : QString();
            for (int d = 0; d < whole + fraction; ++d) {
                if (d == whole)
                    text += QLatin1Char('.');
                text += QLatin1Char(char('0' + random.bounded(10)));
            }
            e.setAttribute(QStringLiteral("width"), text);
            const double expected = ZTDistance(text.toDouble(), unit).pixels();
            const double read = ZTXMLParser::readDistance(e, QStringLiteral("width"), 7.0, unit).pixels();
            if (std::memcmp(&read, &expected, sizeof read) != 0)
                QFAIL(qPrintable(text));
        }
    }

    void childTexts()
    {
        const QDomElement e =
            parse(QStringLiteral("<currency><symbol>\u20ac</symbol><decimalplaces> 2 </decimalplaces>"
                                 "<symbolinfront>true</symbolinfront><bad>zwei</bad>"
                                 "<empty/></currency>"));
        QCOMPARE(ZTXMLParser::text(e, QStringLiteral("symbol"), QStringLiteral("?")),
                 QStringLiteral("\u20ac"));
        QCOMPARE(ZTXMLParser::text(e, QStringLiteral("name"), QStringLiteral("Euro")),
                 QStringLiteral("Euro"));
        QCOMPARE(ZTXMLParser::text(e, QStringLiteral("empty"), QStringLiteral("x")), QString());
        QCOMPARE(ZTXMLParser::intText(e, QStringLiteral("decimalplaces"), 9), 2);
        QCOMPARE(ZTXMLParser::intText(e, QStringLiteral("bad"), 9), 9);
        QCOMPARE(ZTXMLParser::intText(e, QStringLiteral("missing"), 9), 9);
        QCOMPARE(ZTXMLParser::boolText(e, QStringLiteral("symbolinfront"), false), true);
        QCOMPARE(ZTXMLParser::boolText(e, QStringLiteral("bad"), true), true);
        QCOMPARE(ZTXMLParser::intValue(e.firstChildElement(QStringLiteral("decimalplaces")), -1), 2);
        QCOMPARE(ZTXMLParser::intValue(e.firstChildElement(QStringLiteral("bad")), -1), -1);
        QCOMPARE(ZTXMLParser::intValue(QDomElement(), -1), -1);
    }

    void builderWritesWhatTheParserReads()
    {
        QDomDocument document(QStringLiteral("order")); // a default-made document is a null node
        QDomNode root = ZTXMLBuilder::buildDomElement(document, QStringLiteral("order"));
        QDomElement fee = ZTXMLBuilder::buildDomElement(root, QStringLiteral("transfer"));
        ZTXMLBuilder::addAttribute(fee, QStringLiteral("price"), -495);
        ZTXMLBuilder::addAttribute(fee, QStringLiteral("name"), QStringLiteral("Versand"));
        QDomNode feeNode = fee;
        ZTXMLBuilder::buildTextElement(feeNode, QStringLiteral("note"), QStringLiteral("a & b"));

        const QDomElement read = parse(document.toString()).firstChildElement(QStringLiteral("transfer"));
        QCOMPARE(ZTXMLParser::intAttribute(read, QStringLiteral("price")), -495);
        QCOMPARE(ZTXMLParser::attribute(read, QStringLiteral("name")), QStringLiteral("Versand"));
        QCOMPARE(ZTXMLParser::text(read, QStringLiteral("note")), QStringLiteral("a & b"));

        QDomNode nothing;
        QTest::ignoreMessage(QtWarningMsg, "cannot add element \"x\" to a null node");
        QVERIFY(ZTXMLBuilder::buildDomElement(nothing, QStringLiteral("x")).isNull());
    }
};

QTEST_GUILESS_MAIN(tst_ZTXMLParser)
#include "tst_ZTXMLParser.moc"
