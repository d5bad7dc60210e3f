#include "zel/ZELThreadUnsafeReferenceCount.h"

#include <zel/ZELAssert.h>

ZELThreadUnsafeReferenceCount::~ZELThreadUnsafeReferenceCount() = default;

void ZELThreadUnsafeReferenceCount::addReference() {
    ++m_referenceCount;
}

void ZELThreadUnsafeReferenceCount::removeReference() {
    const unsigned count = m_referenceCount;
    ZEL_ASSERT(count > 0);
    m_referenceCount = count - 1;
    if (count == 1) cleanup();
}

unsigned ZELThreadUnsafeReferenceCount::getReferenceCount() const {
    return m_referenceCount;
}

void ZELThreadUnsafeReferenceCount::cleanup() {
    delete this;
}
