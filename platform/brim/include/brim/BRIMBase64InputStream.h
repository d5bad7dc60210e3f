/// Decodes base64 from another stream.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMInputStream.h>

#include <cstddef>

/// Skips white space wherever it stands. Any other character that isn't base64, a group that is cut
/// short, padding in the wrong place, and anything behind the padding raise `BRIMStreamError`. The
/// bits of the last character that carry no data are not looked at. The wrapped stream is not
/// owned. The object holds its buffer, 16 KB, and allocates nothing.
class BRIM_EXPORT BRIMBase64InputStream final : public BRIMInputStream {
public:
    explicit BRIMBase64InputStream(BRIMInputStream& stream) noexcept;
    ~BRIMBase64InputStream() override;

    long long read(char* buffer, std::size_t size) override;

private:
    bool refill();
    void takeCharacter(unsigned char character);
    [[noreturn]] void refuse(const char* what) const;

    BRIMInputStream& m_stream;
    const char* m_next;
    const char* m_end;
    unsigned long long m_offset = 0;  ///< of `m_buffer` in the wrapped stream
    unsigned m_group = 0;             ///< the bits of a group that was begun
    unsigned m_groupLength = 0;       ///< its characters so far, padding included
    unsigned m_padding = 0;           ///< how many of them were '='
    bool m_complete = false;          ///< the padding was seen
    unsigned m_restBegin = 0;
    unsigned m_restEnd = 0;
    char m_rest[3];  ///< decoded bytes for which the caller had no room
    char m_buffer[16384];
};
