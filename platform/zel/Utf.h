/// The loops that turn UTF-16 into UTF-8 and back, on memory that the caller provides.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zel::utf {

constexpr char16_t replacement = u'\uFFFD';

constexpr bool isHighSurrogate(char16_t unit) noexcept {
    return (unit & 0xFC00) == 0xD800;
}
constexpr bool isLowSurrogate(char16_t unit) noexcept {
    return (unit & 0xFC00) == 0xDC00;
}

/// Copies code units up to the first that isn't ASCII; returns how many. `out` has room for all
/// `length`, and nothing behind the copied ones is written.
std::size_t narrowAscii(const char16_t* text, std::size_t length, char* out) noexcept;

/// The same in the other direction.
std::size_t widenAscii(const char* text, std::size_t length, char16_t* out) noexcept;

/// No less than what `encode` writes for this piece. More only for surrogates.
std::size_t encodedBound(const char16_t* text, std::size_t length, char16_t pending) noexcept;

/// Just what `encode` writes for this piece.
std::size_t encodedLength(const char16_t* text, std::size_t length, char16_t pending) noexcept;

/// Writes a piece as UTF-8; returns the end of what it wrote. `pending` is the high surrogate that
/// ended the piece before, or 0, and receives that of this one.
char* encode(const char16_t* text, std::size_t length, char16_t& pending, char* out) noexcept;

/// Writes U+FFFD as UTF-8; returns its end.
char* encodeReplacement(char* out) noexcept;

/// Takes a character off the front of a text that isn't empty. A byte that begins no well-formed
/// sequence gives U+FFFD, which is the only character of one byte beyond ASCII.
std::uint32_t nextPoint(const unsigned char*& at, const unsigned char* end) noexcept;

/// How many units `decode` writes.
std::size_t decodedLength(const char* text, std::size_t length) noexcept;

/// Writes a text as UTF-16, at most one unit for each byte; returns the end of what it wrote.
char16_t* decode(const char* text, std::size_t length, char16_t* out) noexcept;

}  // namespace zel::utf
