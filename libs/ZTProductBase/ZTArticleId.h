#ifndef ZTARTICLEID_H
#define ZTARTICLEID_H

#include "ztproductbase_export.h"

#include <QDebug>
#include <QHashFunctions>
#include <QString>

class QDomElement;

// The number of an article in the key account's catalogue. Real ids are positive; a missing or
// unreadable id is held as InvalidId (-1), and 0, with which some records start, is invalid too.
//
// Read from the attribute "id" (articles, prices, delivery times, fees) or "article_id" (the
// positions of the server's order calculation).
class ZTPRODUCTBASE_EXPORT ZTArticleId
{
public:
    static constexpr qint32 InvalidId = -1;

    // Two families of articles whose page organisation is not in the document but fixed by the
    // product itself. The ranges are reserved for them in every key account.
    static constexpr qint32 CardWithInsertedFotoFirst = 71000;
    static constexpr qint32 CardWithInsertedFotoLast = 71099;
    static constexpr qint32 AdventCalendarWithDoorBackPrintFirst = 72400;
    static constexpr qint32 AdventCalendarWithDoorBackPrintLast = 72499;

    ZTArticleId() = default;
    explicit ZTArticleId(qint32 theId) : myId(theId) {}

    // A missing attribute gives an invalid id in silence, a malformed one with a warning.
    static ZTArticleId fromIdAttribute(const QDomElement& theElement);
    static ZTArticleId fromArtIdAttribute(const QDomElement& theElement);
    // Decimal text with optional blanks; empty or malformed text gives an invalid id.
    static ZTArticleId fromString(const QString& theText);

    void toIdAttribute(QDomElement& theElement) const;
    void toArtIdAttribute(QDomElement& theElement) const;

    qint32 id() const { return myId; }
    bool isValid() const { return myId > 0; }
    QString toString() const;

    bool isCardWithInsertedFoto() const;
    bool isAdventCalendarWithDoorBackPrint() const;

    bool operator==(const ZTArticleId& other) const { return myId == other.myId; }
    bool operator!=(const ZTArticleId& other) const { return myId != other.myId; }
    bool operator<(const ZTArticleId& other) const { return myId < other.myId; }

private:
    static ZTArticleId fromAttribute(const QDomElement& theElement, const QString& theName);

    qint32 myId = InvalidId;
};

inline size_t qHash(const ZTArticleId& theId, size_t seed = 0) noexcept
{
    return qHash(theId.id(), seed);
}

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTArticleId& theId);

#endif // ZTARTICLEID_H
