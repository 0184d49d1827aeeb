#ifndef ZTAPMARTICLEDATA_H
#define ZTAPMARTICLEDATA_H

#include "ZTArticleId.h"
#include "ZTKeyAccountDataType.h"
#include "ZTResourceFile.h"
#include "ZTTemplateExport.h"
#include "ZTXMLLoader.h"

#include <QDomDocument>
#include <QDomElement>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QReadWriteLock>
#include <QString>

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

    // Reads the document again. A missing file leaves everything as it was.
    void load() const
    {
        // Node names are the same for every store of one value type.
        static const QList<QString> nodeNames = articleNodes();

        const QFileInfo file = ZTResourceFile(dataType()).fileInfo(false, QString());
        if (!file.exists())
            return;

        QWriteLocker locker(&myLock);
        myData.clear();
        myData.reserve(reservedEntries);
        // The document lives only as long as this scope: a full catalogue is tens of megabytes.
        const QDomDocument document = ZTXMLLoader::loadDocument(file);
        const QDomElement root = document.documentElement();
        for (const QString& nodeName : nodeNames) {
            const QDomElement section = root.firstChildElement(nodeName + QLatin1Char('s'));
            for (QDomElement element = section.firstChildElement(nodeName); !element.isNull();
                 element = element.nextSiblingElement(nodeName))
                parseElement(element);
        }
    }

    // The value of an id, or a default-made T. An empty store loads first.
    T data(const ZTArticleId& theId) const
    {
        {
            QReadLocker reader(&myLock);
            if (!myData.isEmpty())
                return valueOf(theId);
        }
        QWriteLocker writer(&myLock);
        // Another thread may have loaded between the two locks.
        if (myData.isEmpty())
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
};

#endif // ZTAPMARTICLEDATA_H
