#ifndef ZTAPMELEMENTINDEX_H
#define ZTAPMELEMENTINDEX_H

#include "ztapm_export.h"

#include <QByteArray>
#include <QDomElement>
#include <QHash>
#include <QList>
#include <QStringList>

class QFileInfo;

// A key-account document indexed in one quick pass instead of parsed: for every element directly
// under a wanted section (as ZTXMLLoader::forEachSectionElement() would give it) the index knows
// its section, its id and where it stands in the file, and parses it only when asked. The file's
// bytes are held, so a file replaced on disk does not disturb the index.
//
// The pass checks what a quick look can: that tags nest and match and that the document ends;
// a document that fails is not indexed. An element that a parser rejects later counts as absent.
class ZTAPM_EXPORT ZTAPMElementIndex
{
public:
    struct Entry
    {
        qsizetype section = -1; // in the section names
        qsizetype begin = 0;    // of the element in the file's bytes
        qsizetype end = 0;      // one past it
    };

    // Reads and indexes the file; false, with one warning, if it is missing or broken. Only the
    // first section of each name counts, and in it only elements named theNodeNames[section].
    bool build(const QFileInfo& theFile, const QStringList& theSectionNames, const QStringList& theNodeNames);

    bool isEmpty() const { return myEntries.isEmpty(); }
    bool contains(qint32 theId) const { return myEntries.contains(theId); }
    // The elements of an id in reading order: by section in the order of the names, then in
    // document order.
    QList<Entry> entries(qint32 theId) const { return myEntries.value(theId); }
    // The element, parsed on its own; null if a parser rejects it.
    QDomElement element(const Entry& theEntry) const;

private:
    bool scan(const QStringList& theSectionNames, const QStringList& theNodeNames);
    void add(qsizetype theSection, qsizetype theBegin, qsizetype theEnd, QByteArrayView theId);

    QByteArray myBytes;
    QByteArray myDeclaration; // the XML declaration, when it names an encoding of its own
    QHash<qint32, QList<Entry>> myEntries;
};

#endif // ZTAPMELEMENTINDEX_H
