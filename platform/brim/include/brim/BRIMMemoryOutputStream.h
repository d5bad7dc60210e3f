/// Collects what is written to it in memory.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMOutputStream.h>
#include <zel/ZELByteBuffer.h>

#include <cstddef>

/// Grows geometrically. Running out of memory throws `ZELOutOfMemoryError`, with the contents as
/// they were before the write.
class BRIM_EXPORT BRIMMemoryOutputStream final : public BRIMOutputStream {
public:
    /// `size` is how many bytes the first allocation has, which happens with the first write.
    explicit BRIMMemoryOutputStream(std::size_t size = 1024) noexcept;
    ~BRIMMemoryOutputStream() override;

    void write(const char* bytes, std::size_t length) override;

    /// All that was written, with a NUL behind it; never null. Valid until the next write.
    const char* str() const noexcept { return m_buffer.str(); }

    /// How many bytes were written.
    std::size_t pcount() const noexcept { return m_buffer.pcount(); }

    /// Forgets what was written and keeps the memory for what comes.
    void reset() noexcept { m_buffer.reset(); }

private:
    ZELByteBuffer m_buffer;
};
