#include "ZTPageSizeSpec.h"

ZTPageSizeSpec::ZTPageSizeSpec() = default;

ZTPageSizeSpec::ZTPageSizeSpec(const QSize& theSize, const ZTMargins& theBleed)
    : mySize(theSize), myBleed(theBleed)
{}

ZTPageSizeSpec::ZTPageSizeSpec(const ZTPageSizeSpec& other) = default;
ZTPageSizeSpec& ZTPageSizeSpec::operator=(const ZTPageSizeSpec& other) = default;
ZTPageSizeSpec::~ZTPageSizeSpec() = default;

bool ZTPageSizeSpec::operator==(const ZTPageSizeSpec& other) const
{
    return mySize == other.mySize && myBleed == other.myBleed;
}
