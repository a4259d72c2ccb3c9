#pragma once

#include <QMutex>

#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#endif

namespace kite {

/// Holds a mutex while it lives. The mutex is one that is held, as a rule, for no longer than a look at one file takes,
/// so trying for a moment is quicker than going to sleep. Whoever has to wait for more than that, sleeps.
class Hold {
public:
    explicit Hold(QMutex* mutex) : m_mutex(mutex) {
        if (!takeAwake())
            mutex->lock();
        tellSanitizer(true);
    }
    ~Hold() {
        tellSanitizer(false);
        m_mutex->unlock();
    }

private:
    Q_DISABLE_COPY(Hold)

    bool takeAwake() {
        const int attempts = 200;
        for (int i = 0; i < attempts; ++i) {
            if (m_mutex->tryLock())
                return true;
        }
        return false;
    }

    // The mutex is taken and given inside Qt, which is not built for the thread sanitizer.
    void tellSanitizer([[maybe_unused]] bool isTaken) {
#ifdef __SANITIZE_THREAD__
        if (isTaken)
            __tsan_acquire(m_mutex);
        else
            __tsan_release(m_mutex);
#endif
    }

    QMutex* m_mutex;
};

} // namespace kite
