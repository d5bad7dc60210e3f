/// The parser's UTF-16: comparing it with constants, turning it into UTF-8, counting its units.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace korva {

/// Whether the NUL-terminated `text`, which may be null, starts with the ASCII text `constant`.
inline bool startsWith(const XMLCh* text, std::string_view constant) {
    if (text == nullptr) return false;
    for (std::size_t i = 0; i != constant.size(); ++i)
        if (text[i] != static_cast<XMLCh>(constant[i])) return false;
    return true;
}

/// `text` in UTF-8; the empty text for null.
std::string utf8(const XMLCh* text);

/// How many units of UTF-16 the UTF-8 text `text` has.
inline std::size_t utf16Length(std::string_view text) {
    std::size_t count = 0;
    // No continuation byte is a unit; the first byte of four stands for two.
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        count += static_cast<std::size_t>((byte & 0xC0U) != 0x80U) + (byte >= 0xF0U ? 1U : 0U);
    }
    return count;
}

}  // namespace korva
