#include "ZTXMLLoader.h"

#include "ZTDiagnosticCollector.h"
#include "ZTXMLDocumentGuard.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <optional>
#include <vector>

namespace {

// Opens the file for reading, or warns and gives false. Both readers use it, so that a missing
// file reads the same everywhere.
bool openFile(const QFileInfo& theFileInfo, QFile& theFile)
{
    const QString path = theFileInfo.filePath();
    if (path.isEmpty()) {
        qWarning() << "cannot load XML: no file given";
        return false;
    }
    theFile.setFileName(path);
    if (!theFile.open(QIODevice::ReadOnly)) {
        qWarning().noquote()
            << QStringLiteral("cannot load XML file %1: %2").arg(path, theFile.errorString());
        if (ZTDiagnosticCollector::isCollecting()) {
            const ZTDiagnosticCollector::Location location(path);
            ZTDiagnosticCollector::report(
                ZTDiagnostic::Error, QStringLiteral("cannot read the file: %1").arg(theFile.errorString()));
        }
        return false;
    }
    return true;
}

void warnParseError(const QString& thePath, qint64 theLine, qint64 theColumn, const QString& theMessage)
{
    qWarning().noquote() << QStringLiteral("XML error in %1 at line %2, column %3: %4")
                                .arg(thePath)
                                .arg(theLine)
                                .arg(theColumn)
                                .arg(theMessage);
    if (ZTDiagnosticCollector::isCollecting()) {
        const ZTDiagnosticCollector::Location location(thePath);
        ZTDiagnosticCollector::reportAt(ZTDiagnostic::Error, int(theLine), int(theColumn),
                                        QStringLiteral("XML does not parse: %1").arg(theMessage));
    }
}

// Where the next token starts: the stream's place after the token before it, whose column
// (counted from 0) the stream gives one character ahead, so that it is the 1-based column of the
// next token's first character.
struct TokenStart
{
    int line = 1;
    int column = 1;
    void before(const QXmlStreamReader& theReader)
    {
        line = int(theReader.lineNumber());
        column = int(theReader.columnNumber());
    }
};

} // namespace

QDomDocument ZTXMLLoader::loadDocument(const QFileInfo& theFile)
{
    QFile file;
    if (!openFile(theFile, file))
        return QDomDocument();
    // The DOM takes time quadratic in the depth of the document, so the limits are checked on a
    // reading of its own first, in time linear in the file.
    {
        ZTXMLDocumentGuard guard(&file);
        QXmlStreamReader reader(guard.device());
        reader.setNamespaceProcessing(false);
        // While findings are collected, every element with an id is noted with its place, so
        // that checks across documents can point at it after the reading.
        const bool collecting = ZTDiagnosticCollector::isCollecting();
        std::optional<ZTDiagnosticCollector::Location> fileLocation;
        if (collecting)
            fileLocation.emplace(file.fileName());
        TokenStart start;
        while (!reader.atEnd()) {
            if (collecting)
                start.before(reader);
            reader.readNext();
            guard.check(reader);
            if (collecting && reader.isStartElement() &&
                reader.attributes().hasAttribute(QStringLiteral("id"))) {
                const ZTDiagnosticCollector::Location here(file.fileName(), start.line, start.column);
                ZTDiagnosticCollector::noteElementHere(
                    reader.name().toString(), reader.attributes().value(QStringLiteral("id")).toString());
            }
        }
        if (guard.failed(reader)) {
            warnParseError(file.fileName(), guard.errorLine(reader), guard.errorColumn(reader),
                           guard.errorString(reader));
            return QDomDocument();
        }
    }
    if (!file.seek(0)) {
        warnParseError(file.fileName(), 0, 0, file.errorString());
        return QDomDocument();
    }
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    // Namespace processing costs time and no document of a key account uses namespaces.
    if (!document.setContent(&file, false, &message, &line, &column)) {
        warnParseError(file.fileName(), line, column, message);
        return QDomDocument();
    }
    return document;
}

QDomElement ZTXMLLoader::loadDocumentElement(const QFileInfo& theFile)
{
    return loadDocument(theFile).documentElement();
}

bool ZTXMLLoader::forEachSectionElement(
    const QFileInfo& theFile, const QStringList& theSectionNames,
    const std::function<void(qsizetype theSection, const QDomElement& theElement)>& theCallback,
    QList<bool>* theFoundSections)
{
    QFile file;
    if (!openFile(theFile, file))
        return false;

    ZTXMLDocumentGuard guard(&file);
    QXmlStreamReader reader(guard.device());
    reader.setNamespaceProcessing(false);
    std::vector<bool> seenSections(size_t(theSectionNames.size()), false);
    qsizetype section = -1; // the wanted section being read, or -1
    int depth = 0;          // of the element last opened; the root is 1
    QDomDocument document;  // of the element being built, null between elements
    QDomNode current;       // innermost open node of that element
    // While findings are collected: the file for the whole reading, each element's start tag while
    // its callback runs.
    const bool collecting = ZTDiagnosticCollector::isCollecting();
    std::optional<ZTDiagnosticCollector::Location> fileLocation;
    TokenStart start;
    TokenStart elementStart;
    if (collecting)
        fileLocation.emplace(file.fileName());

    while (!reader.atEnd()) {
        if (collecting)
            start.before(reader);
        reader.readNext();
        if (!guard.check(reader))
            break;
        switch (reader.tokenType()) {
        case QXmlStreamReader::StartElement: {
            ++depth;
            if (depth == 2) {
                const qsizetype index = theSectionNames.indexOf(reader.qualifiedName());
                if (index < 0 || seenSections[size_t(index)]) {
                    reader.skipCurrentElement();
                    --depth;
                } else {
                    seenSections[size_t(index)] = true;
                    section = index;
                }
                break;
            }
            if (depth < 3 || section < 0)
                break;
            // A fresh document has no body until it creates its first node, so the element
            // goes in through the document itself rather than through a copy of it.
            if (depth == 3) {
                document = QDomDocument();
                current = QDomNode();
                elementStart = start;
            }
            QDomElement element = document.createElement(reader.qualifiedName().toString());
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute& attribute : attributes)
                element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
            current = current.isNull() ? document.appendChild(element) : current.appendChild(element);
            break;
        }
        case QXmlStreamReader::EndElement:
            if (depth == 2)
                section = -1;
            if (depth >= 3 && section >= 0) {
                current = current.parentNode();
                if (depth == 3) {
                    std::optional<ZTDiagnosticCollector::Location> location;
                    if (collecting) {
                        location.emplace(file.fileName(), elementStart.line, elementStart.column);
                        const QDomElement element = document.documentElement();
                        if (element.hasAttribute(QStringLiteral("id")))
                            ZTDiagnosticCollector::noteElementHere(element.tagName(),
                                                                   element.attribute(QStringLiteral("id")));
                    }
                    theCallback(section, document.documentElement());
                    document = QDomDocument();
                    current = QDomNode();
                }
            }
            --depth;
            break;
        case QXmlStreamReader::Characters:
            if (depth < 3 || section < 0)
                break;
            // Like a DOM parse: indentation makes no node, every piece of text one node.
            if (reader.isCDATA())
                current.appendChild(document.createCDATASection(reader.text().toString()));
            else if (!reader.isWhitespace())
                current.appendChild(document.createTextNode(reader.text().toString()));
            break;
        default:
            break;
        }
    }
    if (theFoundSections)
        *theFoundSections = QList<bool>(seenSections.cbegin(), seenSections.cend());
    if (guard.failed(reader)) {
        warnParseError(file.fileName(), guard.errorLine(reader), guard.errorColumn(reader),
                       guard.errorString(reader));
        return false;
    }
    return true;
}
