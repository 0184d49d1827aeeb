#include "ZTDateRange.h"

ZTDateRange::ZTDateRange() = default;

ZTDateRange::ZTDateRange(const QDate& theFirst, const QDate& theLast) : myFirst(theFirst), myLast(theLast)
{}

ZTDateRange::ZTDateRange(const ZTDateRange& other) = default;

ZTDateRange& ZTDateRange::operator=(const ZTDateRange& other) = default;

ZTDateRange::~ZTDateRange() = default;

bool ZTDateRange::isValid() const
{
    return myFirst.isValid() && myLast.isValid() && myFirst <= myLast;
}

bool ZTDateRange::contains(const QDate& theDate) const
{
    return isValid() && theDate.isValid() && myFirst <= theDate && theDate <= myLast;
}

qint64 ZTDateRange::days() const
{
    return isValid() ? myFirst.daysTo(myLast) + 1 : 0;
}

bool ZTDateRange::operator==(const ZTDateRange& other) const
{
    return myFirst == other.myFirst && myLast == other.myLast;
}

bool ZTDateRange::operator!=(const ZTDateRange& other) const
{
    return !(*this == other);
}

QDebug operator<<(QDebug debug, const ZTDateRange& theRange)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTDateRange(" << theRange.first().toString(Qt::ISODate) << ".."
                    << theRange.last().toString(Qt::ISODate) << ')';
    return debug;
}
