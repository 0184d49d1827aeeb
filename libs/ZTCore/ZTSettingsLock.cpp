#include "ZTSettingsLock.h"

#include "ZTThreadSanitizer.h"

#include <QDebug>
#include <QDir>
#include <QLockFile>
#include <QRecursiveMutex>
#include <QStandardPaths>

#include <memory>

namespace {

// Both live as long as the process; the lock file is touched only while the mutex is held.
struct ProcessLock
{
    QRecursiveMutex mutex;
    int depth = 0;
    std::unique_ptr<QLockFile> lockFile;
    bool holdsFile = false;
};

ProcessLock& processLock()
{
    static ProcessLock* theLock = new ProcessLock;
    return *theLock;
}

} // namespace

ZTSettingsLock::ZTSettingsLock()
{
    ProcessLock& lock = processLock();
    lock.mutex.lock();
    ZTThreadSanitizer::acquired(&lock.mutex);
    if (++lock.depth > 1)
        return;
    const QString directory = settingsDirectory();
    QDir().mkpath(directory);
    if (!lock.lockFile)
        lock.lockFile = std::make_unique<QLockFile>(directory + QStringLiteral("/settings.lock"));
    lock.holdsFile = lock.lockFile->tryLock(5000);
    if (!lock.holdsFile)
        qWarning() << "settings lock file" << directory + QStringLiteral("/settings.lock")
                   << "not acquired; another program may be writing the settings";
}

ZTSettingsLock::~ZTSettingsLock()
{
    ProcessLock& lock = processLock();
    if (--lock.depth == 0 && lock.holdsFile) {
        lock.lockFile->unlock();
        lock.holdsFile = false;
    }
    ZTThreadSanitizer::releasing(&lock.mutex);
    lock.mutex.unlock();
}

bool ZTSettingsLock::holdsLockFile() const
{
    return processLock().holdsFile;
}

QString ZTSettingsLock::settingsDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/ztapm");
}
