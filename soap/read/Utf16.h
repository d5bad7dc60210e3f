// The parser's texts: comparing them with constants, and turning them into UTF-8.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace korva {

/// Whether the NUL-terminated `text`, which may be null, starts with the ASCII text `constant`.
inline bool startsWith(const XMLCh* text, std::string_view constant) {
    if (text == nullptr) return false;
    const auto isAt = [&](std::size_t i) { return text[i] == static_cast<XMLCh>(constant[i]); };
    std::size_t i = 0;
    // Four at a time: the namespace of each element's type is compared.
    for (; constant.size() - i >= 4; i += 4)
        if (!(isAt(i) && isAt(i + 1) && isAt(i + 2) && isAt(i + 3))) return false;
    for (; i != constant.size(); ++i)
        if (!isAt(i)) return false;
    return true;
}

/// Whether the NUL-terminated `text`, which may be null, is the ASCII text `constant`.
inline bool equals(const XMLCh* text, std::string_view constant) {
    return startsWith(text, constant) && text[constant.size()] == 0;
}

/// `text` in UTF-8; the empty text for null.
std::string utf8(const XMLCh* text);

}  // namespace korva
