#include "soap/read/ParserMemory.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <bit>
#include <new>

namespace korva {

struct alignas(std::max_align_t) ParserMemory::Header {
    std::size_t sizeClass;
    Header* next;  ///< while the block is free
};

struct alignas(std::max_align_t) ParserMemory::Slab {
    Slab* next;
    Slab* previous;
    std::size_t size;
};

namespace {

constexpr std::size_t smallestSize = 32;
constexpr std::size_t slabSize = 65536;
/// More than the start tags that are allowed ever need.
constexpr std::size_t slabsOfAStartTag = 160;
/// A parser for an ordinary document has some 300 KB.
constexpr std::size_t ordinarySize = std::size_t{2} << 20U;

}  // namespace

// Classes 2k and 2k + 1 have 32 * 2^k and 48 * 2^k bytes.

std::size_t ParserMemory::sizeOfClass(std::size_t sizeClass) {
    return (sizeClass % 2 == 0 ? smallestSize : smallestSize / 2 * 3) << sizeClass / 2;
}

std::size_t ParserMemory::classOf(std::size_t size) {
    if (size <= smallestSize) return 0;
    const auto doublings = static_cast<std::size_t>(std::bit_width((size - 1) / smallestSize)) - 1;
    const std::size_t sizeClass = 2 * doublings + 1;
    if (sizeClass >= classCount) return noClass;
    if (size <= sizeOfClass(sizeClass)) return sizeClass;
    return sizeClass + 1 < classCount ? sizeClass + 1 : noClass;
}

ParserMemory::Slab* ParserMemory::addSlab(std::size_t size) {
    void* const memory = ::operator new(sizeof(Slab) + size, std::nothrow);
    if (memory == nullptr) throw xercesc::OutOfMemoryException();
    auto* const slab = new (memory) Slab{m_slabs, nullptr, size};
    if (m_slabs != nullptr) m_slabs->previous = slab;
    m_slabs = slab;
    m_slabsSize += size;
    return slab;
}

void ParserMemory::removeSlab(Slab* slab) noexcept {
    if (slab->next != nullptr) slab->next->previous = slab->previous;
    (slab->previous != nullptr ? slab->previous->next : m_slabs) = slab->next;
    m_slabsSize -= slab->size;
    ::operator delete(slab);
}

void* ParserMemory::cut(std::size_t sizeClass) {
    const std::size_t size = sizeof(Header) + sizeOfClass(sizeClass);
    if (size > slabSize / 4) return new (addSlab(size) + 1) Header{sizeClass, nullptr};
    if (size > m_freeSize) {
        if (++m_slabsSinceEvent > slabsOfAStartTag) throw TooManyBlocks();
        m_free = reinterpret_cast<char*>(addSlab(slabSize) + 1);
        m_freeSize = slabSize;
    }
    Header* const header = new (m_free) Header{sizeClass, nullptr};
    m_free += size;
    m_freeSize -= size;
    return header;
}

void ParserMemory::tellOf(std::size_t size) {
    // The parser keeps the address of its memory in front of each object.
    constexpr std::size_t front = alignof(std::max_align_t);
    if (m_told && size - m_watchedSize <= front) m_told(++m_watchedCount, ++m_watchedLive);
}

void* ParserMemory::allocate(XMLSize_t size) {
    tellOf(size);
    if (size > m_largestBlock) throw BlockTooLarge();
    const std::size_t sizeClass = classOf(size);
    if (sizeClass == noClass)
        return new (addSlab(sizeof(Header) + size) + 1) Header{noClass, nullptr} + 1;
    Header* header = m_freeBlocks[sizeClass];
    if (header != nullptr)
        m_freeBlocks[sizeClass] = header->next;
    else
        header = static_cast<Header*>(cut(sizeClass));
    return header + 1;
}

void ParserMemory::deallocate(void* block) {
    if (block == nullptr) return;
    Header* const header = static_cast<Header*>(block) - 1;
    // Others of its size may be among them: there are none that come in numbers.
    if (header->sizeClass == m_watchedClass && m_watchedLive != 0) --m_watchedLive;
    if (header->sizeClass == noClass) {
        removeSlab(reinterpret_cast<Slab*>(header) - 1);
        return;
    }
    header->next = m_freeBlocks[header->sizeClass];
    m_freeBlocks[header->sizeClass] = header;
}

// A parser's exception may outlive what it was thrown from, and is then freed where it was made.
xercesc::MemoryManager* ParserMemory::getExceptionMemoryManager() {
    return xercesc::XMLPlatformUtils::fgMemoryManager;
}

void ParserMemory::release() noexcept {
    // The next slab is read before this one goes with what it holds.
    for (Slab* slab = m_slabs; slab != nullptr;) {
        Slab* const next = slab->next;
        removeSlab(slab);
        slab = next;
    }
    m_free = nullptr;
    m_freeSize = 0;
    m_freeBlocks.fill(nullptr);
}

void ParserMemory::trim() noexcept {
    if (m_slabsSize > ordinarySize) release();
}

}  // namespace korva
