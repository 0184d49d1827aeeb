#include "ZTMargins.h"

ZTMargins::ZTMargins() = default;

ZTMargins::ZTMargins(int theVertical, int theHorizontal)
    : ZTMargins(theVertical, theVertical, theHorizontal, theHorizontal)
{}

ZTMargins::ZTMargins(int theTop, int theBottom, int theLeft, int theRight)
    : myTop(theTop), myBottom(theBottom), myLeft(theLeft), myRight(theRight)
{}

ZTMargins::ZTMargins(const ZTMargins& other) = default;
ZTMargins& ZTMargins::operator=(const ZTMargins& other) = default;
ZTMargins::~ZTMargins() = default;

bool ZTMargins::operator==(const ZTMargins& other) const
{
    return myTop == other.myTop && myBottom == other.myBottom && myLeft == other.myLeft &&
           myRight == other.myRight;
}

QDebug operator<<(QDebug debug, const ZTMargins& theMargins)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTMargins(top " << theMargins.top() << ", bottom " << theMargins.bottom() << ", left "
                    << theMargins.left() << ", right " << theMargins.right() << ')';
    return debug;
}
