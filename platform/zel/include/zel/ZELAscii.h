/// Text in ASCII, whatever the locale.
#pragma once

#include <algorithm>
#include <string_view>

namespace zel {

/// `c`, but as a small letter if it is a capital of ASCII.
constexpr char toLower(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Whether both are the same but for the case of ASCII letters.
constexpr bool equalIgnoringCase(std::string_view left, std::string_view right) noexcept {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return toLower(a) == toLower(b); });
}

}  // namespace zel
