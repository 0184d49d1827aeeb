#ifndef ZTAPMINITIALIZER_H
#define ZTAPMINITIALIZER_H

#include "ZTInitializerAbstract.h"
#include "ztapm_export.h"

// Hooks the engine into the host's start-up: one instance registers itself with the host's
// initializer when the library is loaded, and setup() brings the engine's singletons up.
class ZTAPM_EXPORT ZTAPMInitializer : public ZTInitializerAbstract
{
public:
    ZTAPMInitializer();
    ~ZTAPMInitializer() override;

    void setup(ZTInitializerOption theOption) override;
    void teardown() override;

    static ZTAPMInitializer me;
};

#endif // ZTAPMINITIALIZER_H
