#include "ZTXMLLoader.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

// ZTXMLLoader::forEachSectionElement, the streaming reader of the per-article stores.
class tst_ZTXMLElementStream : public QObject
{
    Q_OBJECT

private:
    struct Seen
    {
        qsizetype section;
        QDomElement element;
    };

    static QList<Seen> read(const QString& theFile, const QStringList& theSections, bool* theComplete)
    {
        QList<Seen> seen;
        *theComplete = ZTXMLLoader::forEachSectionElement(
            QFileInfo(QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/") + theFile), theSections,
            [&seen](qsizetype theSection, const QDomElement& theElement) {
                seen.append({theSection, theElement});
            });
        return seen;
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    // Only wanted sections, only the first of each name, each element with its whole subtree.
    void readsWantedSections()
    {
        bool complete = false;
        const QList<Seen> seen = read(QStringLiteral("sections.xml"),
                                      {QStringLiteral("add_ons"), QStringLiteral("articles")}, &complete);
        QVERIFY(complete);
        QCOMPARE(seen.size(), 3);
        QCOMPARE(seen.at(0).section, 1);
        QCOMPARE(seen.at(1).element.tagName(), QStringLiteral("bundle"));
        QCOMPARE(seen.at(2).section, 0);
        QCOMPARE(seen.at(2).element.attribute(QStringLiteral("id")), QStringLiteral("2"));

        const QDomElement book = seen.at(0).element;
        QCOMPARE(book.tagName(), QStringLiteral("article"));
        QCOMPARE(book.attribute(QStringLiteral("kind")), QStringLiteral("book"));
        QCOMPARE(book.childNodes().size(), 3);
        QCOMPARE(book.firstChildElement(QStringLiteral("name")).text(),
                 QStringLiteral("Fotobuch & Kalender"));
        const QDomNode note = book.firstChildElement(QStringLiteral("note")).firstChild();
        QVERIFY(note.isCDATASection());
        QCOMPARE(note.nodeValue(), QStringLiteral("<b>fett</b>"));
        const QDomElement prices = book.firstChildElement(QStringLiteral("prices"));
        QCOMPARE(prices.lastChildElement().attribute(QStringLiteral("amount")), QStringLiteral("999"));
    }

    // A broken file warns once, like loadDocument(), gives false and nothing after the error.
    void brokenFileWarnsOnceAndFails()
    {
        const QString path = QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/truncated.xml");
        // The warning reads as the one of a whole-document parse, at the same position.
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString message;
        int line = 0;
        int column = 0;
        QVERIFY(!QDomDocument().setContent(&file, false, &message, &line, &column));
        QCOMPARE(line, 6);
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(QStringLiteral("XML error in %1 at line %2, column %3: %4")
                                            .arg(path)
                                            .arg(line)
                                            .arg(column)
                                            .arg(message)));
        bool complete = true;
        const QList<Seen> seen =
            read(QStringLiteral("truncated.xml"), {QStringLiteral("articles")}, &complete);
        QVERIFY(!complete);
        // What came before the error went out; the caller drops it on false.
        QCOMPARE(seen.size(), 1);

        const QString missing = QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/nothing-here.xml");
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(QStringLiteral("^cannot load XML file .*nothing-here\\.xml: ")));
        QVERIFY(
            !ZTXMLLoader::forEachSectionElement(QFileInfo(missing), {QStringLiteral("articles")},
                                                [](qsizetype, const QDomElement&) { QFAIL("no element"); }));
    }
};

QTEST_GUILESS_MAIN(tst_ZTXMLElementStream)
#include "tst_ZTXMLElementStream.moc"
