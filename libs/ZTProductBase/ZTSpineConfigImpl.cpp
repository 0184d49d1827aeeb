#include "ZTSpineConfigImpl.h"

ZTSpineConfigImpl::ZTSpineConfigImpl() = default;
ZTSpineConfigImpl::ZTSpineConfigImpl(const ZTSpineConfigImpl& other) = default;
ZTSpineConfigImpl::~ZTSpineConfigImpl() = default;

bool ZTSpineConfigImpl::operator==(const ZTSpineConfigImpl& other) const
{
    return myBaseWidth == other.myBaseWidth && myPageThickness == other.myPageThickness &&
           myMinWidth == other.myMinWidth && myTextMargin == other.myTextMargin &&
           myMinFontHeight == other.myMinFontHeight && myMaxFontHeight == other.myMaxFontHeight &&
           myCoverReduceSize == other.myCoverReduceSize;
}
