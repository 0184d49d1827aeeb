#ifndef ZTINITIALIZER_H
#define ZTINITIALIZER_H

#include "ZTInitializerOption.h"
#include "ZTSingleton.h"
#include "ztcore_export.h"

#include <QList>
#include <QMutex>

class ZTCommandLineParserAbstract;
class ZTInitializerAbstract;

// Runs the start-up and shut-down hooks of all libraries. Libraries register while they are
// loaded, usually from a static object; the program calls setupAll() once it has parsed its
// command line and teardownAll() before it ends. Setup runs in registration order, which is the
// order in which the libraries were loaded, so a library is set up after those it depends on;
// teardown runs in the reverse order.
class ZTCORE_EXPORT ZTInitializer : public ZTSingleton<ZTInitializer>
{
public:
    // A null or already registered initialiser is ignored with a warning. Registering after
    // setupAll() does not set the newcomer up.
    void registerInitializer(ZTInitializerAbstract* theInitializer);
    // For initialisers that die before the program ends.
    void unregisterInitializer(ZTInitializerAbstract* theInitializer);
    QList<ZTInitializerAbstract*> initializers() const;

    void addCommandLineOptionHandlers(ZTCommandLineParserAbstract* theParser);
    // Runs setup() of every registered initialiser; a second call does nothing until
    // teardownAll() has run.
    void setupAll(ZTInitializerOption theOption = ZTInitializerOption());
    // Runs teardown() of those that setupAll() set up, last first.
    void teardownAll();
    bool isSetUp() const;

private:
    friend class ZTSingleton<ZTInitializer>;
    ZTInitializer();
    ~ZTInitializer() override;

    // Guards the lists only; the hooks run unlocked, so that they may register others.
    mutable QMutex myMutex;
    QList<ZTInitializerAbstract*> myInitializers;
    QList<ZTInitializerAbstract*> mySetUp;
    bool myIsSetUp = false;
};

#endif // ZTINITIALIZER_H
