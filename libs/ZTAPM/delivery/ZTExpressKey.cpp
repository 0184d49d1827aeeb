#include "ZTExpressKey.h"

namespace {

// Qt's integer hash with seed 0, spelled out so that the value does not depend on the Qt build.
quint64 mix(quint64 x)
{
    constexpr quint64 factor = Q_UINT64_C(0xd6e8feb86659fd93);
    x ^= x >> 32;
    x *= factor;
    x ^= x >> 32;
    x *= factor;
    x ^= x >> 32;
    return x;
}

} // namespace

ZTExpressKey::ZTExpressKey(const ZTShippingGroupId& theShippingGroupId, const ZTExpressType& theExpressType)
    : myShippingGroupId(theShippingGroupId), myExpressType(theExpressType)
{}

ZTExpressKey::ZTExpressKey(const ZTExpressKey& other) = default;
ZTExpressKey& ZTExpressKey::operator=(const ZTExpressKey& other) = default;
ZTExpressKey::~ZTExpressKey() = default;

bool ZTExpressKey::operator==(const ZTExpressKey& other) const
{
    return myShippingGroupId == other.myShippingGroupId &&
           myExpressType.value() == other.myExpressType.value();
}

ZTShippingGroupId ZTExpressKey::shippingGroupId() const
{
    return myShippingGroupId;
}

ZTExpressType ZTExpressKey::expressType() const
{
    return myExpressType;
}

bool ZTExpressKey::hasShippingGroup(const ZTShippingGroupId& theShippingGroupId) const
{
    return myShippingGroupId == theShippingGroupId;
}

quint64 ZTExpressKey::hashValue() const
{
    const quint64 group = quint64(qint64(myShippingGroupId.id()));
    const quint64 express = quint64(quint32(myExpressType.value()));
    return mix(group) ^ (mix(express) << 10);
}

size_t qHash(const ZTExpressKey& theKey, size_t seed) noexcept
{
    return size_t(theKey.hashValue()) ^ seed;
}

QString ZTExpressKey::humanReadableName() const
{
    return myExpressType.humanReadableName(myShippingGroupId);
}
