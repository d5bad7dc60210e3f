/// Binary values: owned, referenced or streamed.
#pragma once

#include <korva/KORVAExport.h>

#include <cstddef>

class BRIMOutputStream;
class KORVA_Streamable;
class ZELByteBuffer;

/// A value of `xs:base64Binary`. The bytes are copied into the value, or stay with the caller
/// (`reference`), or come from a stream when the value is written.
class KORVA_EXPORT KORVAXSBase64Binary {
public:
    /// An empty value.
    KORVAXSBase64Binary();

    /// Copies `length` bytes; a `length` of 0 means `strlen(data)`. Null leaves the value empty.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAXSBase64Binary(const char* data, std::size_t length);

    virtual ~KORVAXSBase64Binary();
    KORVAXSBase64Binary(const KORVAXSBase64Binary&) = delete;
    KORVAXSBase64Binary& operator=(const KORVAXSBase64Binary&) = delete;

    /// Copies `length` bytes behind those that the value owns; a `length` of 0 means
    /// `strlen(data)`. A streamable is let go.
    /// @throws ZELAssertError the value holds a reference, `data` is null, or there is no byte in
    ///     either
    /// @throws ZELOutOfMemoryError no memory is left; the value is unchanged
    void append(const char* data, std::size_t length);

    /// Takes over the bytes of `buffer`, which is empty then, instead of what the value held. A
    /// streamable is let go.
    void adopt(ZELByteBuffer& buffer);

    /// Points at the caller's bytes, which must outlive the value. A `length` of 0 means
    /// `strlen(data)`; null empties the value. What the value owned is freed, a streamable let go.
    void reference(const char* data, std::size_t length);

    /// Takes the bytes from `streamable`, which must outlive the value, when it is written.
    void reference(const KORVA_Streamable& streamable);

    /// The bytes, not NUL-terminated; null when there are none or when they are streamed.
    char* str() const { return m_buffer; }
    /// The number of bytes; (size_t)-1 when they are streamed.
    std::size_t pcount() const {
        return m_streamable != nullptr ? static_cast<std::size_t>(-1) : m_length;
    }
    /// The source of a streamed value, or null.
    const KORVA_Streamable* streamable() const { return m_streamable; }

    /// Says whether the bytes are the id of an attachment instead of content.
    void setIsContentId(bool isContentId) { m_isContentId = isContentId; }
    bool getIsContentId() const { return m_isContentId; }

    /// Whether both hold the same bytes; the content-id flag plays no part.
    /// @throws ZELAssertError the values have the same length and this one is streamed
    bool operator==(const KORVAXSBase64Binary& other) const;
    bool operator!=(const KORVAXSBase64Binary& other) const;

    /// Writes the value in base64 to `out`; a content id is written as it stands.
    virtual void serialize(BRIMOutputStream& out) const;

private:
    void release();

    const KORVA_Streamable* m_streamable;
    char* m_buffer;
    std::size_t m_length;
    std::size_t m_capacity;
    bool m_isContentId;
};
