/// The memory of the XML parser.
#pragma once

#include <xercesc/framework/MemoryManager.hpp>

#include <array>
#include <cstddef>
#include <functional>
#include <utility>

namespace korva {

/// Gives a parser its memory and keeps what comes back for the next parser: a new parser makes
/// hundreds of allocations, which so cost next to nothing. Belongs to one thread at a time.
///
/// Owns every block that it gave. A parser that ran out of memory cannot be destroyed; it is left
/// alone, and `release` takes its memory from under it.
class ParserMemory final : public xercesc::MemoryManager {
public:
    /// Thrown for a block that is larger than allowed.
    struct BlockTooLarge {};
    /// Thrown when too many small blocks are asked for and none of them becomes an event: the
    /// parser makes some for each attribute of a start tag before it tells of the tag.
    struct TooManyBlocks {};

    ParserMemory() = default;
    ParserMemory(const ParserMemory&) = delete;
    ParserMemory& operator=(const ParserMemory&) = delete;
    ~ParserMemory() override { release(); }

    /// Called before an allocation, with how many of its size that makes, in all and at one time.
    /// May throw instead.
    using Told = std::function<void(std::size_t count, std::size_t live)>;

    /// Watches the allocations of objects of one size while it lives.
    class Watch {
    public:
        Watch(ParserMemory& memory, std::size_t size, Told told) : m_memory(memory) {
            m_memory.m_watchedSize = size;
            m_memory.m_watchedClass = classOf(size);
            m_memory.m_watchedCount = 0;
            m_memory.m_watchedLive = 0;
            m_memory.m_told = std::move(told);
        }
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;
        ~Watch() { m_memory.m_told = nullptr; }

    private:
        ParserMemory& m_memory;
    };

    /// No single block may be larger than this.
    void setLargestBlock(std::size_t bytes) { m_largestBlock = bytes; }

    /// @throws xercesc::OutOfMemoryException no memory is left
    void* allocate(XMLSize_t size) override;
    void deallocate(void* block) override;
    xercesc::MemoryManager* getExceptionMemoryManager() override;

    /// The parser told something of the document.
    void noteEvent() noexcept { m_slabsSinceEvent = 0; }

    /// Frees all blocks, given back or not.
    void release() noexcept;

    /// Between two parsers: frees what the last one needed beyond the ordinary.
    void trim() noexcept;

private:
    /// What stands before each block.
    struct Header;
    /// A large allocation from which blocks are cut, or a single large block.
    struct Slab;
    /// Blocks of a class have the same size. Each class is half as large again as the one before,
    /// or a third.
    static constexpr std::size_t classCount = 28;
    static constexpr std::size_t noClass = classCount;

    static std::size_t classOf(std::size_t size);
    static std::size_t sizeOfClass(std::size_t sizeClass);

    void tellOf(std::size_t size);
    void* cut(std::size_t sizeClass);
    Slab* addSlab(std::size_t size);
    void removeSlab(Slab* slab) noexcept;

    std::size_t m_largestBlock = static_cast<std::size_t>(-1);
    Slab* m_slabs = nullptr;
    std::size_t m_slabsSize = 0;
    std::size_t m_slabsSinceEvent = 0;  ///< for small blocks
    char* m_free = nullptr;             ///< what is not cut yet of the newest slab
    std::size_t m_freeSize = 0;
    std::array<Header*, classCount> m_freeBlocks{};
    std::size_t m_watchedSize = 0;
    std::size_t m_watchedClass = noClass;
    std::size_t m_watchedCount = 0;
    std::size_t m_watchedLive = 0;
    Told m_told;
};

}  // namespace korva
