/// Text of the second object model that is streamed, in the place of a `const char*`.
#pragma once

#include <tarn/TARNExport.h>

class BRIMOutputStream;
class TARN_Streamable;

/// Stands in for text: its own address, taken by asCharStar(), may be stored wherever the model
/// holds a `const char*`, and is told from text by its first bytes, which cannot begin UTF-8. Owns
/// neither text nor stream.
class TARN_EXPORT TARN_CharStreamable {
public:
    /// An empty text.
    TARN_CharStreamable();
    TARN_CharStreamable(const TARN_CharStreamable&) = delete;
    TARN_CharStreamable& operator=(const TARN_CharStreamable&) = delete;
    ~TARN_CharStreamable() = default;

    /// Whether `p` is the address of a char streamable. Null is not. Never reads past the end of a
    /// text.
    static bool isCharStreamable(const char* p);

    /// Makes `streamable` the source of the text.
    /// @param base64 write it in base64
    /// @throws ZELAssertError there is a source already
    void initialize(const TARN_Streamable& streamable, bool base64);

    /// Makes the text `data` the source.
    /// @throws ZELAssertError there is a source already, or `data` is null
    void initialize(const char* data, bool base64);

    /// The source, or null.
    const TARN_Streamable* getStreamable() const { return m_streamable; }
    /// The text, or null.
    const char* getData() const { return m_data; }

    /// Says whether the text is the id of an attachment instead of content.
    void setIsContentId(bool isContentId);
    bool getIsContentId() const;

    /// The address of this object, as text.
    const char* asCharStar() const { return m_marker; }

    /// Writes the text to `out`.
    BRIMOutputStream& operator>>(BRIMOutputStream& out) const;

    /// Whether both have the same source, told in the same way.
    bool sharesSourceWith(const TARN_CharStreamable& other) const;

private:
    // Must come first: it is what asCharStar() points at.
    char m_marker[4];
    bool m_base64 = false;
    const TARN_Streamable* m_streamable = nullptr;
    const char* m_data = nullptr;
};
