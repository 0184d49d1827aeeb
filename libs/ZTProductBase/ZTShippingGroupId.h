#ifndef ZTSHIPPINGGROUPID_H
#define ZTSHIPPINGGROUPID_H

#include "ztproductbase_export.h"

#include <QDebug>
#include <QHashFunctions>
#include <QString>

class QDomElement;

// The number of a shipping group: one bill, one price list tab and one set of change stamps per
// group. Any number from 0 up is a group; a missing or unreadable id is held as InvalidId (-1).
class ZTPRODUCTBASE_EXPORT ZTShippingGroupId
{
public:
    static constexpr qint32 InvalidId = -1;

    ZTShippingGroupId() = default;
    explicit ZTShippingGroupId(qint32 theId) : myId(theId) {}
    // The attribute "id" of a "group" element of the ordering details.
    explicit ZTShippingGroupId(const QDomElement& theGroup);
    // The named attribute of any element, such as "group" of an article. A missing attribute
    // gives an invalid id in silence, a malformed one with a warning.
    ZTShippingGroupId(const QDomElement& theElement, const QString& theAttribute);

    // Decimal text with optional blanks; empty or malformed text gives an invalid id.
    static ZTShippingGroupId createFrom(const QString& theText);

    qint32 id() const { return myId; }
    bool isValid() const { return myId >= 0; }
    QString toString() const;

    bool operator==(const ZTShippingGroupId& other) const { return myId == other.myId; }
    bool operator!=(const ZTShippingGroupId& other) const { return myId != other.myId; }
    bool operator<(const ZTShippingGroupId& other) const { return myId < other.myId; }

private:
    qint32 myId = InvalidId;
};

inline size_t qHash(const ZTShippingGroupId& theId, size_t seed = 0) noexcept
{
    return qHash(theId.id(), seed);
}

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTShippingGroupId& theId);

#endif // ZTSHIPPINGGROUPID_H
