#ifndef ZTPLATFORMINDEPENDENT_H
#define ZTPLATFORMINDEPENDENT_H

#include "ZTSingleton.h"
#include "ztcore_export.h"

#include <atomic>

// What the platform the program runs on can do, asked in one place instead of behind #ifdefs.
class ZTCORE_EXPORT ZTPlatformIndependent : public ZTSingleton<ZTPlatformIndependent>
{
public:
    // True when this installation cannot hand an order over on a disc, so that ordering through
    // a disc at a point of sale must not be offered (kiosk and store builds, machines without a
    // burner). Set by the program, or by ZTAPM_NO_DISC_ORDERS = "1", "true" or "yes"; false
    // otherwise.
    bool discOrdersUnavailable() const;
    void setDiscOrdersUnavailable(bool theUnavailable);

private:
    friend class ZTSingleton<ZTPlatformIndependent>;
    ZTPlatformIndependent();
    ~ZTPlatformIndependent() override;

    std::atomic<bool> myDiscOrdersUnavailable{false};
};

#endif // ZTPLATFORMINDEPENDENT_H
