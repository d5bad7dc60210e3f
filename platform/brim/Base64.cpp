#include "platform/brim/Base64.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace brim::base64 {

namespace {

constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Two characters for each twelve bits.
using EncodeTable = std::array<std::array<char, 2>, 4096>;

constexpr EncodeTable makeEncodeTable() noexcept {
    EncodeTable table{};
    for (std::size_t bits = 0; bits < table.size(); ++bits) {
        table[bits] = {alphabet[bits >> 6], alphabet[bits & 63]};
    }
    return table;
}

alignas(64) constexpr EncodeTable encodeTable = makeEncodeTable();

constexpr std::array<std::uint8_t, 256> makeCharacterTable() noexcept {
    std::array<std::uint8_t, 256> table{};
    for (auto& entry : table)
        entry = noBase64;
    for (std::uint8_t value = 0; value < 64; ++value) {
        table[static_cast<unsigned char>(alphabet[value])] = value;
    }
    for (const char character : {' ', '\t', '\n', '\v', '\f', '\r'}) {
        table[static_cast<unsigned char>(character)] = whiteSpace;
    }
    return table;
}

constexpr std::array<std::uint8_t, 256> characterTable = makeCharacterTable();

/// What the character at each place of a group adds to a word whose first three bytes in memory are
/// the decoded ones. A character that has no place in a group sets a bit in the fourth.
using DecodeTables = std::array<std::array<std::uint32_t, 256>, 4>;

constexpr std::uint32_t inMemoryOrder(std::uint32_t bytes) noexcept {
    if constexpr (std::endian::native == std::endian::big) return bytes << 8;
    return (bytes >> 16) | (bytes & 0xFF00u) | ((bytes & 0xFFu) << 16);
}

constexpr std::uint32_t noGroup = std::endian::native == std::endian::big ? 1u : 1u << 24;

constexpr DecodeTables makeDecodeTables() noexcept {
    DecodeTables tables{};
    for (std::size_t place = 0; place < 4; ++place) {
        for (std::size_t character = 0; character < 256; ++character) {
            const std::uint32_t value = characterTable[character];
            tables[place][character] =
                value < 64 ? inMemoryOrder(value << (18 - 6 * place)) : noGroup;
        }
    }
    return tables;
}

alignas(64) constexpr DecodeTables decodeTables = makeDecodeTables();

/// Eight bytes, the first one highest; compilers make a load and a byte swap of it.
std::uint64_t bigEndian64(const char* bytes) noexcept {
    std::uint64_t value = 0;
    for (int i = 0; i < 8; ++i)
        value = (value << 8) | static_cast<unsigned char>(bytes[i]);
    return value;
}

void encodeTwelveBits(std::size_t bits, char* out) noexcept {
    std::memcpy(out, encodeTable[bits & 0xFFF].data(), 2);
}

std::uint32_t decodeGroup(const char* in) noexcept {
    return decodeTables[0][static_cast<unsigned char>(in[0])] |
           decodeTables[1][static_cast<unsigned char>(in[1])] |
           decodeTables[2][static_cast<unsigned char>(in[2])] |
           decodeTables[3][static_cast<unsigned char>(in[3])];
}

}  // namespace

char* encodeGroups(const char* bytes, std::size_t length, char* out) noexcept {
    // Six bytes at a time; the load takes two more.
    for (; length >= 8; bytes += 6, length -= 6, out += 8) {
        const std::uint64_t bits = bigEndian64(bytes);
        encodeTwelveBits(bits >> 52, out);
        encodeTwelveBits(bits >> 40, out + 2);
        encodeTwelveBits(bits >> 28, out + 4);
        encodeTwelveBits(bits >> 16, out + 6);
    }
    for (; length >= 3; bytes += 3, length -= 3, out += 4) {
        const unsigned bits = static_cast<unsigned>(static_cast<unsigned char>(bytes[0])) << 16 |
                              static_cast<unsigned>(static_cast<unsigned char>(bytes[1])) << 8 |
                              static_cast<unsigned char>(bytes[2]);
        encodeTwelveBits(bits >> 12, out);
        encodeTwelveBits(bits, out + 2);
    }
    return out;
}

void encodeLast(const unsigned char* bytes, std::size_t length, char* out) noexcept {
    const unsigned second = length == 2 ? bytes[1] : 0u;
    const unsigned bits = static_cast<unsigned>(bytes[0]) << 16 | second << 8;
    encodeTwelveBits(bits >> 12, out);
    out[2] = length == 2 ? alphabet[(bits >> 6) & 63] : '=';
    out[3] = '=';
}

Progress decodeGroups(const char* in, const char* inEnd, char* out, char* outEnd) noexcept {
    // A word of four bytes is stored for three, so the last group is left to the loop below.
    while (inEnd - in >= 4 && outEnd - out >= 4) {
        const std::uint32_t group = decodeGroup(in);
        if ((group & noGroup) != 0) return {in, out};
        std::memcpy(out, &group, 4);
        in += 4;
        out += 3;
    }
    if (inEnd - in >= 4 && outEnd - out == 3) {
        const std::uint32_t group = decodeGroup(in);
        if ((group & noGroup) != 0) return {in, out};
        std::memcpy(out, &group, 3);
        in += 4;
        out += 3;
    }
    return {in, out};
}

unsigned decodeCharacter(unsigned char character) noexcept {
    return characterTable[character];
}

}  // namespace brim::base64
