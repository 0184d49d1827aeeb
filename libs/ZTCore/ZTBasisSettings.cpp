#include "ZTBasisSettings.h"

#include <QString>

namespace {

bool environmentFlag(const char* theName)
{
    const QString text = qEnvironmentVariable(theName).trimmed().toLower();
    return text == QLatin1String("1") || text == QLatin1String("true") || text == QLatin1String("yes");
}

} // namespace

ZTBasisSettings::ZTBasisSettings() : myMasterMode(environmentFlag("ZTAPM_MASTER_MODE"))
{}

ZTBasisSettings::~ZTBasisSettings() = default;

bool ZTBasisSettings::runsInMasterMode() const
{
    return myMasterMode.load(std::memory_order_relaxed);
}

void ZTBasisSettings::setRunsInMasterMode(bool theOn)
{
    myMasterMode.store(theOn, std::memory_order_relaxed);
}
