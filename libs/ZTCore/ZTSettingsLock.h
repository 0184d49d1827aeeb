#ifndef ZTSETTINGSLOCK_H
#define ZTSETTINGSLOCK_H

#include "ztcore_export.h"

#include <QtGlobal>

// Held around every read-modify-write of the settings. Within the process it is one recursive
// mutex, so a holder may take it again. The outermost holder also takes a lock file next to the
// settings files, which keeps a second program of this family from writing in between; if that
// lock cannot be had within a few seconds (a hung process), the guard warns and goes on with the
// process-wide lock only.
class ZTCORE_EXPORT ZTSettingsLock
{
public:
    ZTSettingsLock();
    ~ZTSettingsLock();

    // Whether the lock file is held as well.
    bool holdsLockFile() const;
    // The directory of the settings files and the lock file.
    static QString settingsDirectory();

private:
    Q_DISABLE_COPY(ZTSettingsLock)
};

#endif // ZTSETTINGSLOCK_H
