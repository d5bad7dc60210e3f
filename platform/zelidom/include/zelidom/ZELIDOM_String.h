/// A text of a document, where the document keeps it.
#pragma once

#include <zelidom/ZELIDOMExport.h>

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>
#include <string>
#include <string_view>

/// A handle by value: nothing is copied. Valid until what it tells of its node changes, or the
/// document ends. A text that a node does not have, as the namespace of an element without one, is
/// empty.
class ZELIDOM_EXPORT ZELIDOM_String {
public:
    constexpr ZELIDOM_String() noexcept : m_text(u"") {}
    /// `text` must be NUL-terminated; null gives the empty text.
    constexpr explicit ZELIDOM_String(const XMLCh* text) noexcept
        : m_text(text != nullptr ? text : u"") {}

    constexpr bool empty() const noexcept { return *m_text == 0; }

    /// NUL-terminated UTF-16, never null.
    constexpr const XMLCh* wide() const noexcept { return m_text; }

    /// In code units, without the NUL. Counts.
    constexpr std::size_t wideLength() const noexcept {
        return std::char_traits<XMLCh>::length(m_text);
    }

    /// A copy in UTF-8; surrogates without their partner become U+FFFD.
    /// @throws ZELOutOfMemoryError no memory is left
    std::string utf8() const;

    /// Whether it is the text `utf8`.
    /// @throws ZELOutOfMemoryError no memory is left
    friend bool operator==(const ZELIDOM_String& text, std::string_view utf8) {
        return text.equals(utf8);
    }
    friend bool operator==(const ZELIDOM_String& left, const ZELIDOM_String& right) noexcept {
        return std::u16string_view(left.m_text) == right.m_text;
    }

private:
    bool equals(std::string_view utf8) const;

    const XMLCh* m_text;
};
