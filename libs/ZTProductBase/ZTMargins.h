#ifndef ZTMARGINS_H
#define ZTMARGINS_H

#include "ztproductbase_export.h"

#include <QDebug>

// The bleed that one page of a product really gets, side by side, in pixels. Unlike
// ZTBleedMargin, the two sides of an axis may differ: a page in the middle of a spread has no
// bleed on the side where it meets its neighbour.
class ZTPRODUCTBASE_EXPORT ZTMargins
{
public:
    ZTMargins();
    // The same vertical margin at top and bottom, the same horizontal one left and right.
    ZTMargins(int theVertical, int theHorizontal);
    ZTMargins(int theTop, int theBottom, int theLeft, int theRight);
    ZTMargins(const ZTMargins& other);
    ZTMargins& operator=(const ZTMargins& other);
    virtual ~ZTMargins();

    int top() const { return myTop; }
    int bottom() const { return myBottom; }
    int left() const { return myLeft; }
    int right() const { return myRight; }

    bool operator==(const ZTMargins& other) const;
    bool operator!=(const ZTMargins& other) const { return !(*this == other); }

private:
    int myTop = 0;
    int myBottom = 0;
    int myLeft = 0;
    int myRight = 0;
};

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTMargins& theMargins);

#endif // ZTMARGINS_H
