#ifndef ZTTHREADSANITIZER_H
#define ZTTHREADSANITIZER_H

// Qt's mutexes and read-write locks hand a waiting thread over inside libQt6Core, which the
// distribution does not build with ThreadSanitizer; under it, two threads that really took a lock
// in turn then look as if they took none. The lockers ZTMutexLocker, ZTReadLocker and
// ZTWriteLocker announce every hand-over through these calls, which are empty in other builds.
#if defined(__SANITIZE_THREAD__)
#define ZT_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ZT_THREAD_SANITIZER 1
#endif
#endif

#ifdef ZT_THREAD_SANITIZER
#include <sanitizer/tsan_interface.h>
#endif

namespace ZTThreadSanitizer {

// Right after theLock was taken: everything done before its last release happened before.
inline void acquired(const void* theLock)
{
#ifdef ZT_THREAD_SANITIZER
    __tsan_acquire(const_cast<void*>(theLock));
#else
    (void)theLock;
#endif
}

// Right before theLock is given back.
inline void releasing(const void* theLock)
{
#ifdef ZT_THREAD_SANITIZER
    __tsan_release(const_cast<void*>(theLock));
#else
    (void)theLock;
#endif
}

} // namespace ZTThreadSanitizer

#endif // ZTTHREADSANITIZER_H
