#include "soap/read/ReadGuard.h"

#include "core/NumberedError.h"
#include "soap/read/Utf16.h"

#include <i18n/KORVAMessageId.h>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/Locator.hpp>

#include <string_view>

namespace korva {

namespace {

/// How much of the path of a deep element is told: its start, and its end.
constexpr std::size_t longPath = 400;

std::u16string shortened(std::u16string_view path) {
    if (path.size() <= longPath) return std::u16string(path);
    std::u16string text(path.substr(0, path.rfind(u'/', longPath / 2)));
    text += u"/...";
    std::u16string_view end = path.substr(path.size() - longPath / 2);
    const std::size_t slash = end.find(u'/');
    text += slash != std::u16string_view::npos ? end.substr(slash) : u"/...";
    return text;
}

}  // namespace

ReadGuard::ReadGuard(xercesc::ContentHandler& handler, const ReadLimits& limits, const char* label)
    : m_handler(handler), m_limits(limits), m_label(label), m_textLeft(limits.text) {}

template <class Call>
void ReadGuard::forward(Call call) {
    try {
        call();
    } catch (...) {
        notePosition();
        throw;
    }
}

void ReadGuard::notePosition() noexcept {
    if (m_locator != nullptr)
        notePosition(m_locator->getLineNumber(), m_locator->getColumnNumber());
}

void ReadGuard::notePosition(XMLFileLoc line, XMLFileLoc column) noexcept {
    if (m_line != 0) return;
    m_line = line;
    m_column = column;
}

std::string ReadGuard::place() const {
    std::string text;
    if (m_line != 0)
        text = "line " + std::to_string(m_line) + ", column " + std::to_string(m_column);
    if (!m_path.empty()) {
        if (!text.empty()) text += ", ";
        text += "element ";
        text += utf8(shortened(m_path).c_str());
    }
    return text;
}

void ReadGuard::refuse(const char* what, std::size_t limit, const char* setter) const {
    KORVA_RAISE(eKORVA_LimitExceeded, m_label, what, std::to_string(limit).c_str(), setter);
}

void ReadGuard::refuseText() const {
    refuse("text", m_limits.text, "setMaximumText");
}

void ReadGuard::refuseEntityExpansion() const {
    refuse("entity expansions", m_limits.entityExpansions, "setMaximumEntityExpansions");
}

void ReadGuard::setDocumentLocator(const xercesc::Locator* locator) {
    m_locator = locator;
    m_handler.setDocumentLocator(locator);
}

void ReadGuard::startDocument() {
    forward([this] { m_handler.startDocument(); });
}

void ReadGuard::endDocument() {
    forward([this] { m_handler.endDocument(); });
}

void ReadGuard::startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                             const xercesc::Attributes& attributes) {
    forward([=, this, &attributes] {
        if (++m_depth > m_limits.depth) refuse("depth", m_limits.depth, "setMaximumDepth");
        m_path += u'/';
        m_path += localName;
        m_handler.startElement(uri, localName, qName, attributes);
    });
}

void ReadGuard::endElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName) {
    forward([=, this] {
        m_handler.endElement(uri, localName, qName);
        m_path.resize(m_path.rfind(u'/'));
        --m_depth;
    });
}

void ReadGuard::characters(const XMLCh* text, XMLSize_t length) {
    forward([=, this] {
        if (length > m_textLeft) refuseText();
        m_textLeft -= length;
        m_handler.characters(text, length);
    });
}

void ReadGuard::startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) {
    forward([=, this] { m_handler.startPrefixMapping(prefix, uri); });
}

void ReadGuard::endPrefixMapping(const XMLCh* prefix) {
    forward([=, this] { m_handler.endPrefixMapping(prefix); });
}

xercesc::InputSource* ReadGuard::resolveEntity(const XMLCh*, const XMLCh*) {
    constexpr XMLByte nothing[] = {0};
    return new xercesc::MemBufInputSource(nothing, 0, "", false);
}

}  // namespace korva
