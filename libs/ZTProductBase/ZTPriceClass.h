#ifndef ZTPRICECLASS_H
#define ZTPRICECLASS_H

#include "ztproductbase_export.h"

#include <QDebug>
#include <QHashFunctions>
#include <QString>

// The price class of an add-on, the attribute "price_class": a keyword such as "FRAME_GLASS"
// that says what kind of add-on an article is (see ZTPriceClassSet). Compared exactly, blanks
// around it aside; the empty keyword is the invalid class.
class ZTPRODUCTBASE_EXPORT ZTPriceClass
{
public:
    ZTPriceClass();
    ZTPriceClass(const ZTPriceClass& other);
    ZTPriceClass& operator=(const ZTPriceClass& other);
    ~ZTPriceClass();

    static ZTPriceClass create(const QString& theKeyword);

    bool isValid() const { return !myKeyword.isEmpty(); }
    QString toString() const { return myKeyword; }

    bool operator==(const ZTPriceClass& other) const { return myKeyword == other.myKeyword; }
    bool operator!=(const ZTPriceClass& other) const { return myKeyword != other.myKeyword; }

private:
    QString myKeyword;
};

inline size_t qHash(const ZTPriceClass& theClass, size_t seed = 0) noexcept
{
    return qHash(theClass.toString(), seed);
}

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTPriceClass& theClass);

#endif // ZTPRICECLASS_H
