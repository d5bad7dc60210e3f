/// A reference count whose references may be held by several threads.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELThreadUnsafeReferenceCount.h>

/// As `ZELThreadUnsafeReferenceCount`, with counting that needs no lock. The object that is counted
/// isn't thereby safe to use from several threads.
class ZEL_EXPORT ZELReferenceCount : public ZELThreadUnsafeReferenceCount {
public:
    ZELReferenceCount() noexcept = default;
    ZELReferenceCount(const ZELReferenceCount&) noexcept = default;
    ZELReferenceCount& operator=(const ZELReferenceCount&) noexcept = default;
    ~ZELReferenceCount() override;

    void addReference() override;
    void removeReference() override;
    unsigned getReferenceCount() const override;
};
