/// Reads from bytes in memory.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMInputStream.h>

#include <cstddef>

class BRIM_EXPORT BRIMMemoryInputStream final : public BRIMInputStream {
public:
    /// Copies nothing: the bytes must stay alive and unchanged as long as they are read. `bytes`
    /// may be null if `length` is 0.
    BRIMMemoryInputStream(const char* bytes, std::size_t length) noexcept;
    ~BRIMMemoryInputStream() override;

    long long read(char* buffer, std::size_t size) override;

private:
    const char* m_next;
    std::size_t m_left;
};
