#ifndef ZTSINGLETON_H
#define ZTSINGLETON_H

#include "ZTTemplateExport.h"

#include <QReadWriteLock>

#include <atomic>

// A process-wide object, made at the first call of instance() and never deleted. A second thread
// that asks while the object is being made waits on the write lock until it is complete, so
// nobody sees a half-built instance. Code that runs inside T's constructor must not ask for
// instance() of the same T: the lock is not recursive.
template <typename T>
class ZT_TEMPLATE_EXPORT ZTSingleton
{
public:
    static T* instance()
    {
        static QReadWriteLock lock;
        {
            QReadLocker reader(&lock);
            if (T* existing = myInstance.load(std::memory_order_acquire))
                return existing;
        }
        QWriteLocker writer(&lock);
        T* existing = myInstance.load(std::memory_order_relaxed);
        if (!existing) {
            existing = new T;
            myInstance.store(existing, std::memory_order_release);
        }
        return existing;
    }

    // Whether the instance exists already; never makes it.
    static bool exists() { return myInstance.load(std::memory_order_acquire) != nullptr; }

    virtual void setupInstance() {}

protected:
    ZTSingleton() = default;
    virtual ~ZTSingleton() = default;

private:
    static inline std::atomic<T*> myInstance{nullptr};
};

#endif // ZTSINGLETON_H
