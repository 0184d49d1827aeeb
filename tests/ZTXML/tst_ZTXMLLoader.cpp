#include "ZTXMLLoader.h"

#include <QDomNamedNodeMap>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray toUtf16(const QByteArray& theUtf8)
{
    // With the byte order mark, as an editor writes it.
    const QString text = QChar(QChar::ByteOrderMark) + QString::fromUtf8(theUtf8);
    QByteArray result;
    for (const QChar unit : text) {
        result.append(char(unit.unicode() & 0xff));
        result.append(char(unit.unicode() >> 8));
    }
    return result;
}

// An element with its attributes in name order, its children and its text, to compare elements
// of two readers.
QString describe(const QDomNode& theNode)
{
    if (!theNode.isElement())
        return QString::number(theNode.nodeType()) + theNode.nodeValue();
    QStringList attributes;
    const QDomNamedNodeMap map = theNode.attributes();
    for (int i = 0; i < map.count(); ++i)
        attributes << map.item(i).nodeName() + QLatin1Char('=') + map.item(i).nodeValue();
    attributes.sort();
    QString result = QLatin1Char('<') + theNode.nodeName() + QLatin1Char(' ') +
                     attributes.join(QLatin1Char(' ')) + QLatin1Char('>');
    for (QDomNode child = theNode.firstChild(); !child.isNull(); child = child.nextSibling())
        result += describe(child);
    return result + QStringLiteral("</>");
}

} // namespace

class tst_ZTXMLLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void loadsAWellFormedFile()
    {
        const QFileInfo file(QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/config.xml"));
        const QDomElement root = ZTXMLLoader::loadDocumentElement(file);
        QCOMPARE(root.tagName(), QStringLiteral("config"));
        QCOMPARE(root.firstChildElement().attribute(QStringLiteral("inputSource")), QStringLiteral("2"));
    }

    // A broken file costs one warning with its position, and the caller sees a null result.
    void brokenFileGivesNullAndOneWarning()
    {
        const QString path = QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/broken.xml");
        const QRegularExpression message(QStringLiteral("^XML error in %1 at line 5, column \\d+: .+")
                                             .arg(QRegularExpression::escape(path)));
        QTest::ignoreMessage(QtWarningMsg, message);
        QVERIFY(ZTXMLLoader::loadDocument(QFileInfo(path)).isNull());
        QTest::ignoreMessage(QtWarningMsg, message);
        QVERIFY(ZTXMLLoader::loadDocumentElement(QFileInfo(path)).isNull());
    }

    void missingFileGivesNullAndOneWarning()
    {
        const QString path = QStringLiteral(ZT_TEST_DATA_DIR "/xml-loader/nothing-here.xml");
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(QStringLiteral("^cannot load XML file .*nothing-here\\.xml: ")));
        QVERIFY(ZTXMLLoader::loadDocumentElement(QFileInfo(path)).isNull());
        QTest::ignoreMessage(QtWarningMsg, "cannot load XML: no file given");
        QVERIFY(ZTXMLLoader::loadDocument(QFileInfo()).isNull());
    }

    // The readers accept and refuse the same documents, each refusal with one warning, and the
    // limits on depth and attributes hold however the document is written. What the quick pass of
    // an index finds reads back as the element that the streaming reader builds.
    void bothReadersApplyTheLimits_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("refusal"); // empty: accepted

        const auto nested = [](int theDepth, const QByteArray& theInner = QByteArray()) -> QByteArray {
            return "<root><articles>" + QByteArray("<a>").repeated(theDepth - 2) + theInner +
                   QByteArray("</a>").repeated(theDepth - 2) + "</articles></root>";
        };
        const auto attributes = [](int theCount, const QByteArray& theTag = "article") -> QByteArray {
            QByteArray tag = "<" + theTag;
            for (int i = 0; i < theCount; ++i)
                tag += " a" + QByteArray::number(i) + "=\"" + QByteArray::number(i) + "\"";
            return "<root><articles>" + tag + "/></articles></root>";
        };
        const QString tooDeep = QStringLiteral("elements nested deeper than 64 levels");
        const QString tooWide = QStringLiteral("an element with more than 256 attributes");
        const QString doctype = QStringLiteral("document type declaration after the root element began");

        QTest::newRow("64 levels") << nested(64) << QString();
        QTest::newRow("65 levels") << nested(65) << tooDeep;
        QTest::newRow("100000 levels") << nested(100000) << tooDeep;
        QTest::newRow("256 attributes") << attributes(256) << QString();
        QTest::newRow("257 attributes") << attributes(257) << tooWide;
        QTest::newRow("20000 attributes") << attributes(20000) << tooWide;
        QTest::newRow("attributes deep inside a skipped section")
            << "<root><other><x><y>" + attributes(300) + "</y></x></other><articles/></root>" << tooWide;

        // What only looks like attributes is not counted.
        const QByteArray equals = QByteArray("=").repeated(400);
        QTest::newRow("= in values, comments, CDATA, text, declarations")
            << "<?xml version=\"1.0\"?><!-- " + equals + " -->\n<!DOCTYPE root [ <!-- ' --> <!ENTITY e \"" +
                   equals + "'>\"> <?pi " + equals + "?> ]><root><articles><article id=\"" + equals +
                   "\" b='" + equals + "'>" + equals + "<![CDATA[<x " + equals + "]]><!-- <x " + equals +
                   " --></article></articles></root>"
            << QString();
        // Letters of two and four bytes, a ">" in a value and CRLF between the index's offsets.
        QTest::newRow("UTF-8 letters")
            << QByteArray(
                   "<root>\r\n<articles>\r\n<article id=\"1\" n=\"\xc3\xa4\xf0\x9f\x98\x80\" q='a>b'>"
                   "\xf0\x9f\x98\x80<![CDATA[<x>]]></article>\r\n<article id=\"2\"/></articles></root>")
            << QString();
        QTest::newRow("UTF-16, 257 attributes") << toUtf16(attributes(257)) << tooWide;
        QTest::newRow("UTF-16, 256 attributes") << toUtf16(attributes(256)) << QString();

        // Elements that come from an entity count as well.
        QTest::newRow("depth through an entity")
            << "<!DOCTYPE root [<!ENTITY e \"" + QByteArray("<a>").repeated(40) +
                   QByteArray("</a>").repeated(40) + "\">]>" + nested(30, "&e;")
            << tooDeep;

        QTest::newRow("DOCTYPE in the root")
            << QByteArray("<root><!DOCTYPE root><articles/></root>") << doctype;
        QTest::newRow("DOCTYPE after the root")
            << QByteArray("<root><articles/></root><!DOCTYPE root>") << doctype;
        QTest::newRow("two DOCTYPEs") << QByteArray("<!DOCTYPE root><!DOCTYPE root><root><articles/></root>")
                                      << QStringLiteral("more than one document type declaration");
        // attributes() with its root cut off: the element stands after the root.
        QTest::newRow("too many attributes after the root")
            << "<root><articles/></root>" + attributes(300).mid(16) << tooWide;
    }

    void bothReadersApplyTheLimits()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, refusal);
        QTemporaryDir directory;
        QFile file(directory.filePath(QStringLiteral("document.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document);
        file.close();
        const QFileInfo info(file.fileName());

        const QRegularExpression warning(
            QStringLiteral("^XML error in .*document\\.xml at line \\d+, column \\d+: ") +
            QRegularExpression::escape(refusal) + QLatin1Char('$'));
        if (!refusal.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, warning);
        QCOMPARE(ZTXMLLoader::loadDocument(info).isNull(), !refusal.isEmpty());

        if (!refusal.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, warning);
        QStringList streamed;
        QString nodeName = QStringLiteral("article");
        const bool complete = ZTXMLLoader::forEachSectionElement(
            info, {QStringLiteral("articles")}, [&](qsizetype, const QDomElement& theElement) {
                nodeName = theElement.tagName();
                streamed << describe(theElement);
            });
        QCOMPARE(complete, refusal.isEmpty());

        if (!refusal.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, warning);
        QList<std::pair<qint64, qint64>> places;
        const ZTXMLLoader::Indexing indexing = ZTXMLLoader::indexSectionElements(
            info, {QStringLiteral("articles")}, {nodeName}, QStringLiteral("id"),
            [&](qsizetype, const QString&, qint64 theBegin, qint64 theEnd) {
                places.append({theBegin, theEnd});
            });
        QCOMPARE(indexing == ZTXMLLoader::Indexing::Broken, !refusal.isEmpty());
        // Documents with a type declaration or in UTF-16 are not indexed.
        QCOMPARE(indexing == ZTXMLLoader::Indexing::Indexed,
                 refusal.isEmpty() && !document.contains("DOCTYPE") && !document.contains('\0'));
        if (indexing == ZTXMLLoader::Indexing::Indexed) {
            QVERIFY(file.open(QIODevice::ReadOnly));
            QStringList read;
            for (const auto& [begin, end] : std::as_const(places))
                read << describe(ZTXMLLoader::loadElement(file, begin, end, 3));
            QCOMPARE(read, streamed);
        }
    }

    // The refusal names the attribute that breaks the limit, counted the same in text of one byte
    // a unit, which is scanned in stretches, and in text of two.
    void attributeRefusalNamesItsPlace_data()
    {
        QTest::addColumn<QByteArray>("document");
        QByteArray tag = "<article";
        for (int i = 0; i < 300; ++i)
            tag += " a" + QByteArray::number(i) + "=\"" + QByteArray::number(i) + "\"";
        // Newlines in a comment, a value and text, which the scan passes over in one stretch, and
        // quotes of the other kind in values.
        const QByteArray document = "<root>\n<!-- = \n -->\n<articles>\n<x v='a\n\"b=' w=\"'\"> \n</x>\n" +
                                    tag + "/></articles></root>";
        QTest::newRow("UTF-8") << document;
        QTest::newRow("UTF-16") << toUtf16(document);
    }

    void attributeRefusalNamesItsPlace()
    {
        QFETCH(QByteArray, document);
        QTemporaryDir directory;
        QFile file(directory.filePath(QStringLiteral("document.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document);
        file.close();
        // The 257th "=" of the line the element starts on.
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral(
                                 "at line 8, column 2610: an element with more than 256 attributes$")));
        QVERIFY(!ZTXMLLoader::forEachSectionElement(QFileInfo(file.fileName()), {QStringLiteral("articles")},
                                                    [](qsizetype, const QDomElement&) {}));
    }
};

QTEST_GUILESS_MAIN(tst_ZTXMLLoader)
#include "tst_ZTXMLLoader.moc"
