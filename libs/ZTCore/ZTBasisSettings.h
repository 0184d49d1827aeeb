#ifndef ZTBASISSETTINGS_H
#define ZTBASISSETTINGS_H

#include "ZTSingleton.h"
#include "ztcore_export.h"

#include <atomic>

// Settings of the program's basic behaviour, fixed for one run.
//
// Master mode is the in-house mode of catalogue editors: product names carry their type, so that
// a product can be told from its look-alikes. It is on when the program sets it (from its command
// line) or when ZTAPM_MASTER_MODE is "1", "true" or "yes".
class ZTCORE_EXPORT ZTBasisSettings : public ZTSingleton<ZTBasisSettings>
{
public:
    bool runsInMasterMode() const;
    void setRunsInMasterMode(bool theOn);

private:
    friend class ZTSingleton<ZTBasisSettings>;
    ZTBasisSettings();
    ~ZTBasisSettings() override;

    std::atomic<bool> myMasterMode{false};
};

#endif // ZTBASISSETTINGS_H
