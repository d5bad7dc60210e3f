/// Compresses what is written to it with gzip.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMOutputStream.h>

#include <cstddef>

/// A filter: bytes in, one gzip member out to the stream that it wraps, in pieces of some thousand.
/// The wrapped stream is not owned, must live until `close`, and is never closed from here. A lack
/// of memory, which only the constructor can meet, throws `ZELOutOfMemoryError`.
class BRIM_EXPORT BRIMGZIPOutputStream final : public BRIMOutputStream {
public:
    /// `level` is 0 (store) to 9 (smallest); anything else is zlib's default.
    explicit BRIMGZIPOutputStream(BRIMOutputStream& stream, int level = -1);

    /// Without `close` before, what was written ends without gzip's trailer, and no reader takes it
    /// for complete.
    ~BRIMGZIPOutputStream() override;

    /// @throws ZELAssertError the stream is closed: `ZEL_ASSERT(!m_closed);`
    void write(const char* bytes, std::size_t length) override;

    /// Ends the member, and lets go of the wrapped stream, which stays open.
    void close() override;

    /// Passes on all that was written, at some cost in size, and flushes the wrapped stream.
    void flush() override;

private:
    struct Deflater;

    void deflate(int mode);

    BRIMOutputStream& m_stream;
    Deflater* m_deflater;
    bool m_closed = false;
};
