#include "ZTPlatformIndependent.h"

#include <QString>

ZTPlatformIndependent::ZTPlatformIndependent()
{
    const QString text = qEnvironmentVariable("ZTAPM_NO_DISC_ORDERS").trimmed().toLower();
    myDiscOrdersUnavailable =
        text == QLatin1String("1") || text == QLatin1String("true") || text == QLatin1String("yes");
}

ZTPlatformIndependent::~ZTPlatformIndependent() = default;

bool ZTPlatformIndependent::discOrdersUnavailable() const
{
    return myDiscOrdersUnavailable.load(std::memory_order_relaxed);
}

void ZTPlatformIndependent::setDiscOrdersUnavailable(bool theUnavailable)
{
    myDiscOrdersUnavailable.store(theUnavailable, std::memory_order_relaxed);
}
