/// How what has a CRC-32 is found in the tables that the schema compiler makes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace types {

/// How many of the top bits of a type's identity its table is indexed by.
inline constexpr unsigned typeIndexBits = 10;
/// The same of a word.
inline constexpr unsigned wordIndexBits = 12;

/// The size of an index: where each value of the top bits begins, and the end.
constexpr std::size_t indexSize(unsigned bits) {
    return (std::size_t{1} << bits) + 1;
}

/// The value of the top bits.
constexpr std::uint32_t topBits(std::uint32_t crc, unsigned bits) {
    return crc >> (32U - bits);
}

/// No position.
inline constexpr std::size_t notFound = static_cast<std::size_t>(-1);

/// Looks a CRC up among rows that ascend by it.
/// @param index for each value of the CRC's top bits the first position, and behind them the end
/// @param crcAt gives the CRC of the row at a position
/// @return the position of the row, or notFound
template <unsigned bits, class CrcAt>
std::size_t findIndexed(const std::uint16_t* index, std::uint32_t crc, CrcAt crcAt) {
    const std::uint32_t bucket = topBits(crc, bits);
    const std::size_t end = index[bucket + 1];
    for (std::size_t position = index[bucket]; position != end; ++position)
        if (crcAt(position) == crc) return position;
    return notFound;
}

/// Looks a field up by the CRC of its name, in a table whose entries are positions plus one. A
/// field stands at the lowest bits of its CRC, or at the next entry that is free, the first one
/// being next to the last; 0 is free, and there is always a free one.
/// @param mask the number of entries but one
template <class Row>
const Row* findHashed(const Row* rows, const std::uint16_t* entries, std::uint32_t mask,
                      std::uint32_t crc) {
    for (std::uint32_t i = crc;; ++i) {
        const std::uint16_t entry = entries[i & mask];
        if (entry == 0) return nullptr;
        if (rows[entry - 1].crc == crc) return rows + (entry - 1);
    }
}

/// Enters a position into such a table.
template <class Entries>
void enterHashed(Entries& entries, std::uint32_t crc, std::size_t position) {
    const std::size_t mask = entries.size() - 1;
    std::size_t i = crc;
    while (entries[i & mask] != 0)
        ++i;
    entries[i & mask] = position + 1;
}

}  // namespace types
