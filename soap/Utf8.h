/// The forms of characters in UTF-8.
#pragma once

#include <cstddef>

namespace korva {

/// What a lead byte says of its character.
struct Utf8Form {
    std::size_t length;  ///< in bytes; 0 if the byte starts no character
    /// What the second byte may be: keeps out longer forms than needed, surrogates, and what is
    /// beyond the last character. All others may be 0x80 to 0xBF.
    unsigned char low;
    unsigned char high;
};

constexpr Utf8Form utf8FormOf(unsigned char lead) {
    if (lead < 0x80) return {1, 0, 0};
    if (lead < 0xC2 || lead > 0xF4) return {0, 0, 0};
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    const unsigned char low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned char high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    return {length, low, high};
}

}  // namespace korva
