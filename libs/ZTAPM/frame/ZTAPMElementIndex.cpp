#include "ZTAPMElementIndex.h"

#include "ZTArticleId.h"
#include "ZTXMLParser.h"

#include <QDebug>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QVarLengthArray>

#include <algorithm>
#include <cstring>

namespace {

bool isSpace(char theChar)
{
    return theChar == ' ' || theChar == '\t' || theChar == '\n' || theChar == '\r';
}

// The position of theNeedle at or after theFrom, or -1.
qsizetype find(QByteArrayView theText, qsizetype theFrom, const char* theNeedle)
{
    return theText.indexOf(QByteArrayView(theNeedle), theFrom);
}

// The value of the attribute theName in the text of a start tag, or a null view.
QByteArrayView attributeValue(QByteArrayView theTag, QByteArrayView theName)
{
    qsizetype i = 1;
    while (i < theTag.size() && !isSpace(theTag[i]) && theTag[i] != '>' && theTag[i] != '/')
        ++i;
    while (i < theTag.size()) {
        while (i < theTag.size() && isSpace(theTag[i]))
            ++i;
        const qsizetype nameBegin = i;
        while (i < theTag.size() && theTag[i] != '=' && !isSpace(theTag[i]) && theTag[i] != '>' &&
               theTag[i] != '/')
            ++i;
        const QByteArrayView name = theTag.sliced(nameBegin, i - nameBegin);
        while (i < theTag.size() && isSpace(theTag[i]))
            ++i;
        if (i >= theTag.size() || theTag[i] != '=')
            return {};
        ++i;
        while (i < theTag.size() && isSpace(theTag[i]))
            ++i;
        if (i >= theTag.size() || (theTag[i] != '"' && theTag[i] != '\''))
            return {};
        const char quote = theTag[i++];
        const qsizetype valueBegin = i;
        while (i < theTag.size() && theTag[i] != quote)
            ++i;
        if (name == theName)
            return theTag.sliced(valueBegin, i - valueBegin);
        ++i;
    }
    return {};
}

} // namespace

bool ZTAPMElementIndex::build(const QFileInfo& theFile, const QStringList& theSectionNames,
                              const QStringList& theNodeNames)
{
    myEntries.clear();
    myDeclaration.clear();
    QFile file(theFile.filePath());
    if (theFile.filePath().isEmpty() || !file.open(QIODevice::ReadOnly)) {
        qWarning().noquote()
            << QStringLiteral("cannot load XML file %1: %2").arg(theFile.filePath(), file.errorString());
        myBytes.clear();
        return false;
    }
    myBytes = file.readAll();
    if (!scan(theSectionNames, theNodeNames)) {
        qWarning().noquote()
            << QStringLiteral("XML error in %1: the document is not well-formed").arg(file.fileName());
        myEntries.clear();
        myBytes.clear();
        return false;
    }
    return true;
}

bool ZTAPMElementIndex::scan(const QStringList& theSectionNames, const QStringList& theNodeNames)
{
    QList<QByteArray> sections;
    QList<QByteArray> nodes;
    for (const QString& name : theSectionNames)
        sections.append(name.toUtf8());
    for (const QString& name : theNodeNames)
        nodes.append(name.toUtf8());
    std::vector<bool> seen(size_t(sections.size()), false);

    const QByteArrayView text(myBytes);
    QVarLengthArray<QByteArrayView, 32> open; // names of the open elements
    bool rootClosed = false;
    qsizetype section = -1;      // the wanted section being read
    qsizetype elementBegin = -1; // of the wanted element being read
    QByteArrayView elementId;
    qsizetype i = 0;
    while (true) {
        const char* tag =
            static_cast<const char*>(std::memchr(text.data() + i, '<', size_t(text.size() - i)));
        if (!tag)
            break;
        i = tag - text.data();
        const QByteArrayView rest = text.sliced(i);
        if (rest.startsWith("<!--") || rest.startsWith("<![CDATA[") || rest.startsWith("<?")) {
            const char* close = rest.startsWith("<!--") ? "-->" : rest.startsWith("<?") ? "?>" : "]]>";
            const qsizetype end = find(text, i + 2, close);
            if (end < 0)
                return false;
            if (rest.startsWith("<?xml") && open.isEmpty()) {
                const QByteArrayView declaration = text.sliced(i, end + 2 - i);
                const QByteArrayView encoding = attributeValue(declaration, "encoding");
                if (!encoding.isNull() && encoding.compare("UTF-8", Qt::CaseInsensitive) != 0)
                    myDeclaration = declaration.toByteArray();
            }
            i = end + qsizetype(std::strlen(close));
            continue;
        }
        if (rest.startsWith("<!")) {
            // A document type: before the root only, with an internal subset in brackets.
            if (!open.isEmpty())
                return false;
            int brackets = 0;
            qsizetype j = i + 2;
            for (; j < text.size(); ++j) {
                if (text[j] == '[')
                    ++brackets;
                else if (text[j] == ']')
                    --brackets;
                else if (text[j] == '>' && brackets == 0)
                    break;
            }
            if (j >= text.size())
                return false;
            i = j + 1;
            continue;
        }
        const bool endTag = rest.size() > 1 && rest[1] == '/';
        qsizetype nameEnd = i + (endTag ? 2 : 1);
        while (nameEnd < text.size() && !isSpace(text[nameEnd]) && text[nameEnd] != '>' &&
               text[nameEnd] != '/')
            ++nameEnd;
        const qsizetype nameBegin = i + (endTag ? 2 : 1);
        const QByteArrayView name = text.sliced(nameBegin, nameEnd - nameBegin);
        // The end of the tag, outside quoted values.
        qsizetype tagEnd = nameEnd;
        char quote = 0;
        for (; tagEnd < text.size(); ++tagEnd) {
            const char c = text[tagEnd];
            if (quote) {
                if (c == quote)
                    quote = 0;
            } else if (c == '"' || c == '\'') {
                quote = c;
            } else if (c == '>') {
                break;
            }
        }
        if (tagEnd >= text.size() || name.isEmpty())
            return false;
        if (endTag) {
            if (open.isEmpty() || open.last() != name)
                return false;
            open.removeLast();
            if (open.size() == 2 && elementBegin >= 0) {
                add(section, elementBegin, tagEnd + 1, elementId);
                elementBegin = -1;
            } else if (open.size() == 1) {
                section = -1;
            } else if (open.isEmpty()) {
                rootClosed = true;
            }
            i = tagEnd + 1;
            continue;
        }
        if (rootClosed)
            return false;
        const bool empty = text[tagEnd - 1] == '/';
        const qsizetype depth = open.size() + 1;
        if (depth == 2) {
            const qsizetype index = sections.indexOf(name.toByteArray());
            section = index >= 0 && !seen[size_t(index)] && !empty ? index : -1;
            if (index >= 0)
                seen[size_t(index)] = true;
        } else if (depth == 3 && section >= 0 && name == QByteArrayView(nodes.at(section))) {
            const QByteArrayView id = attributeValue(text.sliced(i, tagEnd + 1 - i), "id");
            if (empty)
                add(section, i, tagEnd + 1, id);
            else {
                elementBegin = i;
                elementId = id;
            }
        }
        if (!empty)
            open.append(name);
        else if (depth == 1)
            rootClosed = true;
        i = tagEnd + 1;
    }
    return rootClosed && open.isEmpty();
}

void ZTAPMElementIndex::add(qsizetype theSection, qsizetype theBegin, qsizetype theEnd, QByteArrayView theId)
{
    const Entry entry{theSection, theBegin, theEnd};
    ZTArticleId id;
    if (theId.contains('&')) {
        // A character reference: the parser knows best.
        id = ZTArticleId::fromIdAttribute(element(entry));
    } else if (!theId.isNull()) {
        id = ZTArticleId::fromString(QString::fromUtf8(theId));
    }
    QList<Entry>& entries = myEntries[id.id()];
    // Reading order: by section, then in document order.
    auto later = std::upper_bound(entries.begin(), entries.end(), entry,
                                  [](const Entry& a, const Entry& b) { return a.section < b.section; });
    entries.insert(later, entry);
}

QDomElement ZTAPMElementIndex::element(const Entry& theEntry) const
{
    QByteArray bytes =
        QByteArray::fromRawData(myBytes.constData() + theEntry.begin, theEntry.end - theEntry.begin);
    if (!myDeclaration.isEmpty())
        bytes = myDeclaration + bytes;
    QDomDocument document;
    if (!document.setContent(bytes, false))
        return QDomElement();
    return document.documentElement();
}
