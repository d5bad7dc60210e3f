/// The streams that texts go through on their way into a document.
#pragma once

#include "platform/brim/XmlEncoding.h"
#include "soap/write/InvalidText.h"

#include <brim/BRIMOutputStream.h>

#include <cstddef>

namespace korva {

/// Tells characters that a document can hold from others, in a text that comes in pieces.
class TextInspector {
public:
    static constexpr bool inspects = true;

    explicit TextInspector(const InvalidText& invalid) : m_invalid(invalid) {}

    // See brim::xml::NoInspector. A character that is not whole at the end of the piece is held
    // back.

    std::size_t characterAt(const char* bytes, std::size_t length) const;
    brim::xml::Passage look(const char* bytes, std::size_t length);

    /// Whether a character is held back, which the next piece goes on with.
    bool hasCut() const { return m_cutLength != 0; }

    /// Writes what becomes of the held character.
    /// @return how many bytes of the next piece, which is not empty, it took
    std::size_t completeCut(BRIMOutputStream& stream, const char* bytes, std::size_t length);

    /// Writes what becomes of a character that is never completed.
    void endCut(BRIMOutputStream& stream);

private:
    static constexpr std::size_t longestSequence = 4;

    const InvalidText& m_invalid;
    std::size_t m_cutLength = 0;
    char m_cut[longestSequence];
};

/// Passes text on as UTF-8 that a document can hold, and encodes its markup or keeps it. What is
/// invalid is refused or replaced. The wrapped stream is not owned.
template <brim::xml::Markup markup>
class TextStream final : public BRIMOutputStream {
public:
    /// @param invalid must outlive the stream
    TextStream(BRIMOutputStream& stream, const InvalidText& invalid)
        : m_stream(stream), m_inspector(invalid) {}

    void write(const char* bytes, std::size_t length) override {
        if (m_inspector.hasCut() && length != 0) {
            const std::size_t taken = m_inspector.completeCut(m_stream, bytes, length);
            bytes += taken;
            length -= taken;
        }
        brim::xml::transfer<markup>(m_stream, bytes, length, m_inspector);
    }

    void flush() override { m_stream.flush(); }

    /// Ends the text, so that the next write begins another.
    void close() override {
        if (m_inspector.hasCut()) m_inspector.endCut(m_stream);
    }

private:
    BRIMOutputStream& m_stream;
    TextInspector m_inspector;
};

/// For character data and attribute values.
using EncodedTextStream = TextStream<brim::xml::Markup::Encoded>;
/// For what is written as it stands.
using PlainTextStream = TextStream<brim::xml::Markup::Kept>;

}  // namespace korva
