/// The memory of one document, and of the parser that makes it.
#pragma once

#include <xercesc/framework/MemoryManager.hpp>

#include <cstddef>
#include <limits>

namespace zelidom {

/// Owns every block that it gave. A parser that ran out of memory can't be destroyed; it is left
/// alone, and its memory goes from under it.
class DocumentMemory final : public xercesc::MemoryManager {
public:
    /// Thrown when so many blocks are asked for and none of them becomes an event: a parser makes
    /// some for each attribute of a start tag before it tells of the tag.
    struct TooManyBlocks {};

    DocumentMemory() noexcept;
    DocumentMemory(const DocumentMemory&) = delete;
    DocumentMemory& operator=(const DocumentMemory&) = delete;
    /// Frees all blocks, given back or not.
    ~DocumentMemory() override;

    /// No more blocks than this may be given between two events. There is no limit at first.
    void setBlocksPerEvent(std::size_t blocks) noexcept { m_blocksPerEvent = blocks; }

    /// The parser told something of the document.
    void noteEvent() noexcept { m_blocksSinceEvent = 0; }

    /// @throws xercesc::OutOfMemoryException no memory is left
    /// @throws TooManyBlocks the limit is broken
    void* allocate(XMLSize_t size) override;
    void deallocate(void* block) override;
    xercesc::MemoryManager* getExceptionMemoryManager() override;

private:
    /// What stands before each block: its place in a ring that starts and ends at m_ring.
    struct Link;

    struct Neighbours {
        Neighbours* next;
        Neighbours* previous;
    };

    Neighbours m_ring;
    std::size_t m_blocksPerEvent = std::numeric_limits<std::size_t>::max();
    std::size_t m_blocksSinceEvent = 0;
};

}  // namespace zelidom
