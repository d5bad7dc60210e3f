#include "korva/KORVAContentHandler.h"

#include "core/NumberedError.h"
#include "soap/read/ReadLimits.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVANamespaceMapping.h>
#include <zel/I18NConverter.h>

#include <xercesc/sax2/Attributes.hpp>

#include <memory>
#include <string>

namespace {

[[noreturn]] void refuse(const char* what, std::size_t limit, const char* setter) {
    KORVA_RAISE(eKORVA_LimitExceeded, "KORVAContentHandler", what, std::to_string(limit).c_str(),
                setter);
}

}  // namespace

KORVAContentHandler::KORVAContentHandler(I18NConverter& converter)
    : m_converter(&converter),
      m_maximumAttributes(korva::ReadLimits().attributes),
      m_maximumDeclarations(korva::ReadLimits().declarations) {}

KORVAContentHandler::~KORVAContentHandler() = default;

// Names come whole, so they have a converter of their own: the shared one may hold half a character
// of the text that is being collected.

bool KORVAContentHandler::convert(const XMLCh* text, char* buffer, std::size_t size) {
    return I18NConverter().toUtf8(text, buffer, size);
}

char* KORVAContentHandler::convert(const XMLCh* text) {
    return text != nullptr ? I18NConverter().toUtf8(text) : nullptr;
}

void KORVAContentHandler::checkAttributes(const xercesc::Attributes& attributes) const {
    if (attributes.getLength() > m_maximumAttributes)
        refuse("attributes of a start tag", m_maximumAttributes, "setMaximumAttributes");
}

void KORVAContentHandler::addPrefix(KORVANamespaceMapping& mapping, const XMLCh* prefix,
                                    const XMLCh* uri) const {
    if (mapping.size() >= m_maximumDeclarations)
        refuse("namespace declarations in scope", m_maximumDeclarations, "setMaximumDeclarations");
    std::unique_ptr<char[]> prefixText(convert(prefix));
    std::unique_ptr<char[]> uriText(convert(uri));
    char* takenPrefix = prefixText.get();
    char* takenUri = uriText.get();
    mapping.add(takenPrefix, takenUri);
    prefixText.release();
    uriText.release();
}

void KORVAContentHandler::removePrefix(KORVANamespaceMapping& mapping, const XMLCh* prefix) {
    char buffer[64];
    if (convert(prefix, buffer, sizeof buffer)) {
        mapping.remove(buffer);
    } else {
        const std::unique_ptr<char[]> text(convert(prefix));
        mapping.remove(text.get());
    }
}
