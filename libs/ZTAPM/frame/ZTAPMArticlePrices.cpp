#include "ZTAPMArticlePrices.h"

ZTAPMArticlePrices::ZTAPMArticlePrices() = default;
ZTAPMArticlePrices::~ZTAPMArticlePrices() = default;

ZTKeyAccountDataType ZTAPMArticlePrices::dataType() const
{
    return ZTKeyAccountDataType(ZTKeyAccountDataTypePrices);
}

bool ZTAPMArticlePrices::parseElement(const QDomElement& theElement) const
{
    const ZTArticleId id = ZTArticleId::fromIdAttribute(theElement);
    const ZTAPMArticlePriceInfo priceInfo(id, theElement);
    if (!priceInfo.isValid() || !id.isValid())
        return false;
    return insert(id, priceInfo);
}

void ZTAPMArticlePrices::load() const
{
    const QFileInfo file = ZTResourceFile(dataType()).fileInfo(false, QString());
    if (!file.exists())
        return;
    QWriteLocker writer(&lock());
    ZTAPMElementIndex index;
    if (!index.build(file, sectionNames(), articleNodes()))
        return;
    myIndex = std::move(index);
    myIndexed = true;
    myParsedIds.clear();
    clearUnlocked();
}

ZTAPMArticlePriceInfo ZTAPMArticlePrices::priceInfo(const ZTArticleId& theId) const
{
    {
        QReadLocker reader(&lock());
        if (isIndexed() && (myParsedIds.contains(theId.id()) || !myIndex.contains(theId.id())))
            return valueUnlocked(theId);
    }
    QWriteLocker writer(&lock());
    // Another thread may have loaded or parsed between the two locks.
    if (!isIndexed())
        load();
    if (!isIndexed() || myParsedIds.contains(theId.id()) || !theId.isValid())
        return valueUnlocked(theId);
    // The last element that makes a price info wins, as when every element is read in turn.
    const QList<ZTAPMElementIndex::Entry> entries = myIndex.entries(theId.id());
    for (auto entry = entries.crbegin(); entry != entries.crend() && !containsUnlocked(theId); ++entry)
        parseElement(myIndex.element(*entry));
    myParsedIds.insert(theId.id());
    return valueUnlocked(theId);
}
