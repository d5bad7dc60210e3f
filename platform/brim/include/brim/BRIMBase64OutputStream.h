/// Encodes what is written to it as base64, without line breaks.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMOutputStream.h>

#include <cstddef>

/// A filter: bytes in, characters out to the stream that it wraps, in pieces of some thousand. The
/// wrapped stream is not owned, must live until `close`, and is never closed from here. The object
/// holds its buffer, 16 KB, and allocates nothing.
class BRIM_EXPORT BRIMBase64OutputStream final : public BRIMOutputStream {
public:
    /// Wraps nothing yet; `wrap` comes before the first write.
    BRIMBase64OutputStream() noexcept;

    explicit BRIMBase64OutputStream(BRIMOutputStream& stream) noexcept;

    /// As `close`; a failure is dropped.
    ~BRIMBase64OutputStream() override;

    /// Begins an encoding on `stream`. One that is still open on another stream is closed before.
    void wrap(BRIMOutputStream& stream);

    /// @throws ZELAssertError nothing is wrapped: `ZEL_ASSERT(m_stream);`
    void write(const char* bytes, std::size_t length) override;

    /// Ends the encoding with its padding, and lets go of the wrapped stream, which stays open.
    void close() override;

    /// Passes on the characters of all complete groups of three bytes.
    void flush() override;

private:
    void drain();

    BRIMOutputStream* m_stream = nullptr;
    std::size_t m_length = 0;
    std::size_t m_restLength = 0;
    unsigned char m_rest[3];
    char m_buffer[16384];
};
