/// Writes text as XML character data.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMOutputStream.h>

#include <cstddef>

/// Replaces `&`, `<`, `>`, `"` and `'` by `&amp;`, `&lt;`, `&gt;`, `&quot;` and `&apos;`, and CR by
/// `&#xD;`, which a parser would otherwise turn into LF; all other bytes pass unchanged, so the
/// text fits element content and attribute values alike. Nothing is held back, and text without
/// such characters isn't even copied. The wrapped stream is not owned and never closed from here.
class BRIM_EXPORT BRIMXmlEncodeOutputStream final : public BRIMOutputStream {
public:
    explicit BRIMXmlEncodeOutputStream(BRIMOutputStream& stream) noexcept : m_stream(stream) {}
    ~BRIMXmlEncodeOutputStream() override;

    void write(const char* bytes, std::size_t length) override;

    /// Flushes the wrapped stream.
    void flush() override;

private:
    BRIMOutputStream& m_stream;
};
