#include "ZTInitializer.h"

#include "ZTInitializerAbstract.h"
#include "ZTMutexLocker.h"

#include <QDebug>

ZTInitializer::ZTInitializer() = default;

ZTInitializer::~ZTInitializer() = default;

void ZTInitializer::registerInitializer(ZTInitializerAbstract* theInitializer)
{
    ZTMutexLocker locker(&myMutex);
    if (!theInitializer || myInitializers.contains(theInitializer)) {
        qWarning() << "initializer not registered: null or registered before";
        return;
    }
    myInitializers.append(theInitializer);
}

void ZTInitializer::unregisterInitializer(ZTInitializerAbstract* theInitializer)
{
    ZTMutexLocker locker(&myMutex);
    myInitializers.removeAll(theInitializer);
    mySetUp.removeAll(theInitializer);
}

QList<ZTInitializerAbstract*> ZTInitializer::initializers() const
{
    ZTMutexLocker locker(&myMutex);
    return myInitializers;
}

void ZTInitializer::addCommandLineOptionHandlers(ZTCommandLineParserAbstract* theParser)
{
    for (ZTInitializerAbstract* initializer : initializers())
        initializer->addCommandLineOptionHandlers(theParser);
}

void ZTInitializer::setupAll(ZTInitializerOption theOption)
{
    QList<ZTInitializerAbstract*> pending;
    {
        ZTMutexLocker locker(&myMutex);
        if (myIsSetUp)
            return;
        myIsSetUp = true;
        pending = myInitializers;
    }
    for (ZTInitializerAbstract* initializer : pending) {
        initializer->setup(theOption);
        ZTMutexLocker locker(&myMutex);
        // It may have been unregistered meanwhile; then nobody tears it down.
        if (myInitializers.contains(initializer))
            mySetUp.append(initializer);
    }
}

void ZTInitializer::teardownAll()
{
    for (;;) {
        ZTInitializerAbstract* initializer = nullptr;
        {
            ZTMutexLocker locker(&myMutex);
            if (mySetUp.isEmpty()) {
                myIsSetUp = false;
                return;
            }
            initializer = mySetUp.takeLast();
        }
        initializer->teardown();
    }
}

bool ZTInitializer::isSetUp() const
{
    ZTMutexLocker locker(&myMutex);
    return myIsSetUp;
}
