#include <zel/ZELAssert.h>
#include <zel/ZELReferenceCount.h>

ZELReferenceCount::~ZELReferenceCount() = default;

void ZELReferenceCount::addReference() {
    m_referenceCount.fetch_add(1, std::memory_order_relaxed);
}

void ZELReferenceCount::removeReference() {
    // Acquire and release, so that what any holder did with the object comes before its end.
    const unsigned count = m_referenceCount.fetch_sub(1, std::memory_order_acq_rel);
    if (count == 1) {
        cleanup();
    } else if (count == 0) {
        m_referenceCount.fetch_add(1, std::memory_order_relaxed);
        ZEL_ASSERT(count > 0);
    }
}
