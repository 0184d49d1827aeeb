#ifndef ZTFOTOPACK_H
#define ZTFOTOPACK_H

#include "ZTArticleId.h"
#include "ztapm_export.h"

#include <QDateTime>

class QDomElement;

// A prepaid photo pack that the customer owns: so many pieces of one article, of which the
// server tells the rest, usable until a date.
class ZTAPM_EXPORT ZTFotopack
{
public:
    ZTFotopack();
    // A "photopack"; without "valid_until" the pack expired long ago.
    explicit ZTFotopack(const QDomElement& theElement);

    ZTArticleId articleId() const { return myArticleId; }
    int residualAmount() const { return myResidualAmount; }
    int initialAmount() const { return myInitialAmount; }
    QDateTime validUntil() const { return myValidUntil; }

    // The catalogue knows the article and the pack has not expired yet.
    bool isValid() const;

    // Equal only while nothing of either pack has been used: the rest of this pack is compared
    // with the initial amount of the other.
    bool operator==(const ZTFotopack& theOther) const;
    bool operator!=(const ZTFotopack& theOther) const { return !(*this == theOther); }
    // By shipping group; within an article by day of expiry, then by the smaller rest; between
    // articles by print size, then by article id. Two articles that differ only in the second
    // dimension of their print size stand in neither order.
    bool operator<(const ZTFotopack& theOther) const;

private:
    ZTArticleId myArticleId{-1};
    qint32 myResidualAmount = 0;
    qint32 myInitialAmount = 0;
    QDateTime myValidUntil;
};

#endif // ZTFOTOPACK_H
