#include "soap/write/InvalidText.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>

#include <cstdio>

namespace korva {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

std::string formatted(const char* format, unsigned value) {
    char text[48];
    return {text, static_cast<std::size_t>(std::snprintf(text, sizeof text, format, value))};
}

}  // namespace

std::string_view InvalidText::replaceCharacter(unsigned character) const {
    if (!m_replace) refuse(formatted("the character U+%04X", character));
    return replacement;
}

std::string_view InvalidText::replaceByte(unsigned char byte) const {
    if (!m_replace) refuse(formatted("invalid UTF-8, the byte 0x%02X", byte));
    return replacement;
}

void InvalidText::refuse(const std::string& found) const {
    const std::string place = m_place != nullptr ? m_place->path() : std::string();
    KORVA_RAISE(eKORVA_InvalidText, nullptr, place.c_str(), found.c_str(), "setReplaceInvalidText");
}

}  // namespace korva
