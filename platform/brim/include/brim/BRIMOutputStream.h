/// Something that bytes are written to.
#pragma once

#include <brim/BRIMExport.h>

#include <cstddef>

/// A stream belongs to one thread at a time. What its owner derives from it may raise exceptions of
/// any kind from each operation; those of this library raise `BRIMStreamError`.
class BRIM_EXPORT BRIMOutputStream {
public:
    BRIMOutputStream() noexcept = default;
    BRIMOutputStream(const BRIMOutputStream&) = delete;
    BRIMOutputStream& operator=(const BRIMOutputStream&) = delete;

    /// Destructors never throw. One that has to write the rest of what the stream holds back drops
    /// the failure, so whoever cares calls `close` before.
    virtual ~BRIMOutputStream();

    /// Takes all `length` bytes. `bytes` may be null if `length` is 0.
    virtual void write(const char* bytes, std::size_t length) = 0;

    /// Ends the stream: passes on what it holds back, and releases what it owns. A second call does
    /// nothing. Does nothing at all unless overridden.
    virtual void close();

    /// Passes on what the stream holds back, as far as that can be done without ending it. Does
    /// nothing unless overridden.
    virtual void flush();
};
