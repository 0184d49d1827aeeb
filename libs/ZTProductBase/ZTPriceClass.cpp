#include "ZTPriceClass.h"

ZTPriceClass::ZTPriceClass() = default;

ZTPriceClass::ZTPriceClass(const ZTPriceClass& other) = default;

ZTPriceClass& ZTPriceClass::operator=(const ZTPriceClass& other) = default;

ZTPriceClass::~ZTPriceClass() = default;

ZTPriceClass ZTPriceClass::create(const QString& theKeyword)
{
    ZTPriceClass result;
    result.myKeyword = theKeyword.trimmed();
    return result;
}

QDebug operator<<(QDebug debug, const ZTPriceClass& theClass)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTPriceClass(" << theClass.toString() << ')';
    return debug;
}
