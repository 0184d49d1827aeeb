#include "ZTAPMOrderTxtContent.h"
#include "ZTMutexLocker.h"

#include <QDomElement>

ZTAPMOrderTxtContent::ZTAPMOrderTxtContent() = default;

ZTAPMOrderTxtContent::ZTAPMOrderTxtContent(const ZTAPMOrderTxtContent& other)
    : myHead(other.myHead), myLines(other.myLines), myValueCache(other.valueCache())
{}

ZTAPMOrderTxtContent& ZTAPMOrderTxtContent::operator=(const ZTAPMOrderTxtContent& other)
{
    if (this != &other) {
        QHash<QString, QString> cache = other.valueCache();
        myHead = other.myHead;
        myLines = other.myLines;
        ZTMutexLocker locker(&myValueCacheMutex);
        myValueCache.swap(cache);
    }
    return *this;
}

ZTAPMOrderTxtContent::~ZTAPMOrderTxtContent() = default;

QHash<QString, QString> ZTAPMOrderTxtContent::valueCache() const
{
    ZTMutexLocker locker(&myValueCacheMutex);
    return myValueCache;
}

bool ZTAPMOrderTxtContent::operator==(const ZTAPMOrderTxtContent& other) const
{
    return myHead == other.myHead && myLines == other.myLines && valueCache() == other.valueCache();
}

bool ZTAPMOrderTxtContent::operator!=(const ZTAPMOrderTxtContent& other) const
{
    return !(*this == other);
}

QString ZTAPMOrderTxtContent::head() const
{
    return myHead;
}

QList<QString> ZTAPMOrderTxtContent::lines() const
{
    return myLines;
}

bool ZTAPMOrderTxtContent::hasHead(const QString& theHead) const
{
    return myHead == theHead;
}

bool ZTAPMOrderTxtContent::isValid() const
{
    return *this != ZTAPMOrderTxtContent();
}

QString ZTAPMOrderTxtContent::orderTxtValue(const QString& theKey) const
{
    ZTMutexLocker locker(&myValueCacheMutex);
    const auto cached = myValueCache.constFind(theKey);
    if (cached != myValueCache.cend() && !cached->isEmpty())
        return *cached;

    const QString prefix = theKey.endsWith(QLatin1Char('=')) ? theKey : theKey + QLatin1Char('=');
    for (const QString& line : myLines) {
        if (line.startsWith(prefix, Qt::CaseInsensitive)) {
            const QString value = line.mid(prefix.size());
            myValueCache.insert(theKey, value);
            return value;
        }
    }
    return QString();
}

void ZTAPMOrderTxtContent::update(const QDomElement& theElement)
{
    const QDomElement linesElement = theElement.firstChildElement(QStringLiteral("order_txt_lines"));
    if (linesElement.isNull())
        return;
    myLines.clear();
    {
        ZTMutexLocker locker(&myValueCacheMutex);
        myValueCache.clear();
    }
    myHead = linesElement.attribute(QStringLiteral("head"));
    for (QDomElement line = linesElement.firstChildElement(); !line.isNull();
         line = line.nextSiblingElement())
        myLines.append(line.text());
}
