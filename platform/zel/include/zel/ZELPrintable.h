/// Makes a text from outside fit to stand in an error.
#pragma once

#include <zel/ZELExport.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace zel {

/// How much of a text `printable` gives.
constexpr std::size_t longestPrintable = 512;

/// `text` in a form that can neither forge a line of a log, nor steer what shows it, nor fill it.
/// Ordinary texts stay byte for byte. Line feeds, carriage returns and tabs become "\n", "\r" and
/// "\t"; other control characters, the separators of lines and paragraphs, and the marks that turn
/// the direction of a text become "\u{202E}"; bytes that are no UTF-8 become "\x{FF}". What is
/// longer than `longestPrintable` bytes ends before the character that exceeds them, with a note
/// that tells the length of the whole: " ... (cut, 20000000 bytes)".
/// @throws ZELOutOfMemoryError no memory is left
ZEL_EXPORT std::string printable(std::string_view text);

}  // namespace zel
