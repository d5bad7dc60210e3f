/// Holds a lock from its construction to its end.
#pragma once

#include <zel/ZELThreadLockableResource.h>

class [[nodiscard]] ZELThreadGuard {
public:
    explicit ZELThreadGuard(ZELThreadLockableResource& resource) : m_resource(resource) {
        m_resource.lock();
    }
    ZELThreadGuard(const ZELThreadGuard&) = delete;
    ZELThreadGuard& operator=(const ZELThreadGuard&) = delete;
    ~ZELThreadGuard() { m_resource.unlock(); }

private:
    ZELThreadLockableResource& m_resource;
};
