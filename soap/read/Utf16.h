/// The parser's UTF-16: comparing it with constants, turning it into UTF-8, counting its units.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
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
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::size_t count = text.size();
    const char* next = text.data();
    const char* const end = next + text.size();
    const auto correct = [&count](char c) {
        // No continuation byte is a unit; the first byte of four stands for two.
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) == 0x80U) --count;
        if (byte >= 0xF0U) ++count;
    };
    for (; end - next >= 8; next += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, next, sizeof word);
        if ((word & highBits) == 0) continue;
        for (int i = 0; i != 8; ++i)
            correct(next[i]);
    }
    for (; next != end; ++next)
        correct(*next);
    return count;
}

}  // namespace korva
