#ifndef ZTXMLLOADER_H
#define ZTXMLLOADER_H

#include "ztxml_export.h"

#include <QDomDocument>
#include <QDomElement>
#include <QStringList>

#include <functional>

class QFile;
class QFileInfo;

// Reads a whole XML file into a DOM. A file that is missing, unreadable or not well-formed, or
// that breaks the limits of ZTXMLDocumentGuard, gives a null document and exactly one warning
// that names the file (and for a parse error the line and column), so callers only test isNull()
// and never report again. Both readers accept and refuse the same files.
class ZTXML_EXPORT ZTXMLLoader
{
public:
    static QDomDocument loadDocument(const QFileInfo& theFile);
    // The root element of loadDocument(); the document lives as long as the element is held.
    static QDomElement loadDocumentElement(const QFileInfo& theFile);

    // Streams a file instead of holding it whole: every element directly under a wanted section
    // (a child of the root whose tag name is in theSectionNames) comes to theCallback as the
    // document element of a small document of its own, with its tag name, attributes, child
    // elements, text and CDATA; comments and processing instructions are left out. theSection
    // is the index of its section in theSectionNames. Only the first section of each name
    // counts, as with firstChildElement(); later ones are skipped.
    //
    // Elements come in document order while the file is read, so a parse error can only be seen
    // after the elements before it went out. Then the result is false, the callback sees
    // nothing more, and the warning is the one of loadDocument(): callers collect what they are
    // given and keep it only on true. A missing file gives false and its warning as well.
    //
    // theFoundSections, if given, tells afterwards for each section name whether the document
    // has such a section, so that an empty section can be told from a missing one.
    static bool forEachSectionElement(
        const QFileInfo& theFile, const QStringList& theSectionNames,
        const std::function<void(qsizetype theSection, const QDomElement& theElement)>& theCallback,
        QList<bool>* theFoundSections = nullptr);

    enum class Indexing {
        Indexed,    // every element was given
        Broken,     // missing, unreadable or refused, as by loadDocument(), with its one warning
        Unsuitable, // accepted, but the offsets cannot be found: to be read by other means
    };
    // One quick pass that tells where the elements of forEachSectionElement() stand in the file
    // instead of building them: for each element of a wanted section that is named like the
    // section's node name (theNodeNames[section]), the value of theKeyAttribute and the element's
    // bytes [theBegin, theEnd). The document is checked as by the other readers, with the same
    // warning, and is held for the pass only. Offsets are known for UTF-8 documents without a byte
    // order mark and without a document type declaration (which could define entities that an
    // element read on its own would lack); any other that the readers accept is Unsuitable.
    // Callers keep what they are given only on Indexed.
    static Indexing
    indexSectionElements(const QFileInfo& theFile, const QStringList& theSectionNames,
                         const QStringList& theNodeNames, const QString& theKeyAttribute,
                         const std::function<void(qsizetype theSection, const QString& theKey,
                                                  qint64 theBegin, qint64 theEnd)>& theCallback);

    // One element read again from the bytes [theBegin, theEnd) of an open file, as an index
    // found it, standing at theDepth in its document (the root is 1): built as
    // forEachSectionElement() builds it and under the same limits. Null, with a warning that names
    // the file, if the bytes are not such an element.
    static QDomElement loadElement(QFile& theFile, qint64 theBegin, qint64 theEnd, int theDepth);
};

#endif // ZTXMLLOADER_H
