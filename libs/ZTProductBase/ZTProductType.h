#ifndef ZTPRODUCTTYPE_H
#define ZTPRODUCTTYPE_H

#include "ztproductbase_export.h"

#include <QDebug>
#include <QHashFunctions>
#include <QString>

// The type name of a product, the attribute "order_txt_type" of an article, by which editors and
// designs refer to a product across key accounts. Compared exactly, blanks around it aside.
class ZTPRODUCTBASE_EXPORT ZTProductType
{
public:
    ZTProductType();
    explicit ZTProductType(const QString& theName);
    ZTProductType(const ZTProductType& other);
    ZTProductType& operator=(const ZTProductType& other);
    ~ZTProductType();

    // A type has a name; the empty name stands for "no type".
    bool isValid() const { return !myName.isEmpty(); }
    QString name() const { return myName; }
    // The name as an order text and the server know it.
    QString orderTxtName() const { return myName; }

    size_t calcHashValue() const;

    bool operator==(const ZTProductType& other) const { return myName == other.myName; }
    bool operator!=(const ZTProductType& other) const { return myName != other.myName; }
    bool operator<(const ZTProductType& other) const { return myName < other.myName; }

private:
    QString myName;
};

inline size_t qHash(const ZTProductType& theType, size_t seed = 0) noexcept
{
    return qHash(theType.name(), seed);
}

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTProductType& theType);

#endif // ZTPRODUCTTYPE_H
