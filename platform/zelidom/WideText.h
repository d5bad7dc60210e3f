/// Texts on their way to Xerces-C.
#pragma once

#include <zel/I18NConverter.h>

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace zelidom {

/// A text in UTF-16, in place if it is short.
class WideText {
public:
    /// @throws ZELOutOfMemoryError the text is long, and no memory is left
    explicit WideText(std::string_view utf8) : m_text(m_short) {
        if (I18NConverter::toUtf16(utf8.data(), utf8.size(), m_short, shortSize)) return;
        I18NConverter::appendUtf16(utf8.data(), utf8.size(), m_long);
        m_text = m_long.c_str();
    }
    WideText(const WideText&) = delete;
    WideText& operator=(const WideText&) = delete;

    const XMLCh* get() const noexcept { return m_text; }

private:
    static constexpr std::size_t shortSize = 128;

    const XMLCh* m_text;
    XMLCh m_short[shortSize];
    std::u16string m_long;
};

/// A namespace as Xerces-C takes it: none is null.
inline const XMLCh* orNone(const XMLCh* namespaceURI) noexcept {
    return namespaceURI != nullptr && *namespaceURI != 0 ? namespaceURI : nullptr;
}

}  // namespace zelidom
