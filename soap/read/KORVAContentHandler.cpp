#include "korva/KORVAContentHandler.h"

#include <korva/KORVANamespaceMapping.h>
#include <zel/I18NConverter.h>

#include <memory>

KORVAContentHandler::KORVAContentHandler(I18NConverter& converter) : m_converter(&converter) {}

KORVAContentHandler::~KORVAContentHandler() = default;

// Names come whole, so they have a converter of their own: the shared one may hold half a character
// of the text that is being collected.

bool KORVAContentHandler::convert(const XMLCh* text, char* buffer, std::size_t size) {
    return I18NConverter().toUtf8(text, buffer, size);
}

char* KORVAContentHandler::convert(const XMLCh* text) {
    return text != nullptr ? I18NConverter().toUtf8(text) : nullptr;
}

void KORVAContentHandler::addPrefix(KORVANamespaceMapping& mapping, const XMLCh* prefix,
                                    const XMLCh* uri) {
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
