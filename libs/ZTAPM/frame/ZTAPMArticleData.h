#ifndef ZTAPMARTICLEDATA_H
#define ZTAPMARTICLEDATA_H

#include "ZTAPMElementIndex.h"
#include "ZTArticleId.h"
#include "ZTDiagnosticCollector.h"
#include "ZTKeyAccountDataType.h"
#include "ZTReadLocker.h"
#include "ZTResourceFile.h"
#include "ZTTemplateExport.h"
#include "ZTWriteLocker.h"
#include "ZTXMLLoader.h"

#include <QDomElement>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QReadWriteLock>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

// One key-account document read into a hash from article id to a value of type T, at the first
// question and again on request. Values leave the store by copy only, so a reload may replace
// everything while copies handed out earlier stay usable.
//
// The document's root holds one section per node name, named as the node name with an "s"
// behind it ("articles" holds "article" elements). Subclasses say which document, which node
// names and how one element becomes a value.
//
// All operations are const: the store is a read-only view of a document that it fills on
// demand. The lock is recursive because data() loads while holding it for writing, and loading
// reaches insert(), which takes it again.
template <typename T>
class ZT_TEMPLATE_EXPORT ZTAPMArticleData
{
public:
    // Room for a full catalogue, so that loading never rehashes.
    static constexpr qsizetype reservedEntries = 20000;

    ZTAPMArticleData() { myData.reserve(reservedEntries); }
    ZTAPMArticleData(const ZTAPMArticleData&) = delete;
    ZTAPMArticleData& operator=(const ZTAPMArticleData&) = delete;
    virtual ~ZTAPMArticleData() = default;

    // Stores a value, replacing what stood under the id; true if that changes the value.
    virtual bool insert(const ZTArticleId& theId, const T& theValue) const
    {
        ZTWriteLocker locker(&myLock);
        const auto existing = myData.constFind(theId);
        const bool changed = existing == myData.cend() ? !(theValue == T()) : !(theValue == *existing);
        myData.insert(theId, theValue);
        return changed;
    }

    // The node names in reading order; a later element of an id may override an earlier one.
    virtual QList<QString> articleNodes() const
    {
        return {QStringLiteral("article"),        QStringLiteral("add_on"),
                QStringLiteral("transfer"),       QStringLiteral("express_fee"),
                QStringLiteral("pay_method_fee"), QStringLiteral("shipment_method_fee")};
    }

    virtual ZTKeyAccountDataType dataType() const = 0;
    // Makes a value of one element and stores it through insert(); the result is not looked at.
    virtual bool parseElement(const QDomElement& theElement) const = 0;
    // Whether a value is made of the elements of its own id alone, so that the store may find
    // where each id's elements stand in one quick pass and read them at the id's first question:
    // the answers are those of a reading of every element.
    virtual bool readsElementsOnDemand() const { return false; }

    // Reads the document again. A missing or broken file leaves everything as it was. A reading
    // counts whatever it brought, so that a document without rows, or a broken one, is read and
    // warned about once, not at every question; the next reading is the host's call.
    void load() const
    {
        const QFileInfo file = ZTResourceFile(dataType()).fileInfo(false, QString());
        if (!file.exists())
            return;
        // Findings name the place of every element, so a reading that collects them reads whole.
        if (readsElementsOnDemand() && !ZTDiagnosticCollector::isCollecting()) {
            ZTWriteLocker writer(&myLock);
            ZTAPMElementIndex index;
            const ZTXMLLoader::Indexing indexing = index.build(file, sectionNames(), nodeNames());
            if (indexing != ZTXMLLoader::Indexing::Unsuitable) {
                myLoaded = true;
                if (indexing == ZTXMLLoader::Indexing::Indexed) {
                    myIndex = std::move(index);
                    myData.clear();
                    myData.reserve(reservedEntries);
                }
                return;
            }
            // Read whole, as a store without an index reads.
            myIndex = ZTAPMElementIndex();
        }
        Filling filling(*this);
        filling.finish(ZTXMLLoader::forEachSectionElement(
            file, sectionNames(), [&](qsizetype theSection, const QDomElement& theElement) {
                filling.add(theSection, theElement);
            }));
    }

    // Reads the document now if the store has not read it yet, as its first question would: for
    // a caller that would rather have the reading overlap with other work than wait for it later.
    void prepare() const
    {
        ZTWriteLocker writer(&myLock);
        if (!myLoaded)
            load();
    }

    // One reading of the store's document, made by the store itself or by someone who reads the
    // same document for other ends as well, so that a big document is read once. It holds the
    // write lock from construction to its end: readers wait, as they wait for load(). Elements
    // come in with the index of their section in sectionNames(); a broken reading (finish(false),
    // or no finish() at all) leaves the store as it was.
    class Filling
    {
    public:
        explicit Filling(const ZTAPMArticleData& theStore)
            : myStore(theStore)
            , myLocker(&theStore.myLock)
            , myStarted(sectionCount())
            , myDeferred(sectionCount())
            , myDeferredPlaces(sectionCount())
        {
            // A reading counts whatever it brings, so that a broken document is not read again.
            myStore.myLoaded = true;
            // The elements go straight into a fresh hash; the old one returns if the file breaks.
            myPrevious.swap(myStore.myData);
            myStore.myData.reserve(reservedEntries);
        }
        ~Filling()
        {
            if (!myFinished)
                myStore.myData.swap(myPrevious);
        }
        Q_DISABLE_COPY(Filling)

        // Node names are read in list order whatever the order of the sections, so that the same
        // id in two sections ends the same way: an element is parsed at once while every earlier
        // section has been read and parsed, else kept until the end.
        void add(qsizetype theSection, const QDomElement& theElement)
        {
            if (theElement.tagName() != myStore.nodeNames().at(theSection))
                return;
            const size_t section = size_t(theSection);
            myStarted[section] = true;
            bool due = true;
            for (size_t earlier = 0; earlier < section && due; ++earlier)
                due = myStarted[earlier] && myDeferred[earlier].isEmpty();
            if (due) {
                myStore.parseElement(theElement);
            } else {
                myDeferred[section].append(theElement);
                // Read at the end, where the element's place would be lost.
                if (ZTDiagnosticCollector::isCollecting())
                    myDeferredPlaces[section].append({ZTDiagnosticCollector::Location::file(),
                                                      ZTDiagnosticCollector::Location::line(),
                                                      ZTDiagnosticCollector::Location::column()});
            }
        }

        // theComplete: the document was read to its end.
        void finish(bool theComplete)
        {
            if (!theComplete)
                return;
            for (size_t section = 0; section < myDeferred.size(); ++section) {
                const QList<QDomElement>& elements = myDeferred[section];
                const QList<Place>& places = myDeferredPlaces[section];
                for (qsizetype i = 0; i < elements.size(); ++i) {
                    std::optional<ZTDiagnosticCollector::Location> location;
                    if (i < places.size())
                        location.emplace(places.at(i).file, places.at(i).line, places.at(i).column);
                    myStore.parseElement(elements.at(i));
                }
            }
            myFinished = true;
        }

    private:
        size_t sectionCount() const { return size_t(myStore.sectionNames().size()); }

        const ZTAPMArticleData& myStore;
        ZTWriteLocker myLocker;
        QHash<ZTArticleId, T> myPrevious;
        std::vector<bool> myStarted;
        std::vector<QList<QDomElement>> myDeferred;
        struct Place
        {
            QString file;
            int line;
            int column;
        };
        std::vector<QList<Place>> myDeferredPlaces; // as myDeferred, while findings are collected
        bool myFinished = false;
    };

    // The sections of the document, one per node name with an "s" behind it, in reading order.
    const QStringList& sectionNames() const
    {
        static const QStringList names = [this] {
            QStringList result;
            for (const QString& nodeName : nodeNames())
                result.append(nodeName + QLatin1Char('s'));
            return result;
        }();
        return names;
    }

    // theFile is the store's own document and the store holds nothing: a reading of theFile may
    // fill it instead of the store reading the file itself at its first question.
    bool wantsReadingOf(const QFileInfo& theFile) const
    {
        ZTReadLocker reader(&myLock);
        return !myLoaded && theFile.absoluteFilePath() ==
                                ZTResourceFile(dataType()).fileInfo(false, QString()).absoluteFilePath();
    }

    // The value of an id, or a default-made T. A store that has not read its document yet reads
    // it first; one whose file is missing looks for it again at the next question.
    T data(const ZTArticleId& theId) const
    {
        {
            ZTReadLocker reader(&myLock);
            if (myLoaded) {
                const auto found = myData.constFind(theId);
                if (found != myData.cend())
                    return *found;
                if (!myIndex.contains(theId))
                    return T();
            }
        }
        ZTWriteLocker writer(&myLock);
        // Another thread may have loaded, or read the id, between the two locks.
        if (!myLoaded)
            load();
        if (myIndex.contains(theId)) {
            for (const QDomElement& element : myIndex.take(theId))
                parseElement(element);
        }
        return valueOf(theId);
    }

    // Every value the store holds, taken under one lock, for checks that visit every article: a
    // question per id would take the lock each time. A store that reads on demand holds the ids
    // asked so far, and every id while findings are collected, since it then reads whole.
    QHash<ZTArticleId, T> values() const
    {
        ZTReadLocker reader(&myLock);
        return myData;
    }

    // The ids that hold a value, ascending: for checks over the whole document.
    QList<ZTArticleId> ids() const
    {
        ZTReadLocker reader(&myLock);
        QList<ZTArticleId> result = myData.keys();
        std::sort(result.begin(), result.end());
        return result;
    }

protected:
    // Only under the lock.
    bool containsUnlocked(const ZTArticleId& theId) const { return myData.contains(theId); }
    T valueUnlocked(const ZTArticleId& theId) const { return valueOf(theId); }
    void clearUnlocked() const { myData.clear(); }

    QReadWriteLock& lock() const { return myLock; }

private:
    // Node names are the same for every store of one value type.
    const QList<QString>& nodeNames() const
    {
        static const QList<QString> names = articleNodes();
        return names;
    }

    T valueOf(const ZTArticleId& theId) const
    {
        const auto found = myData.constFind(theId);
        return found == myData.cend() ? T() : *found;
    }

    mutable QHash<ZTArticleId, T> myData;
    // Where the elements of the ids not asked yet stand, when the store reads on demand.
    mutable ZTAPMElementIndex myIndex;
    mutable QReadWriteLock myLock{QReadWriteLock::Recursive};
    // A file was read, well or not: an empty hash is then the document's answer.
    mutable bool myLoaded = false;
};

#endif // ZTAPMARTICLEDATA_H
