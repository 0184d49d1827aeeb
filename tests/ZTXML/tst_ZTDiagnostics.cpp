#include "ZTDiagnosticCollector.h"
#include "ZTDistanceUnit.h"
#include "ZTKeyAccountDataType.h"
#include "ZTXMLLoader.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

// The findings of document readers: where the loader says they stand, and the collector's order.
class tst_ZTDiagnostics : public QObject
{
    Q_OBJECT

    QTemporaryDir myDirectory;

    QString write(const QByteArray& theContent)
    {
        const QString path = myDirectory.filePath(QStringLiteral("document.xml"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            file.write(theContent) != theContent.size())
            return QString();
        return path;
    }

    static QString place(const ZTDiagnostic& theFinding)
    {
        return QStringLiteral("%1:%2 %3 %4")
            .arg(theFinding.line())
            .arg(theFinding.column())
            .arg(ZTDiagnostic::severityName(theFinding.severity()), theFinding.message());
    }

private Q_SLOTS:
    // A reader's finding stands at the start tag of the section element it reads, also when the
    // tag runs over lines; a parse error where the parser stopped; an element with an id where
    // its tag starts, in a streamed document and in a whole one. No catalogue is installed: the
    // findings are in the language of the code, the parser's own message as it gives it.
    void places_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<bool>("streamed");
        QTest::addColumn<QStringList>("expected");

        const QByteArray twoArticles = "<xtci>\n  <articles>\n    <article id=\"1\"/>\n"
                                       "  <article\n      id=\"2\" name=\"x\">\n  <page/></article>\n"
                                       "  </articles>\n</xtci>\n";
        QTest::newRow("streamed elements")
            << twoArticles << true
            << QStringList{QStringLiteral("3:5 note article 1"), QStringLiteral("4:3 note article 2")};
        QTest::newRow("parse error") << QByteArray("<xtci>\n  <articles>\n  </article>\n</xtci>\n") << true
                                     << QStringList{
                                            QStringLiteral("3:12 error Das XML ist nicht wohlgeformt: "
                                                           "Opening and ending tag mismatch.")};
        QTest::newRow("parse error of a whole document")
            << QByteArray("<a>\n<b></c>\n</a>\n") << false
            << QStringList{QStringLiteral(
                   "2:7 error Das XML ist nicht wohlgeformt: Opening and ending tag mismatch.")};
        QTest::newRow("no finding on a good whole document") << twoArticles << false << QStringList();
    }
    void places()
    {
        QFETCH(QByteArray, document);
        QFETCH(bool, streamed);
        QFETCH(QStringList, expected);
        const QString path = write(document);
        QVERIFY(!path.isEmpty());
        ZTDiagnosticCollector collector;
        collector.install();
        // The log line stays beside the finding.
        if (!expected.isEmpty() && expected.first().contains(QLatin1String("error")))
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^XML error")));
        if (streamed) {
            ZTXMLLoader::forEachSectionElement(
                QFileInfo(path), {QStringLiteral("articles")}, [](qsizetype, const QDomElement& theElement) {
                    ZTDiagnosticCollector::report(ZTDiagnostic::Note,
                                                  QStringLiteral("article ") +
                                                      theElement.attribute(QStringLiteral("id")));
                });
        } else {
            ZTXMLLoader::loadDocument(QFileInfo(path));
        }
        QStringList actual;
        for (const ZTDiagnostic& finding : collector.diagnostics()) {
            QCOMPARE(finding.file(), path);
            actual.append(place(finding));
        }
        QCOMPARE(actual, expected);

        // The index of elements with an id agrees with the places of the findings.
        int line = 0;
        int column = 0;
        if (expected.isEmpty() || expected.first().startsWith(QLatin1String("3:5"))) {
            QVERIFY(collector.elementPosition(path, QStringLiteral("article"), QStringLiteral("2"), &line,
                                              &column));
            QCOMPARE(QStringLiteral("%1:%2").arg(line).arg(column), QStringLiteral("4:3"));
        }
        QVERIFY(
            !collector.elementPosition(path, QStringLiteral("article"), QStringLiteral("3"), &line, &column));
    }

    // Sorted by file, line, column, then errors before warnings before notes; each finding once;
    // nothing reaches a collector that is not installed.
    void orderAndInstallation()
    {
        ZTDiagnosticCollector collector;
        ZTDiagnosticCollector::report(ZTDiagnostic::Error, QStringLiteral("before"));
        collector.install();
        {
            const ZTDiagnosticCollector::Location file(QStringLiteral("b.xml"), 2, 1);
            ZTDiagnosticCollector::report(ZTDiagnostic::Note, QStringLiteral("n"));
            ZTDiagnosticCollector::report(ZTDiagnostic::Warning, QStringLiteral("w"));
            ZTDiagnosticCollector::report(ZTDiagnostic::Warning, QStringLiteral("w"));
            ZTDiagnosticCollector::reportAt(ZTDiagnostic::Note, 10, 1, QStringLiteral("later line"));
        }
        {
            const ZTDiagnosticCollector::Location file(QStringLiteral("a.xml"), 9, 9);
            ZTDiagnosticCollector::report(ZTDiagnostic::Note, QStringLiteral("first file"));
        }
        collector.uninstall();
        ZTDiagnosticCollector::report(ZTDiagnostic::Error, QStringLiteral("after"));
        QStringList actual;
        for (const ZTDiagnostic& finding : collector.diagnostics())
            actual.append(finding.file() + QLatin1Char(' ') + place(finding));
        QCOMPARE(
            actual,
            (QStringList{QStringLiteral("a.xml 9:9 note first file"), QStringLiteral("b.xml 2:1 warning w"),
                         QStringLiteral("b.xml 2:1 note n"), QStringLiteral("b.xml 10:1 note later line")}));
    }

    // A keyword that a vocabulary lacks is a finding where a document is being read, in a list
    // and alone; known keywords, blanks and decoding outside a document are not.
    void unknownKeywords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("list");
        QTest::addColumn<bool>("inDocument");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("one keyword")
            << "furlong" << false << true
            << QStringList{
                   QStringLiteral("\"furlong\" ist kein Schlüsselwort des Vokabulars \"distance unit\"")};
        QTest::newRow("known keyword") << " MM " << false << true << QStringList();
        QTest::newRow("blank") << "  " << false << true << QStringList();
        QTest::newRow("outside a document") << "furlong" << false << false << QStringList();
        QTest::newRow("in a list")
            << "prices, recipes,,products" << true << true
            << QStringList{QStringLiteral(
                   "\"recipes\" ist kein Schlüsselwort des Vokabulars \"key account data type\"")};
    }
    void unknownKeywords()
    {
        QFETCH(QString, text);
        QFETCH(bool, list);
        QFETCH(bool, inDocument);
        QFETCH(QStringList, expected);
        const auto decode = [&] {
            std::optional<ZTDiagnosticCollector::Location> location;
            if (inDocument)
                location.emplace(QStringLiteral("document.xml"), 3, 5);
            if (list)
                ZTKeyAccountDataType().decodeCSV(text);
            else
                (void)ZTDistanceUnit(text);
        };
        // The log's own line for an unknown single keyword stays.
        const bool logged = !list && text == QLatin1String("furlong");
        if (logged)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^undecodable:")));
        QStringList found;
        {
            ZTDiagnosticCollector collector;
            collector.install();
            decode();
            for (const ZTDiagnostic& finding : collector.diagnostics())
                found << finding.message();
        }
        QCOMPARE(found, expected);
    }
};

QTEST_GUILESS_MAIN(tst_ZTDiagnostics)
#include "tst_ZTDiagnostics.moc"
