/// What stands between a source and a reader: limits, and where the document was when it failed.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/Findings.h"
#include "soap/read/ReadLimits.h"
#include "soap/read/Utf16.h"

#include <cstddef>
#include <string>
#include <vector>

namespace korva {

/// Where a source is.
class DocumentLocator {
public:
    DocumentLocator() = default;
    DocumentLocator(const DocumentLocator&) = delete;
    DocumentLocator& operator=(const DocumentLocator&) = delete;

    virtual DocumentPosition position() const = 0;

protected:
    ~DocumentLocator() = default;
};

/// What a source throws that finds a document which is not well-formed.
struct NotWellFormed {
    std::string text;  ///< in the parser's words
};

/// Hands a source's events on to a reader. Counts what limits are set for before the reader sees
/// it, and remembers the place of a failure.
class ReadGuard final : public DocumentReceiver, public DocumentPlace {
public:
    /// @param label the function that a broken limit is reported for
    ReadGuard(DocumentReceiver& reader, const ReadLimits& limits, const char* label)
        : m_reader(reader), m_limits(limits), m_label(label), m_textLeft(limits.text) {}

    const ReadLimits& limits() const { return m_limits; }

    /// The source that tells this guard, or null: it must live until it is set to null.
    void setLocator(const DocumentLocator* locator) { m_locator = locator; }

    DocumentPosition position() const override;
    std::string path() const override { return pathOf(m_path); }

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
    const DocumentLocator* m_locator = nullptr;
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
