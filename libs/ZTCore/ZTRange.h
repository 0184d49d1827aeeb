#ifndef ZTRANGE_H
#define ZTRANGE_H

#include "ZTTemplateExport.h"
#include "ztcore_export.h"

#include <QDebug>

// A closed range [lower, upper]. A range whose upper bound lies below its lower one is invalid.
template <typename T>
class ZT_TEMPLATE_EXPORT ZTRange
{
public:
    ZTRange() = default;
    ZTRange(T theLower, T theUpper) : myLower(theLower), myUpper(theUpper) {}
    virtual ~ZTRange() = default;

    T lower() const { return myLower; }
    T upper() const { return myUpper; }
    void setLower(T theLower) { myLower = theLower; }
    void setUpper(T theUpper) { myUpper = theUpper; }

    virtual bool operator==(const ZTRange& other) const
    {
        return myLower == other.myLower && myUpper == other.myUpper;
    }
    virtual bool operator!=(const ZTRange& other) const { return !(*this == other); }
    virtual bool operator<(const ZTRange& other) const
    {
        if (!isValid())
            return false;
        if (!other.isValid())
            return true;
        if (myLower != other.myLower)
            return myLower < other.myLower;
        return myUpper < other.myUpper;
    }
    // The empty range 0..0 becomes value..value; otherwise the bound on the value's side moves
    // out to it.
    virtual void expandTo(T theValue)
    {
        if (myLower == T(0) && myUpper == T(0)) {
            myLower = myUpper = theValue;
        } else if (theValue < myLower) {
            myLower = theValue;
        } else if (theValue > myUpper) {
            myUpper = theValue;
        }
    }
    virtual T center() const { return T((myLower + myUpper) / 2); }
    virtual bool isValid() const { return !(myUpper < myLower); }
    virtual bool contains(T theValue) const { return myLower <= theValue && theValue <= myUpper; }
    virtual bool contains(const ZTRange& other) const
    {
        return contains(other.myLower) && contains(other.myUpper);
    }
    virtual bool intersects(const ZTRange& other) const
    {
        return contains(other.myLower) || contains(other.myUpper) || other.contains(myLower) ||
               other.contains(myUpper);
    }

protected:
    T myLower = T(0);
    T myUpper = T(0);
};

class ZTCORE_EXPORT ZTIntRange : public ZTRange<int>
{
public:
    ZTIntRange() = default;
    ZTIntRange(int theLower, int theUpper);
    ~ZTIntRange() override;
};

ZTCORE_EXPORT QDebug operator<<(QDebug debug, const ZTIntRange& range);

#endif // ZTRANGE_H
