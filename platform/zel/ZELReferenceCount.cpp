#include "zel/ZELReferenceCount.h"

#include <zel/ZELAssert.h>

#include <atomic>

ZELReferenceCount::~ZELReferenceCount() = default;

void ZELReferenceCount::addReference() {
    std::atomic_ref(m_referenceCount).fetch_add(1, std::memory_order_relaxed);
}

void ZELReferenceCount::removeReference() {
    // Acquire and release, so that what any holder did with the object comes before its end.
    const std::atomic_ref references(m_referenceCount);
    const unsigned count = references.fetch_sub(1, std::memory_order_acq_rel);
    if (count == 1) {
        cleanup();
    } else if (count == 0) {
        references.fetch_add(1, std::memory_order_relaxed);
        ZEL_ASSERT(count > 0);
    }
}

unsigned ZELReferenceCount::getReferenceCount() const {
    // Only read; but atomic_ref takes no const object.
    return std::atomic_ref(const_cast<unsigned&>(m_referenceCount)).load(std::memory_order_relaxed);
}
