#include "soap/read/ElementNames.h"

#include "soap/read/Utf16.h"
#include "soap/read/Words.h"

#include <zel/I18NConverter.h>

#include <cstdint>
#include <string_view>

namespace korva {

namespace {

/// Whether both are the same text; true only for ASCII.
bool equal(const XMLCh* wide, const char* narrow) {
    for (;; ++wide, ++narrow) {
        const auto c = static_cast<unsigned char>(*narrow);
        if (*wide != c || c >= 0x80) return false;
        if (c == 0) return true;
    }
}

}  // namespace

const char* ElementNames::find(const XMLCh* name) {
    if (name == nullptr) return "";
    // A parser has one text for all elements of a name, so its address nearly always decides.
    const auto address = reinterpret_cast<std::uintptr_t>(name);
    Recent& recent = m_recent[(address >> 4U ^ address >> 11U) % recentCount];
    if (recent.address == name && equal(name, recent.text)) return recent.text;
    const char* const text = convert(name);
    recent = {name, text};
    return text;
}

const char* ElementNames::convert(const XMLCh* name) {
    char buffer[256];
    std::size_t length = 0;
    if (!I18NConverter().toUtf8(name, std::char_traits<XMLCh>::length(name), buffer, sizeof buffer,
                                &length))
        return m_others.insert(utf8(name)).first->c_str();  // longer than any word of the schema
    const std::string_view text(buffer, length);
    const char* const word = wordOr(text, nullptr);
    return word != nullptr ? word : m_others.emplace(text).first->c_str();
}

}  // namespace korva
