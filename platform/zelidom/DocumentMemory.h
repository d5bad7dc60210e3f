/// The memory of one document, and of the parser that makes it.
#pragma once

#include <xercesc/framework/MemoryManager.hpp>

namespace zelidom {

/// Owns every block that it gave. A parser that ran out of memory can't be destroyed; it is left
/// alone, and its memory goes from under it.
class DocumentMemory final : public xercesc::MemoryManager {
public:
    DocumentMemory() noexcept;
    DocumentMemory(const DocumentMemory&) = delete;
    DocumentMemory& operator=(const DocumentMemory&) = delete;
    /// Frees all blocks, given back or not.
    ~DocumentMemory() override;

    /// @throws xercesc::OutOfMemoryException no memory is left
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
};

}  // namespace zelidom
