#include "ZTBleedMargin.h"

ZTBleedMargin::ZTBleedMargin() = default;

ZTBleedMargin::ZTBleedMargin(int theHorizontal, int theVertical)
    : myHorizontal(theHorizontal), myVertical(theVertical)
{}

ZTBleedMargin::ZTBleedMargin(const ZTBleedMargin& other) = default;
ZTBleedMargin& ZTBleedMargin::operator=(const ZTBleedMargin& other) = default;
ZTBleedMargin::~ZTBleedMargin() = default;

bool ZTBleedMargin::operator==(const ZTBleedMargin& other) const
{
    return myHorizontal == other.myHorizontal && myVertical == other.myVertical;
}

QDebug operator<<(QDebug debug, const ZTBleedMargin& theMargin)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTBleedMargin(" << theMargin.horizontal() << ", " << theMargin.vertical() << ')';
    return debug;
}
