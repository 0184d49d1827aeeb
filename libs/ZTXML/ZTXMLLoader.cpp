#include "ZTXMLLoader.h"

#include "ZTDiagnosticCollector.h"
#include "ZTXMLDocumentGuard.h"

#include <QBuffer>
#include <QCoreApplication>
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
                ZTDiagnostic::Error,
                QCoreApplication::translate("ZTXMLLoader", "Die Datei ist nicht lesbar: %1")
                    .arg(theFile.errorString()));
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
        // The reader's own message stays as the reader gives it.
        ZTDiagnosticCollector::reportAt(
            ZTDiagnostic::Error, int(theLine), int(theColumn),
            QCoreApplication::translate("ZTXMLLoader", "Das XML ist nicht wohlgeformt: %1").arg(theMessage));
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

// Builds one element, with its tag name, attributes, child elements, text and CDATA, from the
// tokens of a reader, as a DOM parse would: indentation makes no node, every piece of text one
// node; comments and processing instructions are left out.
class ElementBuilder
{
public:
    bool isBuilding() const { return !myCurrent.isNull(); }

    // Takes a token; true when it closed the element, which element() then gives.
    bool take(const QXmlStreamReader& theReader)
    {
        switch (theReader.tokenType()) {
        case QXmlStreamReader::StartElement: {
            QDomElement element = myDocument.createElement(name(theReader.qualifiedName()));
            const QXmlStreamAttributes attributes = theReader.attributes();
            for (const QXmlStreamAttribute& attribute : attributes)
                element.setAttribute(name(attribute.qualifiedName()), attribute.value().toString());
            myCurrent = myCurrent.isNull() ? myDocument.appendChild(element) : myCurrent.appendChild(element);
            break;
        }
        case QXmlStreamReader::EndElement:
            myCurrent = myCurrent.parentNode();
            return myCurrent.isDocument();
        case QXmlStreamReader::Characters:
            if (theReader.isCDATA())
                myCurrent.appendChild(myDocument.createCDATASection(theReader.text().toString()));
            else if (!theReader.isWhitespace())
                myCurrent.appendChild(myDocument.createTextNode(theReader.text().toString()));
            break;
        default:
            break;
        }
        return false;
    }

    // The element built, once; the builder is then free for the next, which it builds in the same
    // document, as the element leaves it.
    QDomElement element()
    {
        const QDomElement result = myDocument.documentElement();
        myDocument.removeChild(result);
        myCurrent = QDomNode();
        return result;
    }

private:
    // Names repeat from element to element: the same few strings are shared rather than made anew.
    QString name(QStringView theName)
    {
        for (const QString& known : std::as_const(myNames)) {
            if (known == theName)
                return known;
        }
        const QString made = theName.toString();
        if (myNames.size() < maxNames)
            myNames.append(made);
        return made;
    }

    static constexpr qsizetype maxNames = 64;

    QDomDocument myDocument; // holds the element being built, empty between elements
    QDomNode myCurrent;      // innermost open node of that element, null between elements
    QList<QString> myNames;
};

// Maps the reader's character offsets, in UTF-16 units, to byte offsets in UTF-8 text; offsets
// are asked in increasing order, so the whole text is walked once.
class ByteOffsets
{
public:
    explicit ByteOffsets(const QByteArray& theText) : myText(theText) {}

    // -1 where the text is not UTF-8 as the reader decodes it.
    qint64 byteOf(qint64 theCharacter)
    {
        const qint64 size = myText.size();
        const char* text = myText.constData();
        while (myCharacter < theCharacter && myByte < size) {
            const uchar lead = uchar(text[myByte]);
            if (lead < 0x80) {
                ++myByte;
                ++myCharacter;
            } else if (lead >= 0xc2 && lead < 0xe0) {
                myByte += 2;
                ++myCharacter;
            } else if (lead >= 0xe0 && lead < 0xf0) {
                myByte += 3;
                ++myCharacter;
            } else if (lead >= 0xf0 && lead < 0xf5) {
                myByte += 4;
                myCharacter += 2; // a surrogate pair
            } else {
                return -1;
            }
        }
        return myCharacter == theCharacter && myByte <= size ? myByte : -1;
    }

private:
    const QByteArray& myText;
    qint64 myByte = 0;
    qint64 myCharacter = 0;
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
    ElementBuilder builder;
    // While findings are collected: the file for the whole reading, each element's start tag while
    // its callback runs.
    const bool collecting = ZTDiagnosticCollector::isCollecting();
    std::optional<ZTDiagnosticCollector::Location> fileLocation;
    TokenStart start;
    TokenStart elementStart;
    if (collecting)
        fileLocation.emplace(file.fileName());

    while (!reader.atEnd()) {
        // Only a start tag read at depth 2 opens an element of a section, whose place is wanted.
        if (collecting && depth == 2 && section >= 0)
            start.before(reader);
        reader.readNext();
        if (!guard.check(reader))
            break;
        const QXmlStreamReader::TokenType token = reader.tokenType();
        if (token == QXmlStreamReader::StartElement) {
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
                continue;
            }
            if (depth == 3 && section >= 0)
                elementStart = start;
        }
        if (depth >= 3 && section >= 0 && builder.take(reader)) {
            const QDomElement element = builder.element();
            std::optional<ZTDiagnosticCollector::Location> location;
            if (collecting) {
                location.emplace(file.fileName(), elementStart.line, elementStart.column);
                if (element.hasAttribute(QStringLiteral("id")))
                    ZTDiagnosticCollector::noteElementHere(element.tagName(),
                                                           element.attribute(QStringLiteral("id")));
            }
            theCallback(section, element);
        }
        if (token == QXmlStreamReader::EndElement) {
            if (depth == 2)
                section = -1;
            --depth;
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

ZTXMLLoader::Indexing ZTXMLLoader::indexSectionElements(
    const QFileInfo& theFile, const QStringList& theSectionNames, const QStringList& theNodeNames,
    const QString& theKeyAttribute,
    const std::function<void(qsizetype theSection, const QString& theKey, qint64 theBegin, qint64 theEnd)>&
        theCallback)
{
    QFile file;
    if (!openFile(theFile, file))
        return Indexing::Broken;
    // The text is held for the pass only, to find the elements' bytes.
    const QByteArray text = file.readAll();
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    ZTXMLDocumentGuard guard(&buffer);
    QXmlStreamReader reader(guard.device());
    reader.setNamespaceProcessing(false);
    ByteOffsets offsets(text);
    std::vector<bool> seenSections(size_t(theSectionNames.size()), false);
    qsizetype section = -1; // the wanted section being read, or -1
    int depth = 0;          // of the element last opened; the root is 1
    qint64 begin = -1;      // of the wanted element being read, or -1
    QString key;
    // Offsets are found in UTF-8 text only, and an element read on its own must not need a type
    // declaration, which may define entities. The document is read to its end all the same, so
    // that it is refused exactly when the other readers refuse it.
    bool suitable = !text.startsWith("\xef\xbb\xbf") && !text.contains('\0');

    while (!reader.atEnd()) {
        reader.readNext();
        if (!guard.check(reader))
            break;
        switch (reader.tokenType()) {
        case QXmlStreamReader::StartDocument: {
            const QStringView encoding = reader.documentEncoding();
            suitable = suitable && (encoding.isEmpty() ||
                                    encoding.compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) == 0);
            break;
        }
        case QXmlStreamReader::DTD:
            suitable = false;
            break;
        case QXmlStreamReader::StartElement:
            ++depth;
            if (depth == 2) {
                // Other sections are read through as well, so that all of the document is checked.
                const qsizetype index = theSectionNames.indexOf(reader.qualifiedName());
                if (index >= 0 && !seenSections[size_t(index)]) {
                    seenSections[size_t(index)] = true;
                    section = index;
                }
            } else if (depth == 3 && section >= 0 && suitable &&
                       reader.qualifiedName() == theNodeNames.at(section)) {
                // The reader stands behind the start tag, which begins at the last "<": no
                // attribute value holds one.
                const qint64 tagEnd = offsets.byteOf(reader.characterOffset());
                begin = tagEnd > 0 ? text.lastIndexOf('<', tagEnd - 1) : -1;
                const QString& name = theNodeNames.at(section);
                suitable = begin >= 0 && begin + 1 + name.size() <= text.size() &&
                           QLatin1String(text.constData() + begin + 1, name.size()) == name;
                key = reader.attributes().value(theKeyAttribute).toString();
            }
            break;
        case QXmlStreamReader::EndElement:
            if (depth == 2) {
                section = -1;
            } else if (depth == 3 && begin >= 0) {
                const qint64 end = suitable ? offsets.byteOf(reader.characterOffset()) : -1;
                suitable = end > begin && text.at(end - 1) == '>';
                if (suitable)
                    theCallback(section, key, begin, end);
                begin = -1;
            }
            --depth;
            break;
        default:
            break;
        }
    }
    if (guard.failed(reader)) {
        warnParseError(file.fileName(), guard.errorLine(reader), guard.errorColumn(reader),
                       guard.errorString(reader));
        return Indexing::Broken;
    }
    return suitable ? Indexing::Indexed : Indexing::Unsuitable;
}

QDomElement ZTXMLLoader::loadElement(QFile& theFile, qint64 theBegin, qint64 theEnd, int theDepth)
{
    QByteArray text;
    if (theFile.seek(theBegin))
        text = theFile.read(theEnd - theBegin);
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    ZTXMLDocumentGuard guard(&buffer, theDepth - 1);
    QXmlStreamReader reader(guard.device());
    reader.setNamespaceProcessing(false);
    ElementBuilder builder;
    QDomElement element;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!guard.check(reader))
            break;
        if (reader.tokenType() == QXmlStreamReader::DTD)
            reader.raiseError(QStringLiteral("document type declaration in an element"));
        else if (element.isNull() && (reader.isStartElement() || builder.isBuilding()) &&
                 builder.take(reader))
            element = builder.element();
    }
    if (text.size() != theEnd - theBegin || guard.failed(reader) || element.isNull()) {
        warnParseError(theFile.fileName(), guard.errorLine(reader), guard.errorColumn(reader),
                       text.size() != theEnd - theBegin ? theFile.errorString() : guard.errorString(reader));
        return QDomElement();
    }
    return element;
}
