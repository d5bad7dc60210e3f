#include "platform/zel/Utf.h"

#include <cstdint>

namespace zel::utf {

namespace {

/// Blocks are small and their loops plain, so that compilers make vector code of them.
template <std::size_t size>
bool narrowBlock(const char16_t* text, char* out) noexcept {
    char16_t any = 0;
    for (std::size_t i = 0; i < size; ++i)
        any |= text[i];
    if (any >= 0x80) return false;
    for (std::size_t i = 0; i < size; ++i)
        out[i] = static_cast<char>(text[i]);
    return true;
}

template <std::size_t size>
bool widenBlock(const char* text, char16_t* out) noexcept {
    unsigned char any = 0;
    for (std::size_t i = 0; i < size; ++i)
        any |= static_cast<unsigned char>(text[i]);
    if (any >= 0x80) return false;
    for (std::size_t i = 0; i < size; ++i)
        out[i] = static_cast<unsigned char>(text[i]);
    return true;
}

char* encodePair(char16_t high, char16_t low, char* out) noexcept {
    const std::uint32_t point = 0x10000u + ((high & 0x3FFu) << 10) + (low & 0x3FFu);
    *out++ = static_cast<char>(0xF0 | (point >> 18));
    *out++ = static_cast<char>(0x80 | ((point >> 12) & 0x3F));
    *out++ = static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    *out++ = static_cast<char>(0x80 | (point & 0x3F));
    return out;
}

bool isContinuation(const unsigned char* at, const unsigned char* end) noexcept {
    return at < end && (*at & 0xC0) == 0x80;
}

}  // namespace

std::uint32_t nextPoint(const unsigned char*& at, const unsigned char* end) noexcept {
    const std::uint32_t lead = *at;
    if (lead < 0x80) {
        ++at;
        return lead;
    }
    if (lead >= 0xC2 && lead < 0xE0 && isContinuation(at + 1, end)) {
        const std::uint32_t point = ((lead & 0x1F) << 6) | (at[1] & 0x3Fu);
        at += 2;
        return point;
    }
    if ((lead & 0xF0) == 0xE0 && isContinuation(at + 1, end) && isContinuation(at + 2, end)) {
        const std::uint32_t point =
            ((lead & 0x0F) << 12) | ((at[1] & 0x3Fu) << 6) | (at[2] & 0x3Fu);
        if (point >= 0x800 && (point & 0xF800) != 0xD800) {
            at += 3;
            return point;
        }
    }
    if (lead >= 0xF0 && lead < 0xF5 && isContinuation(at + 1, end) && isContinuation(at + 2, end) &&
        isContinuation(at + 3, end)) {
        const std::uint32_t point = ((lead & 0x07) << 18) | ((at[1] & 0x3Fu) << 12) |
                                    ((at[2] & 0x3Fu) << 6) | (at[3] & 0x3Fu);
        if (point >= 0x10000 && point <= 0x10FFFF) {
            at += 4;
            return point;
        }
    }
    ++at;
    return replacement;
}

std::size_t narrowAscii(const char16_t* text, std::size_t length, char* out) noexcept {
    std::size_t i = 0;
    while (length - i >= 16 && narrowBlock<16>(text + i, out + i))
        i += 16;
    if (length - i >= 8 && narrowBlock<8>(text + i, out + i)) i += 8;
    for (; i < length && text[i] < 0x80; ++i)
        out[i] = static_cast<char>(text[i]);
    return i;
}

std::size_t widenAscii(const char* text, std::size_t length, char16_t* out) noexcept {
    std::size_t i = 0;
    while (length - i >= 16 && widenBlock<16>(text + i, out + i))
        i += 16;
    if (length - i >= 8 && widenBlock<8>(text + i, out + i)) i += 8;
    for (; i < length && static_cast<unsigned char>(text[i]) < 0x80; ++i) {
        out[i] = static_cast<unsigned char>(text[i]);
    }
    return i;
}

std::size_t encodedBound(const char16_t* text, std::size_t length, char16_t pending) noexcept {
    std::size_t bound = length + (pending != 0 ? 3 : 0);
    for (std::size_t i = 0; i < length; ++i) {
        bound +=
            static_cast<std::size_t>(text[i] >= 0x80) + static_cast<std::size_t>(text[i] >= 0x800);
    }
    return bound;
}

std::size_t encodedLength(const char16_t* text, std::size_t length, char16_t pending) noexcept {
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const char16_t unit = text[i];
        if (isLowSurrogate(unit) && pending != 0) {
            bytes += 4;
            pending = 0;
            continue;
        }
        if (pending != 0) bytes += 3;
        pending = isHighSurrogate(unit) ? unit : char16_t{0};
        if (pending == 0) bytes += unit < 0x80 ? 1 : unit < 0x800 ? 2 : 3;
    }
    return bytes;
}

char* encode(const char16_t* text, std::size_t length, char16_t& pending, char* out) noexcept {
    const char16_t* end = text + length;
    while (text != end) {
        const char16_t unit = *text;
        if (pending != 0) {
            if (isLowSurrogate(unit)) {
                out = encodePair(pending, unit, out);
                ++text;
            } else {
                out = encodeReplacement(out);
            }
            pending = 0;
        } else if (unit < 0x80) {
            const std::size_t count = narrowAscii(text, static_cast<std::size_t>(end - text), out);
            text += count;
            out += count;
        } else if (unit < 0x800) {
            *out++ = static_cast<char>(0xC0 | (unit >> 6));
            *out++ = static_cast<char>(0x80 | (unit & 0x3F));
            ++text;
        } else if (isHighSurrogate(unit)) {
            pending = unit;
            ++text;
        } else if (isLowSurrogate(unit)) {
            out = encodeReplacement(out);
            ++text;
        } else {
            *out++ = static_cast<char>(0xE0 | (unit >> 12));
            *out++ = static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
            *out++ = static_cast<char>(0x80 | (unit & 0x3F));
            ++text;
        }
    }
    return out;
}

char* encodeReplacement(char* out) noexcept {
    *out++ = static_cast<char>(0xEF);
    *out++ = static_cast<char>(0xBF);
    *out++ = static_cast<char>(0xBD);
    return out;
}

std::size_t decodedLength(const char* text, std::size_t length) noexcept {
    const auto* at = reinterpret_cast<const unsigned char*>(text);
    const auto* end = at + length;
    std::size_t units = 0;
    while (at != end) {
        units += nextPoint(at, end) >= 0x10000 ? 2 : 1;
    }
    return units;
}

char16_t* decode(const char* text, std::size_t length, char16_t* out) noexcept {
    const auto* at = reinterpret_cast<const unsigned char*>(text);
    const auto* end = at + length;
    while (at != end) {
        if (*at < 0x80) {
            const std::size_t count = widenAscii(reinterpret_cast<const char*>(at),
                                                 static_cast<std::size_t>(end - at), out);
            at += count;
            out += count;
            continue;
        }
        const std::uint32_t point = nextPoint(at, end);
        if (point >= 0x10000) {
            *out++ = static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
            *out++ = static_cast<char16_t>(0xDC00 + (point & 0x3FF));
        } else {
            *out++ = static_cast<char16_t>(point);
        }
    }
    return out;
}

}  // namespace zel::utf
