/// The CRC-32 that identifies the schema's names: zlib's polynomial, at run time or compile time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace zel::detail {

/// `crc32Tables[k][b]` is what byte `b` adds to the CRC when `k` more bytes follow it.
using Crc32Tables = std::array<std::array<std::uint32_t, 256>, 8>;

constexpr Crc32Tables makeCrc32Tables() noexcept {
    Crc32Tables tables{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t value = byte;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value >> 1) ^ ((value & 1u) != 0 ? 0xEDB88320u : 0u);
        }
        tables[0][byte] = value;
    }
    for (std::size_t k = 1; k < tables.size(); ++k) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t before = tables[k - 1][byte];
            tables[k][byte] = (before >> 8) ^ tables[0][before & 0xFFu];
        }
    }
    return tables;
}

inline constexpr Crc32Tables crc32Tables = makeCrc32Tables();

/// Four bytes as a little-endian word; compilers make one load of it.
constexpr std::uint32_t littleEndian32(const char* bytes) noexcept {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[0])) |
           static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[1])) << 8 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[2])) << 16 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[3])) << 24;
}

}  // namespace zel::detail

class ZELUtCrc32 {
public:
    /// Of `length` bytes. `seed` is 0, or the CRC of what stands before them.
    static constexpr std::uint32_t crc32(const char* bytes, std::size_t length,
                                         std::uint32_t seed) noexcept {
        const auto& tables = zel::detail::crc32Tables;
        std::uint32_t crc = ~seed;
        // Eight bytes at a time, as their lookups don't wait for each other.
        for (; length >= 8; bytes += 8, length -= 8) {
            const std::uint32_t low = zel::detail::littleEndian32(bytes) ^ crc;
            const std::uint32_t high = zel::detail::littleEndian32(bytes + 4);
            crc = tables[7][low & 0xFFu] ^ tables[6][(low >> 8) & 0xFFu] ^
                  tables[5][(low >> 16) & 0xFFu] ^ tables[4][low >> 24] ^ tables[3][high & 0xFFu] ^
                  tables[2][(high >> 8) & 0xFFu] ^ tables[1][(high >> 16) & 0xFFu] ^
                  tables[0][high >> 24];
        }
        for (; length != 0; ++bytes, --length) {
            crc = (crc >> 8) ^ tables[0][(crc ^ static_cast<unsigned char>(*bytes)) & 0xFFu];
        }
        return ~crc;
    }

    static constexpr std::uint32_t crc32(std::string_view text, std::uint32_t seed = 0) noexcept {
        return crc32(text.data(), text.size(), seed);
    }

    /// Of the bytes before the NUL. Null counts as the empty text, whose CRC is the seed.
    static constexpr std::uint32_t crc32(const char* text, std::uint32_t seed) noexcept {
        return text ? crc32(std::string_view(text), seed) : seed;
    }
};
