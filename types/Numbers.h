/// The values that are no text: how they look as text, whatever the locale, and how each is taken
/// for another.
#pragma once

#include "types/Kinds.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>

namespace types {

// ----- from one to another -----

/// The value at `place`. Any byte but zero is true, whatever wrote it.
template <class Value>
Value valueAt(const void* place) {
    return *static_cast<const Value*>(place);
}
template <>
inline bool valueAt<bool>(const void* place) {
    return *static_cast<const unsigned char*>(place) != 0;
}

/// A float out of the range of int saturates; what is no number is 0.
inline void convert(float from, int& to) {
    // 2^31 and above, and what lies below -2^31, have no int.
    constexpr float limit = 2147483648.0F;
    if (from >= limit)
        to = std::numeric_limits<int>::max();
    else if (from < -limit)
        to = std::numeric_limits<int>::min();
    else
        to = from == from ? static_cast<int>(from) : 0;
}

template <class From>
void convert(From from, int& to) {
    to = static_cast<int>(from);
}

template <class From>
void convert(From from, bool& to) {
    to = from != From{};
}

template <class From>
void convert(From from, float& to) {
    to = static_cast<float>(from);
}

/// Reads the value of this kind that stands at `place`, converted.
/// @return false when it is no kind of a value; `to` is then left alone
template <class To>
bool readAs(const void* place, FieldKind kind, To& to) {
    return visitValue(kind, [&](auto from) { convert(valueAt<decltype(from)>(place), to); });
}

// ----- to text -----

/// Room for the text of any value: the longest is a float, "-340282346638...0.00 ".
using ValueText = char[std::numeric_limits<float>::max_exponent10 + 7];

inline std::string_view print(int value, ValueText& out) {
    return {out, std::to_chars(out, out + sizeof out, value).ptr};
}

/// Two decimals, and a blank behind them.
inline std::string_view print(float value, ValueText& out) {
    char* const end = std::to_chars(out, out + sizeof out - 1, static_cast<double>(value),
                                    std::chars_format::fixed, 2)
                          .ptr;
    *end = ' ';
    return {out, end + 1};
}

inline std::string_view print(bool value, ValueText& /*out*/) {
    return value ? "true" : "false";
}

// ----- from text -----

/// Without the blanks, tabs, LF, CR, VT and FF at both ends.
inline std::string_view trimmed(std::string_view text) {
    constexpr std::string_view whiteSpace = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

namespace detail {

static_assert(std::numeric_limits<float>::is_iec559,
              "a double that is too large must give infinity");

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

inline bool consistsOf(std::string_view text, std::string_view others) {
    for (const char c : text)
        if (!isDigit(c) && others.find(c) == std::string_view::npos) return false;
    return true;
}

/// A number that is out of range is either too large or too small: by the power of ten of its first
/// digit that is not 0.
inline bool isLarge(std::string_view number) {
    constexpr long long far = 1'000'000'000'000'000;
    long long power = 0;  // of the digit before the point
    bool behindPoint = false;
    bool significant = false;
    std::size_t i = 0;
    for (; i != number.size() && (isDigit(number[i]) || number[i] == '.'); ++i) {
        if (number[i] == '.') {
            if (behindPoint) return power > 0;  // the number has ended
            behindPoint = true;
        } else {
            significant = significant || number[i] != '0';
            if (significant && !behindPoint) ++power;
            if (!significant && behindPoint) --power;
        }
    }
    long long exponent = 0;
    if (i != number.size() && (number[i] == 'e' || number[i] == 'E')) {
        const char* first = number.data() + i + 1;
        const char* const last = number.data() + number.size();
        if (first != last && *first == '+') ++first;
        if (std::from_chars(first, last, exponent).ec == std::errc::result_out_of_range)
            exponent = *first == '-' ? -far : far;
    }
    return power + std::clamp(exponent, -far, far) > 0;
}

}  // namespace detail

/// Reads a leading sign and the digits behind it, and ignores what follows; 0 if there are no
/// digits. Saturates.
/// @return false if `text` has a character other than digits, blanks, '+' and '-'
inline bool parse(std::string_view text, int& value) {
    if (!detail::consistsOf(text, " +-")) return false;
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') text = {};
    }
    value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec ==
        std::errc::result_out_of_range)
        value = negative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return true;
}

/// Reads as much of `text` as is a decimal number, with exponent or without, and ignores what
/// follows; 0 if there is none. The exponent stands behind 'E', 'e', 'D' or 'd'. Too small a number
/// is 0.
/// @return false if `text` has a character other than digits, blanks and "+-.DEde", or if the
///     number is too large to be finite; `value` is then as it was
inline bool parse(std::string_view text, float& value) {
    if (!detail::consistsOf(text, " +-.DEde")) return false;
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '+' || negative)) {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') text = {};
    }
    std::string withE;
    if (text.find_first_of("Dd") != std::string_view::npos) {
        withE = text;
        for (char& c : withE)
            if (c == 'D' || c == 'd') c = 'E';
        text = withE;
    }
    double number = 0;
    const std::errc error = std::from_chars(text.data(), text.data() + text.size(), number).ec;
    if (error == std::errc::result_out_of_range && detail::isLarge(text)) return false;
    const bool isNumber = error != std::errc::invalid_argument;
    const auto narrowed = static_cast<float>(negative && isNumber ? -number : number);
    if (std::isinf(narrowed)) return false;
    value = narrowed;
    return true;
}

/// "true", "TRUE" and "1"; "false", "FALSE" and "0".
/// @return false if `text` is none of these
inline bool parse(std::string_view text, bool& value) {
    value = text == "true" || text == "TRUE" || text == "1";
    return value || text == "false" || text == "FALSE" || text == "0";
}

}  // namespace types
