#ifndef ZTPASSWORDPOLICY_H
#define ZTPASSWORDPOLICY_H

#include "ztapm_export.h"

#include <QtGlobal>

class QDomElement;

// How a new password is rated: its least length and the points from which it counts as fair
// (yellow) or good (green). How points are counted is the host's business.
class ZTAPM_EXPORT ZTPasswordPolicy
{
public:
    // 8 characters, 4 and 8 points.
    ZTPasswordPolicy();
    // Reads "min_characters", "yellow_word" and "green_word" of a "password_policy" element; a
    // missing or malformed attribute, or a null element, keeps the default.
    explicit ZTPasswordPolicy(const QDomElement& theElement);
    virtual ~ZTPasswordPolicy();

    int minPasswordLength() const { return myMinPasswordLength; }
    int pointsForYellow() const { return myPointsForYellow; }
    int pointsForGreen() const { return myPointsForGreen; }

    bool operator==(const ZTPasswordPolicy& theOther) const;
    bool operator!=(const ZTPasswordPolicy& theOther) const { return !(*this == theOther); }

private:
    qint32 myMinPasswordLength = 8;
    qint32 myPointsForYellow = 4;
    qint32 myPointsForGreen = 8;
};

#endif // ZTPASSWORDPOLICY_H
