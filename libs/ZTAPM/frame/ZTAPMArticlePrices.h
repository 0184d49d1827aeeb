#ifndef ZTAPMARTICLEPRICES_H
#define ZTAPMARTICLEPRICES_H

#include "ZTAPMArticleData.h"
#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMElementIndex.h"
#include "ztapm_export.h"

#include <QSet>

// The price tables of the prices document, by article id. An id that occurs twice keeps its
// later element.
//
// A prices document is big and most of its articles are never priced in a session, so the
// store indexes the document in one quick pass and parses an article's element at its first
// question: the values are those of a reading of every element.
class ZTAPM_EXPORT ZTAPMArticlePrices : public ZTAPMArticleData<ZTAPMArticlePriceInfo>
{
public:
    ZTAPMArticlePrices();
    ~ZTAPMArticlePrices() override;

    ZTKeyAccountDataType dataType() const override;
    bool parseElement(const QDomElement& theElement) const override;

    // Indexes the document again; a missing or broken file leaves everything as it was.
    void load() const;
    ZTAPMArticlePriceInfo priceInfo(const ZTArticleId& theId) const;

private:
    // The index stands for the document and has articles; otherwise a question loads.
    bool isIndexed() const { return myIndexed && !myIndex.isEmpty(); }

    mutable ZTAPMElementIndex myIndex;
    mutable bool myIndexed = false;
    mutable QSet<qint32> myParsedIds; // whose elements were parsed, with or without a result
};

#endif // ZTAPMARTICLEPRICES_H
