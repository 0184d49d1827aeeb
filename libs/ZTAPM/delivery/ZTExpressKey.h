#ifndef ZTEXPRESSKEY_H
#define ZTEXPRESSKEY_H

#include "ZTExpressType.h"
#include "ZTShippingGroupId.h"
#include "ztapm_export.h"

// A shipping group together with an express type: the key of an express fee.
class ZTAPM_EXPORT ZTExpressKey
{
public:
    ZTExpressKey(const ZTShippingGroupId& theShippingGroupId, const ZTExpressType& theExpressType);
    ZTExpressKey(const ZTExpressKey& other);
    ZTExpressKey& operator=(const ZTExpressKey& other);
    virtual ~ZTExpressKey();

    bool operator==(const ZTExpressKey& other) const;

    ZTShippingGroupId shippingGroupId() const;
    ZTExpressType expressType() const;
    bool hasShippingGroup(const ZTShippingGroupId& theShippingGroupId) const;
    // The express type's name for the key's group.
    QString humanReadableName() const;

    // Stable across processes and platforms (no seed), so it may be kept outside the process.
    quint64 hashValue() const;

private:
    ZTShippingGroupId myShippingGroupId;
    ZTExpressType myExpressType;
};

ZTAPM_EXPORT size_t qHash(const ZTExpressKey& theKey, size_t seed = 0) noexcept;

#endif // ZTEXPRESSKEY_H
