#ifndef ZTINITIALIZEROPTION_H
#define ZTINITIALIZEROPTION_H

#include "ztcore_export.h"

#include <QFlags>

// How the program starts, handed to every initialiser's setup(). Initialisers that do not care
// ignore it.
class ZTCORE_EXPORT ZTInitializerOption
{
public:
    enum Flag {
        Normal = 0,
        // No user interface: a command-line tool or a service.
        Headless = 0x1,
        // No network: work with the key account on disk only.
        Offline = 0x2,
        // Run by a test: no dialogs, no writing outside the test's directories.
        Testing = 0x4,
    };
    Q_DECLARE_FLAGS(Flags, Flag)

    ZTInitializerOption(Flags theFlags = Normal);
    ZTInitializerOption(Flag theFlag);

    Flags flags() const { return myFlags; }
    bool testFlag(Flag theFlag) const { return myFlags.testFlag(theFlag); }
    bool operator==(const ZTInitializerOption& other) const { return myFlags == other.myFlags; }

private:
    Flags myFlags;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZTInitializerOption::Flags)

#endif // ZTINITIALIZEROPTION_H
