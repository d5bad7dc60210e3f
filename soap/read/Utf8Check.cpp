#include "soap/read/Utf8Check.h"

#include "soap/Utf8.h"

#include <cstdint>
#include <cstring>

namespace korva {

namespace {

constexpr std::uint64_t highBits = 0x8080808080808080U;
constexpr std::uint64_t lowBits = 0x0101010101010101U;

/// Whether all eight bytes are ASCII and none is NUL.
bool areAscii(const char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    // The borrow of a NUL sets the high bit of its byte.
    return ((word | (word - lowBits)) & highBits) == 0;
}

}  // namespace

std::size_t utf8Prefix(std::string_view text, bool& isCut) {
    isCut = false;
    const auto byteAt = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    std::size_t i = 0;
    while (i != text.size()) {
        while (text.size() - i >= 8 && areAscii(text.data() + i))
            i += 8;
        if (i == text.size()) break;
        const unsigned char lead = byteAt(i);
        if (lead < 0x80) {
            if (lead == 0) return i;
            ++i;
            continue;
        }
        const Utf8Form form = utf8FormOf(lead);
        if (form.length == 0) return i;
        for (std::size_t k = 1; k != form.length; ++k) {
            if (i + k == text.size()) {
                isCut = true;
                return i;
            }
            const unsigned char low = k == 1 ? form.low : 0x80;
            const unsigned char high = k == 1 ? form.high : 0xBF;
            if (byteAt(i + k) < low || byteAt(i + k) > high) return i;
        }
        i += form.length;
    }
    return i;
}

}  // namespace korva
