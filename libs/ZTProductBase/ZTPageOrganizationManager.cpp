#include "ZTPageOrganizationManager.h"

#include "ZTMutexLocker.h"
#include "ZTPageOrganizationCalculator.h"

ZTPageOrganizationManager::ZTPageOrganizationManager() = default;
ZTPageOrganizationManager::~ZTPageOrganizationManager() = default;

void ZTPageOrganizationManager::setCalculator(ZTPageOrganizationCalculator* theCalculator)
{
    std::shared_ptr<ZTPageOrganizationCalculator> previous;
    {
        ZTMutexLocker locker(&myMutex);
        if (myCalculator.get() == theCalculator)
            return;
        previous = std::move(myCalculator);
        myCalculator.reset(theCalculator);
        myCache.clear();
        ++myGeneration;
    }
    // previous dies here, outside the lock, unless a running query still holds it.
}

bool ZTPageOrganizationManager::hasCalculator() const
{
    ZTMutexLocker locker(&myMutex);
    return myCalculator != nullptr;
}

void ZTPageOrganizationManager::clearCache()
{
    ZTMutexLocker locker(&myMutex);
    myCache.clear();
    ++myGeneration;
}

ZTPageCountOrganization
ZTPageOrganizationManager::pageCountOrganization(const ZTProductType& theProductType) const
{
    std::shared_ptr<ZTPageOrganizationCalculator> calculator;
    quint64 generation = 0;
    {
        ZTMutexLocker locker(&myMutex);
        const auto cached = myCache.constFind(theProductType);
        if (cached != myCache.constEnd())
            return cached.value();
        calculator = myCalculator;
        generation = myGeneration;
    }
    if (!calculator)
        return ZTPageCountOrganization();

    // The calculator asks the catalogue, which has locks of its own; calling it under myMutex
    // would give a lock order that the catalogue's own clearCache() call can deadlock against.
    const ZTPageCountOrganization result = calculator->createPageOrganization(theProductType);

    ZTMutexLocker locker(&myMutex);
    if (generation == myGeneration)
        myCache.insert(theProductType, result);
    return result;
}
