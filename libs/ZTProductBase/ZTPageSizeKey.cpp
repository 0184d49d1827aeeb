#include "ZTPageSizeKey.h"

ZTPageSizeKey::ZTPageSizeKey() = default;

ZTPageSizeKey::ZTPageSizeKey(const ZTPageType& thePageType, int thePageCount, Alignment theAlignment)
    : myPageType(thePageType), myPageCount(thePageCount), myAlignment(theAlignment)
{}

ZTPageSizeKey::ZTPageSizeKey(const ZTPageSizeKey& other) = default;
ZTPageSizeKey& ZTPageSizeKey::operator=(const ZTPageSizeKey& other) = default;
ZTPageSizeKey::~ZTPageSizeKey() = default;

bool ZTPageSizeKey::operator==(const ZTPageSizeKey& other) const
{
    return myPageType == other.myPageType && myPageCount == other.myPageCount &&
           myAlignment == other.myAlignment;
}

QDebug operator<<(QDebug debug, const ZTPageSizeKey& theKey)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTPageSizeKey(" << theKey.pageType() << ", " << theKey.pageCount()
                    << " pages, alignment " << int(theKey.alignment()) << ')';
    return debug;
}
