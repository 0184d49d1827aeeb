#include "ZTProductCheckerRegistry.h"

#include "ZTMutexLocker.h"
#include "ZTProductChecker.h"

ZTProductCheckerRegistry::ZTProductCheckerRegistry() = default;

// Never run: the singleton lives to the end of the process, and so do its checkers.
ZTProductCheckerRegistry::~ZTProductCheckerRegistry() = default;

void ZTProductCheckerRegistry::registerChecker(ZTProductChecker* theChecker)
{
    if (!theChecker) {
        qWarning() << "ZTProductCheckerRegistry: a null checker cannot be registered";
        return;
    }
    // Asked before taking the lock: the checker may ask the registry in turn.
    const ZTProductCheckerTypeEnum type = theChecker->type().value();

    ZTMutexLocker locker(&myMutex);
    for (const auto& entry : std::as_const(myCheckers)) {
        if (entry.second == theChecker)
            return;
    }
    myCheckers.append(qMakePair(type, theChecker));
    myCache.clear();
    ++myGeneration;
}

int ZTProductCheckerRegistry::checkerCount() const
{
    ZTMutexLocker locker(&myMutex);
    return int(myCheckers.size());
}

void ZTProductCheckerRegistry::clearCaches()
{
    ZTMutexLocker locker(&myMutex);
    myCache.clear();
    ++myGeneration;
}

QList<ZTProductChecker*> ZTProductCheckerRegistry::selectedCheckers(const ZTProductCheckerType& theTypes,
                                                                    quint64* theGeneration) const
{
    QList<ZTProductChecker*> result;
    for (const auto& entry : myCheckers) {
        if (theTypes.matches(entry.first))
            result.append(entry.second);
    }
    *theGeneration = myGeneration;
    return result;
}

bool ZTProductCheckerRegistry::isValid(const ZTProductType& theProductType,
                                       const ZTProductCheckerType& theTypes) const
{
    const qint32 mask = theTypes.value();
    QList<ZTProductChecker*> checkers;
    quint64 generation = 0;
    {
        ZTMutexLocker locker(&myMutex);
        const auto perMask = myCache.constFind(mask);
        if (perMask != myCache.constEnd()) {
            const auto cached = perMask->constFind(theProductType);
            if (cached != perMask->constEnd())
                return cached.value();
        }
        checkers = selectedCheckers(theTypes, &generation);
    }

    // The checkers ask the catalogue, which calls clearCaches() under its own lock; asking them
    // under myMutex could deadlock against that.
    bool valid = true;
    for (const ZTProductChecker* checker : std::as_const(checkers)) {
        if (!checker->isValid(theProductType)) {
            valid = false;
            break;
        }
    }

    ZTMutexLocker locker(&myMutex);
    if (generation == myGeneration)
        myCache[mask].insert(theProductType, valid);
    return valid;
}

bool ZTProductCheckerRegistry::isValidBoxStyle(const ZTProductType& theProductType,
                                               const ZTArticleVariants& theVariants,
                                               const ZTProductCheckerType& theTypes) const
{
    QList<ZTProductChecker*> checkers;
    quint64 generation = 0;
    {
        ZTMutexLocker locker(&myMutex);
        checkers = selectedCheckers(theTypes, &generation);
    }
    for (const ZTProductChecker* checker : std::as_const(checkers)) {
        if (!checker->isValidBoxStyle(theProductType, theVariants))
            return false;
    }
    return true;
}
