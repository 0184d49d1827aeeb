#ifndef ZTAPMARTICLEDATA_H
#define ZTAPMARTICLEDATA_H

#include "ZTArticleId.h"
#include "ZTKeyAccountDataType.h"
#include "ZTResourceFile.h"
#include "ZTTemplateExport.h"
#include "ZTXMLLoader.h"

#include <QDomElement>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QReadWriteLock>
#include <QString>
#include <QStringList>

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
        QWriteLocker locker(&myLock);
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

    // Reads the document again. A missing or broken file leaves everything as it was. A reading
    // counts whatever it brought, so that a document without rows, or a broken one, is read and
    // warned about once, not at every question; the next reading is the host's call.
    void load() const
    {
        // Node names are the same for every store of one value type.
        static const QList<QString> nodeNames = articleNodes();
        static const QStringList sectionNames = [] {
            QStringList names;
            for (const QString& nodeName : nodeNames)
                names.append(nodeName + QLatin1Char('s'));
            return names;
        }();

        const QFileInfo file = ZTResourceFile(dataType()).fileInfo(false, QString());
        if (!file.exists())
            return;

        QWriteLocker locker(&myLock);
        myLoaded = true;
        // The elements go straight into a fresh hash; the old one returns if the file breaks.
        QHash<ZTArticleId, T> previous;
        previous.swap(myData);
        myData.reserve(reservedEntries);

        // The document is streamed, one element at a time: a full catalogue is tens of
        // megabytes. Node names are read in list order whatever the order of the sections, so
        // that the same id in two sections ends the same way: an element is parsed at once
        // while every earlier section has been read and parsed, else kept until the end.
        std::vector<bool> started(size_t(sectionNames.size()), false);
        std::vector<QList<QDomElement>> deferred(size_t(sectionNames.size()));
        bool deferring = false;
        const bool complete = ZTXMLLoader::forEachSectionElement(
            file, sectionNames, [&](qsizetype theSection, const QDomElement& theElement) {
                if (theElement.tagName() != nodeNames.at(theSection))
                    return;
                const size_t section = size_t(theSection);
                started[section] = true;
                bool due = true;
                for (size_t earlier = 0; earlier < section && due; ++earlier)
                    due = started[earlier] && deferred[earlier].isEmpty();
                if (due) {
                    parseElement(theElement);
                } else {
                    deferred[section].append(theElement);
                    deferring = true;
                }
            });
        if (!complete) {
            myData.swap(previous);
            return;
        }
        if (deferring) {
            for (const QList<QDomElement>& elements : deferred) {
                for (const QDomElement& element : elements)
                    parseElement(element);
            }
        }
    }

    // The value of an id, or a default-made T. A store that has not read its document yet reads
    // it first; one whose file is missing looks for it again at the next question.
    T data(const ZTArticleId& theId) const
    {
        {
            QReadLocker reader(&myLock);
            if (myLoaded)
                return valueOf(theId);
        }
        QWriteLocker writer(&myLock);
        // Another thread may have loaded between the two locks.
        if (!myLoaded)
            load();
        return valueOf(theId);
    }

protected:
    // Only under the lock.
    bool containsUnlocked(const ZTArticleId& theId) const { return myData.contains(theId); }
    T valueUnlocked(const ZTArticleId& theId) const { return valueOf(theId); }

    QReadWriteLock& lock() const { return myLock; }

private:
    T valueOf(const ZTArticleId& theId) const
    {
        const auto found = myData.constFind(theId);
        return found == myData.cend() ? T() : *found;
    }

    mutable QHash<ZTArticleId, T> myData;
    mutable QReadWriteLock myLock{QReadWriteLock::Recursive};
    // A file was read, well or not: an empty hash is then the document's answer.
    mutable bool myLoaded = false;
};

#endif // ZTAPMARTICLEDATA_H
