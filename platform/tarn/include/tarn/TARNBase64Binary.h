/// Binary values of the second object model: referenced or streamed.
#pragma once

#include <tarn/TARNExport.h>

#include <cstddef>

class TARN_Streamable;

/// A value of `xs:base64Binary`. The bytes are never copied: they stay with the caller or with a
/// registry, or come from a stream.
class TARN_EXPORT TARNBase64Binary {
public:
    /// An empty value.
    TARNBase64Binary() = default;
    TARNBase64Binary(const TARNBase64Binary&) = delete;
    TARNBase64Binary& operator=(const TARNBase64Binary&) = delete;
    virtual ~TARNBase64Binary();

    /// Points at `length` bytes, which must outlive the value. A `length` of 0 empties the value
    /// and refers to nothing. A stream is let go.
    /// @throws ZELAssertError `bytes` is null and `length` is not 0
    void reference(const char* bytes, std::size_t length);

    /// Takes the bytes from `streamable`, which must outlive the value, when they are needed.
    void reference(const TARN_Streamable& streamable);

    /// The bytes, not NUL-terminated; null when there are none or when they are streamed.
    const char* str() const { return m_bytes; }
    /// The number of bytes; (size_t)-1 when they are streamed.
    std::size_t pcount() const {
        return m_streamable != nullptr ? static_cast<std::size_t>(-1) : m_length;
    }
    /// The source of a streamed value, or null.
    const TARN_Streamable* streamable() const { return m_streamable; }

    /// Says whether the bytes are the id of an attachment instead of content.
    void setIsContentId(bool isContentId) { m_isContentId = isContentId; }
    bool getIsContentId() const { return m_isContentId; }

    /// Whether both refer to equal bytes or to the same stream, and agree on what the bytes are.
    bool isEqualTo(const TARNBase64Binary& other) const;

private:
    const TARN_Streamable* m_streamable = nullptr;
    const char* m_bytes = nullptr;
    std::size_t m_length = 0;
    bool m_isContentId = false;
};
