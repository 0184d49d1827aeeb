#ifndef ZTPAGESIZEKEY_H
#define ZTPAGESIZEKEY_H

#include "ZTPageType.h"
#include "ztproductbase_export.h"

#include <QDebug>
#include <QHashFunctions>

// The question "how large is this page": the kind of page, the number of pages of the product
// (the spine grows with it), and where the page stands in a spread. A page that meets a
// neighbour loses its bleed on that side in products that print a spread without a cut between
// the pages.
class ZTPRODUCTBASE_EXPORT ZTPageSizeKey
{
public:
    enum Alignment : qint32 {
        // A page of its own, or the alignment does not matter.
        AlignmentNone = 0,
        // The left page of a spread: its neighbour is on the right.
        AlignmentLeft = 1,
        // The right page of a spread: its neighbour is on the left.
        AlignmentRight = 2,
    };

    ZTPageSizeKey();
    ZTPageSizeKey(const ZTPageType& thePageType, int thePageCount, Alignment theAlignment = AlignmentNone);
    ZTPageSizeKey(const ZTPageSizeKey& other);
    ZTPageSizeKey& operator=(const ZTPageSizeKey& other);
    virtual ~ZTPageSizeKey();

    ZTPageType pageType() const { return myPageType; }
    int pageCount() const { return myPageCount; }
    Alignment alignment() const { return myAlignment; }

    bool operator==(const ZTPageSizeKey& other) const;
    bool operator!=(const ZTPageSizeKey& other) const { return !(*this == other); }

private:
    ZTPageType myPageType;
    int myPageCount = 1;
    Alignment myAlignment = AlignmentNone;
};

inline size_t qHash(const ZTPageSizeKey& theKey, size_t seed = 0) noexcept
{
    return qHashMulti(seed, qint32(theKey.pageType().value()), theKey.pageCount(),
                      qint32(theKey.alignment()));
}

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTPageSizeKey& theKey);

#endif // ZTPAGESIZEKEY_H
