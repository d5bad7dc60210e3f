/// Something that one thread at a time may hold.
#pragma once

#include <mutex>

/// A lock for a `ZELThreadGuard`. It is constant-initialised, so a static one is ready before any
/// code runs. A thread must not take it twice.
class ZELThreadLockableResource {
public:
    constexpr ZELThreadLockableResource() noexcept = default;
    ZELThreadLockableResource(const ZELThreadLockableResource&) = delete;
    ZELThreadLockableResource& operator=(const ZELThreadLockableResource&) = delete;

    void lock() { m_mutex.lock(); }
    bool tryLock() { return m_mutex.try_lock(); }
    void unlock() { m_mutex.unlock(); }

private:
    std::mutex m_mutex;
};
