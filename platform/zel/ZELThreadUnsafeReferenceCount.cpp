#include <zel/ZELAssert.h>
#include <zel/ZELThreadUnsafeReferenceCount.h>

ZELThreadUnsafeReferenceCount::~ZELThreadUnsafeReferenceCount() = default;

void ZELThreadUnsafeReferenceCount::addReference() {
    m_referenceCount.store(m_referenceCount.load(std::memory_order_relaxed) + 1,
                           std::memory_order_relaxed);
}

void ZELThreadUnsafeReferenceCount::removeReference() {
    const unsigned count = m_referenceCount.load(std::memory_order_relaxed);
    ZEL_ASSERT(count > 0);
    m_referenceCount.store(count - 1, std::memory_order_relaxed);
    if (count == 1) cleanup();
}

unsigned ZELThreadUnsafeReferenceCount::getReferenceCount() const {
    return m_referenceCount.load(std::memory_order_relaxed);
}

void ZELThreadUnsafeReferenceCount::cleanup() {
    delete this;
}
