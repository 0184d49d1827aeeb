#ifndef ZTINITIALIZERABSTRACT_H
#define ZTINITIALIZERABSTRACT_H

#include "ZTInitializerOption.h"
#include "ztcore_export.h"

class ZTCommandLineParserAbstract;

// The start-up and shut-down hook of one library. A library keeps one static object of a
// derived class whose constructor registers it with ZTInitializer; the program then runs all of
// them through ZTInitializer.
class ZTCORE_EXPORT ZTInitializerAbstract
{
public:
    ZTInitializerAbstract();
    virtual ~ZTInitializerAbstract();

    // Adds the library's command-line options; most libraries have none.
    virtual void addCommandLineOptionHandlers(ZTCommandLineParserAbstract* theParser);
    virtual void setup(ZTInitializerOption theOption) = 0;
    virtual void teardown() = 0;

private:
    Q_DISABLE_COPY(ZTInitializerAbstract)
};

#endif // ZTINITIALIZERABSTRACT_H
