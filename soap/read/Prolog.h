/// What stands in a document before its root.
#pragma once

#include <string_view>

namespace korva {

/// Looks through the first bytes of a document. Is strict: what it does not understand it does not
/// vouch for.
class Prolog {
public:
    /// @param start the first bytes; must outlive the prolog
    /// @param isWhole there are no further ones
    Prolog(std::string_view start, bool isWhole) : m_text(start), m_isWhole(isWhole) {}

    /// Whether the document is in UTF-8 and XML 1.0, as far as its first bytes and its declaration
    /// tell. To be called first, and once.
    bool isUtf8();

    /// Whether no document type comes before the root, or before what is not XML.
    bool lacksDocumentType();

private:
    bool skipDeclaration();
    bool skipComment();
    bool skipInstruction();
    void skipWhiteSpace();
    bool skip(std::string_view text);
    bool skipPast(std::string_view mark);
    bool takeAttribute(std::string_view name, std::string_view& value);

    std::string_view m_text;
    bool m_isWhole;
};

}  // namespace korva
