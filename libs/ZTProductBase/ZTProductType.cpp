#include "ZTProductType.h"

ZTProductType::ZTProductType() = default;

ZTProductType::ZTProductType(const QString& theName) : myName(theName.trimmed())
{}

ZTProductType::ZTProductType(const ZTProductType& other) = default;

ZTProductType& ZTProductType::operator=(const ZTProductType& other) = default;

ZTProductType::~ZTProductType() = default;

size_t ZTProductType::calcHashValue() const
{
    return qHash(myName);
}

QDebug operator<<(QDebug debug, const ZTProductType& theType)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTProductType(" << theType.name() << ')';
    return debug;
}
