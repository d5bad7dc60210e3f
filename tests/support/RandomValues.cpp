#include "tests/support/RandomValues.h"

#include <cstddef>
#include <iterator>
#include <limits>

namespace korva::test {

namespace {

constexpr const char* pieces[] = {
    " ",
    "\t",
    "\n",
    "\r",
    "\r\n",
    "  ",
    "plain",
    "a longer run of plain words",
    "<",
    ">",
    "&",
    "&amp;",
    "&#65;",
    "\"quoted\"",
    "'quoted'",
    "]]>",
    "<![CDATA[x]]>",
    "<!-- -->",
    "<?pi?>",
    "</bus:value>",
    "xsi:nil=\"true\"",
    "0",
    "-1.50 ",
    "cid:abc",
    "\x7F",
    "\xC2\x80",            // U+0080, the least of two bytes
    "\xC2\x85",            // U+0085, a line end to XML 1.1 only
    "\xC2\xA0",            // U+00A0, a blank to others
    "Gr\xC3\xBC\xC3\x9F",  // Latin
    "\xDF\xBF",            // U+07FF
    "\xE0\xA0\x80",        // U+0800, the least of three bytes
    "\xE2\x80\xA8",        // U+2028, a line end to XML 1.1 only
    "\xE6\x97\xA5\xE6\x9C\xAC",
    "\xED\x9F\xBF",      // U+D7FF, below the surrogates
    "\xEE\x80\x80",      // U+E000, above them
    "\xEF\xBF\xBD",      // U+FFFD, the last that XML allows of three bytes
    "\xF0\x90\x80\x80",  // U+10000, the least of four bytes
    "\xF0\x9F\x98\x80",
    "\xF4\x8F\xBF\xBD",  // U+10FFFD
};

/// Longer than what a reader keeps in its own store for short texts.
constexpr std::size_t longText = 5000;

}  // namespace

std::string RandomValues::text(const std::string&) {
    std::string result;
    for (std::size_t count = choose(8); count != 0; --count)
        result += pieces[choose(std::size(pieces))];
    if (choose(64) == 0) result.append(longText, 'x');
    return result;
}

std::string RandomValues::bytes(const std::string&) {
    std::string result(choose(8) == 0 ? choose(longText) : choose(8), '\0');
    for (char& byte : result)
        byte = static_cast<char>(choose(4) == 0 ? 0 : choose(256));
    return result;
}

int RandomValues::number() {
    constexpr int edges[] = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 0,
                             -1};
    if (choose(4) == 0) return edges[choose(std::size(edges))];
    return static_cast<int>(m_engine());
}

float RandomValues::fraction() {
    constexpr float edges[] = {std::numeric_limits<float>::max(),
                               std::numeric_limits<float>::lowest(),
                               0.0F,
                               -0.0F,
                               16777216.0F,
                               -8388607.5F};
    if (choose(4) == 0) return edges[choose(std::size(edges))];
    constexpr int span = 1 << 20;
    return 0.25F * static_cast<float>(static_cast<int>(choose(2 * span)) - span);
}

std::size_t RandomValues::arraySize() {
    constexpr std::size_t sizes[] = {0, 1, 3};
    return sizes[choose(std::size(sizes))];
}

}  // namespace korva::test
