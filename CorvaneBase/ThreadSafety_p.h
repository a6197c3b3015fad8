#pragma once

// Clang's Thread Safety Analysis (-Wthread-safety) proves at compile time that what a lock guards is only touched while
// that lock is held. The toolkit's own locks carry no annotation, so these wrap them. Other compilers see plain locks.
#if defined(__clang__)
#define CORVANE_THREAD_ANNOTATION(annotation) __attribute__((annotation))
#else
#define CORVANE_THREAD_ANNOTATION(annotation)
#endif

/** A class that is a lock, and one that holds a lock while it lives. */
#define CORVANE_CAPABILITY(name) CORVANE_THREAD_ANNOTATION(capability(name))
#define CORVANE_SCOPED_CAPABILITY CORVANE_THREAD_ANNOTATION(scoped_lockable)
/** Data that is touched only while the lock is held. */
#define CORVANE_GUARDED_BY(lock) CORVANE_THREAD_ANNOTATION(guarded_by(lock))
/** A function that is called only while the lock is held. */
#define CORVANE_REQUIRES(lock) CORVANE_THREAD_ANNOTATION(requires_capability(lock))
/** A function that takes the lock, and one that gives it back; without a name, the object itself. */
#define CORVANE_ACQUIRE(...) CORVANE_THREAD_ANNOTATION(acquire_capability(__VA_ARGS__))
#define CORVANE_RELEASE(...) CORVANE_THREAD_ANNOTATION(release_capability(__VA_ARGS__))

/** QMutex or QRecursiveMutex, as a lock that the analysis knows. */
template <typename ToolkitMutex>
class CORVANE_CAPABILITY("mutex") CheckedMutex
{
public:
    void Lock() CORVANE_ACQUIRE() { m_mutex.lock(); }
    void Unlock() CORVANE_RELEASE() { m_mutex.unlock(); }

private:
    ToolkitMutex m_mutex;
};

/** Holds the lock from here to the end of its block. */
template <typename ToolkitMutex>
class CORVANE_SCOPED_CAPABILITY CheckedLocker
{
public:
    explicit CheckedLocker(CheckedMutex<ToolkitMutex>& mutex) CORVANE_ACQUIRE(mutex)
        : m_mutex(mutex)
    {
        m_mutex.Lock();
    }

    ~CheckedLocker() CORVANE_RELEASE() { m_mutex.Unlock(); }

    CheckedLocker(const CheckedLocker&) = delete;
    CheckedLocker& operator=(const CheckedLocker&) = delete;

private:
    CheckedMutex<ToolkitMutex>& m_mutex;
};
