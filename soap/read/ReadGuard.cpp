#include "soap/read/ReadGuard.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>

#include <new>
#include <string_view>

namespace korva {

void ReadGuard::notePosition(DocumentPosition position) noexcept {
    if (m_isPlaceNoted) return;
    m_isPlaceNoted = true;
    try {
        m_place = placeAt(position);
    } catch (const std::bad_alloc&) {  // NOLINT(bugprone-empty-catch)
        // A trace line that lacks the place is better than none.
    }
}

DocumentPosition ReadGuard::position() const {
    return m_locator != nullptr ? m_locator->position() : DocumentPosition();
}

std::string ReadGuard::placeAt(DocumentPosition position) const {
    std::string text;
    if (position.line != 0)
        text =
            "line " + std::to_string(position.line) + ", column " + std::to_string(position.column);
    if (m_path.empty()) return text;
    if (!text.empty()) text += ", ";
    return text + "element " + pathOf(m_path);
}

void ReadGuard::refuse(const char* what, std::size_t limit, const char* setter) const {
    KORVA_RAISE(eKORVA_LimitExceeded, m_label, what, std::to_string(limit).c_str(), setter);
}

void ReadGuard::refuseText() const {
    refuse("text", m_limits.text, "setMaximumText");
}

void ReadGuard::refuseStartTag() const {
    refuse("bytes of a start tag", m_limits.startTag, "setMaximumStartTag");
}

void ReadGuard::refuseNames() const {
    refuse("different names", m_limits.names, "setMaximumNames");
}

void ReadGuard::refuseEntityExpansion() const {
    refuse("entity expansions", m_limits.entityExpansions, "setMaximumEntityExpansions");
}

void ReadGuard::refuseEntityNesting() const {
    refuse("nesting of entities", m_limits.entityNesting, "setMaximumEntityNesting");
}

void ReadGuard::refuseAttributes() const {
    refuse("attributes of a start tag", m_limits.attributes, "setMaximumAttributes");
}

void ReadGuard::refuseExpandedText() const {
    refuse("text of expanded entities", m_limits.expandedText, "setMaximumExpandedText");
}

void ReadGuard::refuseDocumentType() const {
    KORVA_RAISE(eKORVA_DoctypeRefused, m_label);
}

void ReadGuard::startPrefix(const char* prefix, const char* uri) {
    if (++m_declarations > m_limits.declarations)
        refuse("namespace declarations in scope", m_limits.declarations, "setMaximumDeclarations");
    ++m_ownDeclarations;
    m_reader.startPrefix(prefix, uri);
}

void ReadGuard::endPrefix(const char* prefix) {
    --m_declarations;
    m_reader.endPrefix(prefix);
}

void ReadGuard::startElement(const Element& element) {
    if (m_path.size() >= m_limits.depth) refuse("depth", m_limits.depth, "setMaximumDepth");
    if (element.attributes.size() + m_ownDeclarations > m_limits.attributes) refuseAttributes();
    m_ownDeclarations = 0;
    m_path.push_back(element.localName);
    m_reader.startElement(element);
}

void ReadGuard::endElement() {
    m_reader.endElement();
    m_path.pop_back();
}

}  // namespace korva
