/// Text that is streamed, in the place of a `const char*`.
#pragma once

#include <korva/KORVAExport.h>

#include <string>

class BRIMOutputStream;
class KORVA_Streamable;

/// Stands in for text: its own address, taken by asCharStar(), may be stored wherever the model
/// holds a `const char*`, and is told from text by the marker in its first bytes, which cannot
/// begin UTF-8. Owns none of its pieces.
class KORVA_EXPORT KORVA_CharStreamable {
public:
    /// An empty piece.
    KORVA_CharStreamable();

    /// Copies the fields of the streamable that `c` is; the pieces are shared.
    /// @throws ZELAssertError `c` is not a char streamable
    explicit KORVA_CharStreamable(const char* c);

    /// Frees nothing.
    ~KORVA_CharStreamable();

    KORVA_CharStreamable(const KORVA_CharStreamable&) = delete;
    KORVA_CharStreamable& operator=(const KORVA_CharStreamable&) = delete;

    /// Whether `p` is the address of a char streamable. Null is not. Reads up to the first byte
    /// that decides, never past the end of a text.
    static bool isCharStreamable(const char* p);

    /// The text that `text` is, or that the char streamable whose address it is writes.
    /// @throws ZELAssertError `text` is null
    /// @throws ZELOutOfMemoryError no memory is left; and what the source of a piece throws
    static std::string toText(const char* text);

    /// Makes `s` the source of this piece; `s` stays the caller's.
    /// @param base64 write the whole chain in base64, if this is its first piece
    /// @throws ZELAssertError this piece has a source already
    void initialize(const KORVA_Streamable& s, bool base64);

    /// Makes the text `data` the source of this piece; it stays the caller's.
    /// @throws ZELAssertError this piece has a source already, or `data` is null
    void initialize(const char* data, bool base64);

    /// Links `other` behind the last piece of this chain. Nothing is copied.
    void append(KORVA_CharStreamable& other);

    /// The same for a chain that may have no piece yet: a null `head`.
    /// @return the first piece of the longer chain
    static KORVA_CharStreamable& append(KORVA_CharStreamable* head, KORVA_CharStreamable& other);

    /// The streamable of this piece, or null.
    const KORVA_Streamable* getStreamable() const { return m_streamable; }
    /// The text of this piece, or null.
    const char* getData() const { return m_data; }

    /// Says whether the text is the id of an attachment instead of content.
    void setIsContentId(bool isContentId);
    bool getIsContentId() const;

    /// The address of this object, as text.
    const char* asCharStar() const { return m_marker; }

    /// Writes the chain to `out`, each piece in turn; empty pieces are skipped.
    BRIMOutputStream& operator>>(BRIMOutputStream& out) const;

    /// Whether both have the same marker, pieces and base64 flag.
    bool sharesPiecesWith(const KORVA_CharStreamable& other) const;

private:
    // Must come first: it is what asCharStar() points at.
    char m_marker[4];
    const KORVA_Streamable* m_streamable;
    const char* m_data;
    KORVA_CharStreamable* m_next;
    bool m_base64;
};
