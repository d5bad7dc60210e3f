#include "zel/I18NString.h"

#include <zel/I18NConverter.h>

I18NString::I18NString() : m_hasUtf8(true), m_hasWide(true) {}

I18NString::I18NString(const char* utf8)
    : m_utf8(utf8 ? utf8 : ""), m_hasUtf8(true), m_hasWide(false) {}

I18NString::I18NString(const char* utf8, std::size_t length)
    : m_utf8(utf8 ? utf8 : "", length), m_hasUtf8(true), m_hasWide(false) {}

I18NString::I18NString(const std::string& utf8) : m_utf8(utf8), m_hasUtf8(true), m_hasWide(false) {}

I18NString::I18NString(const char16_t* wide, std::size_t length)
    : m_wide(wide ? wide : u"", length), m_hasUtf8(false), m_hasWide(true) {}

I18NString::I18NString(const I18NString&) = default;
I18NString& I18NString::operator=(const I18NString&) = default;
I18NString::~I18NString() = default;

// A string that was moved from is empty in both forms, whatever its flags say.
I18NString::I18NString(I18NString&&) noexcept = default;
I18NString& I18NString::operator=(I18NString&&) noexcept = default;

const char* I18NString::utf8() const {
    return narrow().c_str();
}
std::size_t I18NString::utf8Length() const {
    return narrow().size();
}
const char16_t* I18NString::wide() const {
    return widened().c_str();
}
std::size_t I18NString::wideLength() const {
    return widened().size();
}

const std::string& I18NString::narrow() const {
    if (m_hasUtf8) return m_utf8;
    m_utf8 = I18NConverter::utf8(m_wide);
    m_hasUtf8 = true;
    return m_utf8;
}

const std::u16string& I18NString::widened() const {
    if (m_hasWide) return m_wide;
    I18NConverter::appendUtf16(m_utf8.data(), m_utf8.size(), m_wide);
    m_hasWide = true;
    return m_wide;
}
