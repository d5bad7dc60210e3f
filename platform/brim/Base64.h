/// The inner loops of base64, on memory that the caller provides.
#pragma once

#include <cstddef>

namespace brim::base64 {

/// Encodes `length` bytes, which must be a multiple of three, to 4/3 as many characters. Returns
/// the end of what it wrote.
char* encodeGroups(const char* bytes, std::size_t length, char* out) noexcept;

/// Encodes the last one or two bytes with their padding to four characters.
void encodeLast(const unsigned char* bytes, std::size_t length, char* out) noexcept;

/// Where a run of `decodeGroups` stopped.
struct Progress {
    const char* in;
    char* out;
};

/// Decodes groups of four characters as long as there are some, they are plain base64 without
/// padding or white space, and their three bytes fit.
Progress decodeGroups(const char* in, const char* inEnd, char* out, char* outEnd) noexcept;

/// The six bits of a character, or one of the two below.
unsigned decodeCharacter(unsigned char character) noexcept;

constexpr unsigned whiteSpace = 64;
constexpr unsigned noBase64 = 65;

}  // namespace brim::base64
