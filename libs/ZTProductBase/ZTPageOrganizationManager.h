#ifndef ZTPAGEORGANIZATIONMANAGER_H
#define ZTPAGEORGANIZATIONMANAGER_H

#include "ZTPageCountOrganization.h"
#include "ZTProductType.h"
#include "ZTSingleton.h"
#include "ztproductbase_export.h"

#include <QHash>
#include <QMutex>

#include <memory>

class ZTPageOrganizationCalculator;

// The page organisation of every product type, as the calculator that the catalogue engine
// installs works it out, remembered per type until the catalogue changes (clearCache()).
// Safe to use from any thread.
class ZTPRODUCTBASE_EXPORT ZTPageOrganizationManager : public ZTSingleton<ZTPageOrganizationManager>
{
    friend class ZTSingleton<ZTPageOrganizationManager>;

public:
    // Installs theCalculator, which the manager owns from now on; null removes the present one.
    // The calculator given before is deleted as soon as no query uses it any more. The cache is
    // emptied, since its answers came from the old calculator.
    void setCalculator(ZTPageOrganizationCalculator* theCalculator);
    bool hasCalculator() const;

    // Forgets every remembered answer; to be called whenever the catalogue changes.
    void clearCache();

    // The page organisation of the product type. Without a calculator, a default-made one (a
    // single page), which is not remembered.
    ZTPageCountOrganization pageCountOrganization(const ZTProductType& theProductType) const;

private:
    ZTPageOrganizationManager();
    ~ZTPageOrganizationManager() override;
    Q_DISABLE_COPY(ZTPageOrganizationManager)

    mutable QMutex myMutex;
    std::shared_ptr<ZTPageOrganizationCalculator> myCalculator;
    mutable QHash<ZTProductType, ZTPageCountOrganization> myCache;
    // Counts the changes of calculator and cache, so that an answer worked out meanwhile by an
    // older state is not stored.
    quint64 myGeneration = 0;
};

#endif // ZTPAGEORGANIZATIONMANAGER_H
