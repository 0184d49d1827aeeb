#include "ZTRange.h"

ZTIntRange::ZTIntRange(int theLower, int theUpper) : ZTRange<int>(theLower, theUpper)
{}

ZTIntRange::~ZTIntRange() = default;

QDebug operator<<(QDebug debug, const ZTIntRange& range)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTIntRange(" << range.lower() << ".." << range.upper() << ')';
    return debug;
}
