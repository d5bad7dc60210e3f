#include "platform/zelidom/DocumentMemory.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <cstddef>
#include <limits>
#include <new>

namespace zelidom {

struct alignas(std::max_align_t) DocumentMemory::Link : Neighbours {};

DocumentMemory::DocumentMemory() noexcept : m_ring{&m_ring, &m_ring} {}

DocumentMemory::~DocumentMemory() {
    for (Neighbours* link = m_ring.next; link != &m_ring;) {
        Neighbours* const next = link->next;
        ::operator delete(static_cast<Link*>(link));
        link = next;
    }
}

void* DocumentMemory::allocate(XMLSize_t size) {
    if (++m_blocksSinceEvent > m_blocksPerEvent) throw TooManyBlocks();
    if (size > std::numeric_limits<std::size_t>::max() - sizeof(Link))
        throw xercesc::OutOfMemoryException();
    void* const memory = ::operator new(sizeof(Link) + size, std::nothrow);
    if (memory == nullptr) throw xercesc::OutOfMemoryException();
    Link* const link = new (memory) Link{{m_ring.next, &m_ring}};
    m_ring.next->previous = link;
    m_ring.next = link;
    return link + 1;
}

void DocumentMemory::deallocate(void* block) {
    if (block == nullptr) return;
    Link* const link = static_cast<Link*>(block) - 1;
    link->next->previous = link->previous;
    link->previous->next = link->next;
    ::operator delete(link);
}

// An exception may outlive what it was thrown from, and is then freed where it was made.
xercesc::MemoryManager* DocumentMemory::getExceptionMemoryManager() {
    return xercesc::XMLPlatformUtils::fgMemoryManager;
}

}  // namespace zelidom
