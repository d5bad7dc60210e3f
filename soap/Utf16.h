// The parser's texts: comparing them with constants, and turning them into UTF-8.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <string>
#include <string_view>

namespace korva {

/// Whether the NUL-terminated `text`, which may be null, is the ASCII text `constant`.
inline bool equals(const XMLCh* text, std::string_view constant) {
    if (text == nullptr) return false;
    for (const char c : constant)
        if (*text++ != static_cast<unsigned char>(c)) return false;
    return *text == 0;
}

/// Whether the NUL-terminated `text`, which may be null, starts with the ASCII text `constant`.
inline bool startsWith(const XMLCh* text, std::string_view constant) {
    if (text == nullptr) return false;
    for (const char c : constant)
        if (*text++ != static_cast<unsigned char>(c)) return false;
    return true;
}

/// `text` in UTF-8; the empty text for null.
std::string utf8(const XMLCh* text);

}  // namespace korva
