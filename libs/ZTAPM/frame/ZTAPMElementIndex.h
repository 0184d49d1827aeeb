#ifndef ZTAPMELEMENTINDEX_H
#define ZTAPMELEMENTINDEX_H

#include "ZTArticleId.h"
#include "ZTXMLLoader.h"
#include "ztapm_export.h"

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QStringList>

#include <memory>
#include <vector>

class QFile;
class QFileInfo;

// Where the elements of each article id stand in a key-account document, found in one quick
// pass, so that a store reads an article's elements at the first question for it rather than
// every element at once. Nothing of the document is held but the offsets. The file stays open,
// so that a file replaced on disk or removed does not change what the index reads.
class ZTAPM_EXPORT ZTAPMElementIndex
{
public:
    ZTAPMElementIndex();
    ZTAPMElementIndex(ZTAPMElementIndex&&) noexcept;
    ZTAPMElementIndex& operator=(ZTAPMElementIndex&&) noexcept;
    ~ZTAPMElementIndex();

    // Indexes the elements named theNodeNames[i] in the section theSectionNames[i], as
    // ZTXMLLoader::indexSectionElements() finds them, by the id of their "id" attribute. On
    // anything but Indexed the index is left as it was.
    ZTXMLLoader::Indexing build(const QFileInfo& theFile, const QStringList& theSectionNames,
                                const QStringList& theNodeNames);

    bool contains(const ZTArticleId& theId) const { return myFirst.contains(theId); }

    // Reads the elements of an id and drops them from the index: in the order of the sections'
    // names, then in document order, as a reading of the whole document meets them. An element
    // that no longer stands where it stood (the file was written over) is left out.
    QList<QDomElement> take(const ZTArticleId& theId);

private:
    struct Entry
    {
        qint64 begin = 0;
        qint64 end = 0;
        qint32 next = -1; // the id's next element, or -1
    };

    std::unique_ptr<QFile> myFile;
    std::vector<Entry> myEntries;
    QHash<ZTArticleId, qint32> myFirst; // the first element of each id
};

#endif // ZTAPMELEMENTINDEX_H
