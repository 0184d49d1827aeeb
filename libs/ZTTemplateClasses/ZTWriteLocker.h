#ifndef ZTWRITELOCKER_H
#define ZTWRITELOCKER_H

#include "ZTThreadSanitizer.h"

#include <QReadWriteLock>

// Holds a QReadWriteLock for writing for a scope, as QWriteLocker does, and shows the hand-over
// to ThreadSanitizer (see ZTThreadSanitizer.h).
class ZTWriteLocker
{
public:
    explicit ZTWriteLocker(QReadWriteLock* theLock) : myLock(theLock)
    {
        myLock->lockForWrite();
        ZTThreadSanitizer::acquired(myLock);
    }
    ~ZTWriteLocker()
    {
        ZTThreadSanitizer::releasing(myLock);
        myLock->unlock();
    }
    Q_DISABLE_COPY_MOVE(ZTWriteLocker)

private:
    QReadWriteLock* const myLock;
};

#endif // ZTWRITELOCKER_H
