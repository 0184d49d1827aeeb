#ifndef ZTMUTEXLOCKER_H
#define ZTMUTEXLOCKER_H

#include "ZTThreadSanitizer.h"

#include <QtGlobal>

// Holds a QMutex or QRecursiveMutex for a scope, as QMutexLocker does, and shows the hand-over
// to ThreadSanitizer (see ZTThreadSanitizer.h).
template <typename Mutex>
class ZTMutexLocker
{
public:
    explicit ZTMutexLocker(Mutex* theMutex) : myMutex(theMutex)
    {
        myMutex->lock();
        ZTThreadSanitizer::acquired(myMutex);
    }
    ~ZTMutexLocker()
    {
        ZTThreadSanitizer::releasing(myMutex);
        myMutex->unlock();
    }
    Q_DISABLE_COPY_MOVE(ZTMutexLocker)

private:
    Mutex* const myMutex;
};

#endif // ZTMUTEXLOCKER_H
