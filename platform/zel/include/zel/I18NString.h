/// A text in both encodings in use: UTF-8 in the object model, UTF-16 at the XML parser.
#pragma once

#include <zel/ZELExport.h>

#include <cstddef>
#include <string>

/// Keeps the form that it was made from and makes the other when it is first asked for, so first
/// calls of `utf8` or `wide` on one object must not race. What is no valid text in the source
/// becomes U+FFFD in the form that is made.
class ZEL_EXPORT I18NString {
public:
    I18NString();

    /// From UTF-8 up to the NUL; null gives the empty text.
    I18NString(const char* utf8);
    I18NString(const char* utf8, std::size_t length);
    I18NString(const std::string& utf8);

    /// From UTF-16 (the parser's `XMLCh`); `length` in code units. Null with length 0 is allowed.
    I18NString(const char16_t* wide, std::size_t length);

    I18NString(const I18NString&);
    I18NString(I18NString&&) noexcept;
    I18NString& operator=(const I18NString&);
    I18NString& operator=(I18NString&&) noexcept;
    ~I18NString();

    /// NUL-terminated UTF-8, never null, valid while the object is neither changed nor ended.
    const char* utf8() const;

    /// In bytes, without the NUL.
    std::size_t utf8Length() const;

    /// NUL-terminated UTF-16, never null, valid as `utf8()` is.
    const char16_t* wide() const;

    /// In code units, without the NUL.
    std::size_t wideLength() const;

    bool empty() const noexcept { return m_utf8.empty() && m_wide.empty(); }

    /// Compares the UTF-8 forms.
    friend bool operator==(const I18NString& left, const I18NString& right) {
        return left.narrow() == right.narrow();
    }

private:
    const std::string& narrow() const;
    const std::u16string& widened() const;

    mutable std::string m_utf8;
    mutable std::u16string m_wide;
    mutable bool m_hasUtf8;
    mutable bool m_hasWide;
};
