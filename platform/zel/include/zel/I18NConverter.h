/// Converts between the parser's UTF-16 and the object model's UTF-8, piece by piece.
#pragma once

#include <zel/ZELExport.h>

#include <cstddef>
#include <string>
#include <string_view>

class ZELByteBuffer;

/// A conversion to UTF-8 that may be handed a text in pieces: a high surrogate at the end of one
/// piece is kept and joined with the low surrogate that begins the next. Surrogates without their
/// partner become U+FFFD. The conversions to UTF-16 keep nothing between calls.
///
/// Lengths of UTF-16 are in code units, lengths of UTF-8 in bytes. A converter belongs to one
/// thread at a time.
class ZEL_EXPORT I18NConverter {
public:
    constexpr I18NConverter() noexcept = default;

    /// Writes the text and a NUL to `buffer`. If `size` bytes don't hold both, returns false, and
    /// neither buffer contents nor `written` mean anything; the converter's state is as before the
    /// call, so that the same piece may be handed in again. `written`, if not null, receives the
    /// length without the NUL.
    bool toUtf8(const char16_t* text, std::size_t length, char* buffer, std::size_t size,
                std::size_t* written = nullptr) noexcept;

    /// The same for a text up to its NUL. `text` must not be null.
    bool toUtf8(const char16_t* text, char* buffer, std::size_t size) noexcept;

    /// The text in a new NUL-terminated array, which the caller frees with `delete[]`.
    /// @throws ZELOutOfMemoryError no memory is left; the state is as before the call
    char* toUtf8(const char16_t* text, std::size_t length);

    /// The same for a text up to its NUL. `text` must not be null.
    char* toUtf8(const char16_t* text);

    /// Appends the text to `buffer`.
    /// @throws ZELOutOfMemoryError no memory is left; buffer and state are as before the call
    void append(const char16_t* text, std::size_t length, ZELByteBuffer& buffer);

    /// Ends a text: a high surrogate that still waits for its partner is appended as U+FFFD.
    void finish(ZELByteBuffer& buffer);

    /// True while a high surrogate waits for the next piece.
    bool isPending() const noexcept { return m_pending != 0; }

    /// Forgets a waiting high surrogate.
    void reset() noexcept { m_pending = 0; }

    /// A whole text in UTF-8: at its end, too, a surrogate without its partner becomes U+FFFD.
    /// @throws ZELOutOfMemoryError no memory is left
    static std::string utf8(std::u16string_view text);

    /// Writes `length` bytes of UTF-8 and a NUL to `buffer` of `size` code units; false if they
    /// don't fit. Each byte that can't be part of a well-formed sequence becomes one U+FFFD.
    static bool toUtf16(const char* text, std::size_t length, char16_t* buffer, std::size_t size,
                        std::size_t* written = nullptr) noexcept;

    /// The text in a new NUL-terminated array, which the caller frees with `delete[]`.
    /// @throws ZELOutOfMemoryError no memory is left
    static char16_t* toUtf16(const char* text, std::size_t length);

    /// Appends to `result`.
    /// @throws ZELOutOfMemoryError no memory is left; `result` is as before the call
    static void appendUtf16(const char* text, std::size_t length, std::u16string& result);

private:
    char16_t m_pending = 0;
};
