#include "ZTAPMElementIndex.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString theIdAttribute = QStringLiteral("id");

// The id of an element's "id" attribute; an attribute that is no number is warned about as a
// reading of the element warns.
ZTArticleId idOf(const QString& theText, const QString& theNodeName)
{
    const ZTArticleId id = ZTArticleId::fromString(theText);
    if (id.isValid() || theText.trimmed().isEmpty())
        return id;
    QDomDocument document;
    QDomElement element = document.createElement(theNodeName);
    element.setAttribute(theIdAttribute, theText);
    return ZTArticleId::fromIdAttribute(element);
}

} // namespace

ZTAPMElementIndex::ZTAPMElementIndex() = default;
ZTAPMElementIndex::ZTAPMElementIndex(ZTAPMElementIndex&&) noexcept = default;
ZTAPMElementIndex& ZTAPMElementIndex::operator=(ZTAPMElementIndex&&) noexcept = default;
ZTAPMElementIndex::~ZTAPMElementIndex() = default;

ZTXMLLoader::Indexing ZTAPMElementIndex::build(const QFileInfo& theFile, const QStringList& theSectionNames,
                                               const QStringList& theNodeNames)
{
    struct Found
    {
        qsizetype section;
        ZTArticleId id;
        Entry entry;
    };
    std::vector<Found> found;
    const ZTXMLLoader::Indexing result = ZTXMLLoader::indexSectionElements(
        theFile, theSectionNames, theNodeNames, theIdAttribute,
        [&](qsizetype theSection, const QString& theKey, qint64 theBegin, qint64 theEnd) {
            found.push_back({theSection, idOf(theKey, theNodeNames.at(theSection)), {theBegin, theEnd}});
        });
    if (result != ZTXMLLoader::Indexing::Indexed)
        return result;
    auto file = std::make_unique<QFile>(theFile.filePath());
    if (!file->open(QIODevice::ReadOnly))
        return ZTXMLLoader::Indexing::Unsuitable;

    // Reading order: by section in the order of the names, then in document order; each id's
    // chain is built from the back.
    std::stable_sort(found.begin(), found.end(),
                     [](const Found& a, const Found& b) { return a.section < b.section; });
    myFile = std::move(file);
    myEntries.clear();
    myEntries.reserve(found.size());
    myFirst.clear();
    myFirst.reserve(qsizetype(found.size()));
    for (const Found& element : found)
        myEntries.push_back(element.entry);
    for (qint32 i = qint32(found.size()) - 1; i >= 0; --i) {
        const auto first = myFirst.find(found[size_t(i)].id);
        if (first == myFirst.end()) {
            myFirst.insert(found[size_t(i)].id, i);
        } else {
            myEntries[size_t(i)].next = *first;
            *first = i;
        }
    }
    return result;
}

QList<QDomElement> ZTAPMElementIndex::take(const ZTArticleId& theId)
{
    QList<QDomElement> elements;
    const qint32 first = myFirst.value(theId, -1);
    myFirst.remove(theId);
    for (qint32 i = first; myFile && i >= 0 && i < qint32(myEntries.size()); i = myEntries[size_t(i)].next) {
        const Entry& entry = myEntries[size_t(i)];
        // Sections stand under the root, their elements one level below.
        const QDomElement element = ZTXMLLoader::loadElement(*myFile, entry.begin, entry.end, 3);
        if (!element.isNull() && ZTArticleId::fromString(element.attribute(theIdAttribute)) == theId)
            elements.append(element);
    }
    return elements;
}
