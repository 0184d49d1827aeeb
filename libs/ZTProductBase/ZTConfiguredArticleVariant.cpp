#include "ZTConfiguredArticleVariant.h"

ZTConfiguredArticleVariant::ZTConfiguredArticleVariant() = default;

ZTConfiguredArticleVariant::ZTConfiguredArticleVariant(int theId, const QString& theName)
    : myId(theId), myName(theName)
{}

ZTConfiguredArticleVariant::ZTConfiguredArticleVariant(const ZTConfiguredArticleVariant& other) = default;
ZTConfiguredArticleVariant&
ZTConfiguredArticleVariant::operator=(const ZTConfiguredArticleVariant& other) = default;
ZTConfiguredArticleVariant::~ZTConfiguredArticleVariant() = default;

bool ZTConfiguredArticleVariant::operator==(const ZTConfiguredArticleVariant& other) const
{
    return myId == other.myId && myName == other.myName;
}

QDebug operator<<(QDebug debug, const ZTConfiguredArticleVariant& theVariant)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTConfiguredArticleVariant(" << theVariant.id() << ", " << theVariant.name() << ')';
    return debug;
}
