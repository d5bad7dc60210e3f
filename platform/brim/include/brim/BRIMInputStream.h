/// Something that bytes are read from.
#pragma once

#include <brim/BRIMExport.h>

#include <cstddef>

/// A stream belongs to one thread at a time. What its owner derives from it may raise exceptions of
/// any kind; those of this library raise `BRIMStreamError`.
class BRIM_EXPORT BRIMInputStream {
public:
    BRIMInputStream() noexcept = default;
    BRIMInputStream(const BRIMInputStream&) = delete;
    BRIMInputStream& operator=(const BRIMInputStream&) = delete;
    virtual ~BRIMInputStream();

    /// Writes up to `size` bytes to `buffer` and returns how many: at least one, unless the stream
    /// is at its end. There it returns 0 or -1, also when called again.
    virtual long long read(char* buffer, std::size_t size) = 0;
};
