#ifndef ZTREADLOCKER_H
#define ZTREADLOCKER_H

#include "ZTThreadSanitizer.h"

#include <QReadWriteLock>

// Holds a QReadWriteLock for reading for a scope, as QReadLocker does, and shows the hand-over
// to ThreadSanitizer (see ZTThreadSanitizer.h).
class ZTReadLocker
{
public:
    explicit ZTReadLocker(QReadWriteLock* theLock) : myLock(theLock)
    {
        myLock->lockForRead();
        ZTThreadSanitizer::acquired(myLock);
    }
    ~ZTReadLocker()
    {
        ZTThreadSanitizer::releasing(myLock);
        myLock->unlock();
    }
    Q_DISABLE_COPY_MOVE(ZTReadLocker)

private:
    QReadWriteLock* const myLock;
};

#endif // ZTREADLOCKER_H
