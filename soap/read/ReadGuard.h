/// What stands between a source and a reader: limits, and where the document was when it failed.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/ReadLimits.h"
#include "soap/read/Utf16.h"

#include <cstddef>
#include <string>
#include <vector>

namespace korva {

/// A place in a document, counted from 1; 0 where it is not known.
struct DocumentPosition {
    unsigned long long line = 0;
    unsigned long long column = 0;
};

/// What a source throws that finds a document which is not well-formed.
struct NotWellFormed {
    std::string text;  ///< in the parser's words
};

/// Hands a source's events on to a reader. Counts what limits are set for before the reader sees
/// it, and remembers the place of a failure.
class ReadGuard final : public DocumentReceiver {
public:
    /// @param label the function that a broken limit is reported for
    ReadGuard(DocumentReceiver& reader, const ReadLimits& limits, const char* label)
        : m_reader(reader), m_limits(limits), m_label(label), m_textLeft(limits.text) {}

    const ReadLimits& limits() const { return m_limits; }

    /// Remembers where the document is, unless an earlier failure did. The source and its names are
    /// not needed behind this.
    void notePosition(DocumentPosition position) noexcept;

    /// "line 3, column 14, element /Envelope/Body", as far as it is known. May be empty.
    const std::string& place() const { return m_place; }

    void startDocument() override { m_reader.startDocument(); }
    void endDocument() override { m_reader.endDocument(); }
    void startPrefix(const char* prefix, const char* uri) override;
    void endPrefix(const char* prefix) override;
    void startElement(const Element& element) override;
    void text(std::string_view piece) override {
        const std::size_t units = utf16Length(piece);
        if (units > m_textLeft) refuseText();
        m_textLeft -= units;
        m_reader.text(piece);
    }
    void endElement() override;

    // What a source finds before there is an event.

    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseText() const;
    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseStartTag() const;
    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseNames() const;
    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseEntityExpansion() const;
    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseEntityNesting() const;
    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseAttributes() const;
    /// @throws KORVAException 0xEA4F0001: always
    [[noreturn]] void refuseExpandedText() const;
    /// @throws KORVAException 0xEA4EB50B: always
    [[noreturn]] void refuseDocumentType() const;

private:
    std::string placeAt(DocumentPosition position) const;
    [[noreturn]] void refuse(const char* what, std::size_t limit, const char* setter) const;

    DocumentReceiver& m_reader;
    const ReadLimits& m_limits;
    const char* m_label;
    std::vector<const char*> m_path;    ///< names of the open elements
    std::size_t m_declarations = 0;     ///< in scope
    std::size_t m_ownDeclarations = 0;  ///< of the start tag that is coming
    std::size_t m_textLeft;
    bool m_isPlaceNoted = false;
    std::string m_place;  ///< of the failure
};

}  // namespace korva
