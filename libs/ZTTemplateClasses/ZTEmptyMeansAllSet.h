#ifndef ZTEMPTYMEANSALLSET_H
#define ZTEMPTYMEANSALLSET_H

#include "ZTTemplateExport.h"

#include <QSet>

// A set in which the empty set means "no restriction". The set itself knows nothing of that
// reading: callers test isEmpty() first, which is why sharesRealKeysWith ignores it.
template <typename T>
class ZT_TEMPLATE_EXPORT ZTEmptyMeansAllSet : public QSet<T>
{
public:
    ZTEmptyMeansAllSet() = default;
    ZTEmptyMeansAllSet(std::initializer_list<T> theValues) : QSet<T>(theValues) {}

    // One entry per set bit of an enumeration wrapper's value; empty for a value below 1.
    static ZTEmptyMeansAllSet decompose(const T& theValue)
    {
        ZTEmptyMeansAllSet result;
        for (auto bit : theValue.splitToBitsSorted())
            result.insert(T(bit));
        return result;
    }

    // All entries joined into one value; a value of 0 for an empty set.
    T compose() const
    {
        T result;
        for (const T& entry : *this)
            result |= entry;
        return result;
    }

    bool sharesRealKeysWith(const ZTEmptyMeansAllSet& other) const
    {
        if (this->isEmpty() || other.isEmpty())
            return false;
        return this->intersects(other);
    }
};

#endif // ZTEMPTYMEANSALLSET_H
