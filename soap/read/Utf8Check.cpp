#include "soap/read/Utf8Check.h"

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

/// The bytes of the character that `lead` starts, and the lowest and highest second byte; 0 bytes
/// if it starts none.
struct Form {
    unsigned length;
    unsigned char low;
    unsigned char high;
};

Form formOf(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) return {2, 0x80, 0xBF};
    if (lead == 0xE0) return {3, 0xA0, 0xBF};
    if (lead == 0xED) return {3, 0x80, 0x9F};
    if (lead >= 0xE1 && lead <= 0xEF) return {3, 0x80, 0xBF};
    if (lead == 0xF0) return {4, 0x90, 0xBF};
    if (lead >= 0xF1 && lead <= 0xF3) return {4, 0x80, 0xBF};
    if (lead == 0xF4) return {4, 0x80, 0x8F};
    return {0, 0, 0};
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
        const Form form = formOf(lead);
        if (form.length == 0) return i;
        for (unsigned k = 1; k != form.length; ++k) {
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
