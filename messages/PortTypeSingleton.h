/// How a port type makes its one instance.
#pragma once

#include <zel/ZELFrame.h>
#include <zel/ZELThreadGuard.h>
#include <zel/ZELThreadLockableResource.h>

#include <atomic>

namespace korva {

/// Holds an instance that is made on first use and never destroyed. Make it static and constinit.
template <class PortType>
class PortTypeSingleton {
public:
    constexpr PortTypeSingleton() = default;

    /// The instance, made by `make` in the first call that succeeds. Any thread may call this.
    template <class Make>
    PortType& get(Make make) {
        PortType* instance = m_instance.load(std::memory_order_acquire);
        if (instance != nullptr) return *instance;
        ZEL_TRY {
            const ZELThreadGuard guard(m_lock);
            instance = m_instance.load(std::memory_order_relaxed);
            if (instance == nullptr) {
                instance = make();
                m_instance.store(instance, std::memory_order_release);
            }
            return *instance;
        }
        ZEL_CATCH(nullptr);
    }

private:
    std::atomic<PortType*> m_instance{nullptr};
    ZELThreadLockableResource m_lock;
};

}  // namespace korva
