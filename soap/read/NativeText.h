/// The values that texts stand for, whatever the locale.
#pragma once

#include <string_view>

namespace korva {

/// Without the blanks, tabs, LF, CR, VT and FF at both ends.
std::string_view trimmed(std::string_view text);

/// Reads a leading sign and the digits behind it, and ignores what follows; 0 if there are no
/// digits. Saturates.
/// @return false if `text` has a character other than digits, blanks, '+' and '-'
bool readInt(std::string_view text, int& value);

/// Reads as much of `text` as is a decimal number, with exponent or without, and ignores what
/// follows; 0 if there is none. The exponent stands behind 'E', 'e', 'D' or 'd'. Too small a number
/// is 0.
/// @return false if `text` has a character other than digits, blanks and "+-.DEde", or if the
/// number
///     is too large to be finite; `value` is then as it was
bool readFloat(std::string_view text, float& value);

/// "true", "TRUE" and "1"; "false", "FALSE" and "0".
/// @return false if `text` is none of these
bool readBoolean(std::string_view text, bool& value);

}  // namespace korva
