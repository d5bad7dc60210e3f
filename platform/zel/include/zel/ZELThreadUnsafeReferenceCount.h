/// A reference count for objects that stay within one thread.
#pragma once

#include <zel/ZELExport.h>

/// Counts from 0: the maker of an object holds no reference. The last `removeReference` ends it.
/// A copy counts its own references, from 0.
class ZEL_EXPORT ZELThreadUnsafeReferenceCount {
public:
    ZELThreadUnsafeReferenceCount() noexcept = default;
    ZELThreadUnsafeReferenceCount(const ZELThreadUnsafeReferenceCount&) noexcept {}
    ZELThreadUnsafeReferenceCount& operator=(const ZELThreadUnsafeReferenceCount&) noexcept {
        return *this;
    }
    virtual ~ZELThreadUnsafeReferenceCount();

    virtual void addReference();

    /// Calls `cleanup` when no reference is left.
    /// @throws ZELAssertError there was none: `ZEL_ASSERT(count > 0);`
    virtual void removeReference();

    virtual unsigned getReferenceCount() const;

    /// Ends the object, here with `delete`.
    virtual void cleanup();

protected:
    /// `ZELReferenceCount` reaches it by `std::atomic_ref`: <atomic> would be most of what this
    /// header costs.
    unsigned m_referenceCount = 0;
};
