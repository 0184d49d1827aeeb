#ifndef ZTDATERANGE_H
#define ZTDATERANGE_H

#include "ztcore_export.h"

#include <QDate>
#include <QDebug>

// A span of whole days, both ends included. Default-made with two invalid dates.
class ZTCORE_EXPORT ZTDateRange
{
public:
    ZTDateRange();
    ZTDateRange(const QDate& theFirst, const QDate& theLast);
    ZTDateRange(const ZTDateRange& other);
    ZTDateRange& operator=(const ZTDateRange& other);
    virtual ~ZTDateRange();

    QDate first() const { return myFirst; }
    QDate last() const { return myLast; }
    void setFirst(const QDate& theFirst) { myFirst = theFirst; }
    void setLast(const QDate& theLast) { myLast = theLast; }

    // Both dates valid and the first not after the last.
    virtual bool isValid() const;
    virtual bool contains(const QDate& theDate) const;
    // Days from first to last, both counted; 0 for an invalid range.
    virtual qint64 days() const;

    virtual bool operator==(const ZTDateRange& other) const;
    virtual bool operator!=(const ZTDateRange& other) const;

private:
    QDate myFirst;
    QDate myLast;
};

ZTCORE_EXPORT QDebug operator<<(QDebug debug, const ZTDateRange& theRange);

#endif // ZTDATERANGE_H
