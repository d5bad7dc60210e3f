#include "soap/read/NativeText.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

namespace korva {

namespace {

static_assert(std::numeric_limits<float>::is_iec559,
              "a double that is too large must give infinity");

constexpr std::string_view whiteSpace = " \t\n\v\f\r";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool consistsOf(std::string_view text, std::string_view others) {
    for (const char c : text)
        if (!isDigit(c) && others.find(c) == std::string_view::npos) return false;
    return true;
}

/// A number that is out of range is either too large or too small: by the power of ten of its first
/// digit that is not 0.
bool isLarge(std::string_view number) {
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
    return power + exponent > 0;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

bool readInt(std::string_view text, int& value) {
    if (!consistsOf(text, " +-")) return false;
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

bool readFloat(std::string_view text, float& value) {
    if (!consistsOf(text, " +-.DEde")) return false;
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
    if (error == std::errc::result_out_of_range && isLarge(text)) return false;
    const bool isNumber = error != std::errc::invalid_argument;
    const auto narrowed = static_cast<float>(negative && isNumber ? -number : number);
    if (std::isinf(narrowed)) return false;
    value = narrowed;
    return true;
}

bool readBoolean(std::string_view text, bool& value) {
    value = text == "true" || text == "TRUE" || text == "1";
    return value || text == "false" || text == "FALSE" || text == "0";
}

}  // namespace korva
