// What is entered into the tables is found there, and nothing else is.
#include "types/Lookup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

namespace {

struct Row {
    std::uint32_t crc;
};

std::vector<std::uint16_t> tableOf(const std::vector<Row>& rows, std::size_t size) {
    std::vector<std::uint16_t> entries(size);
    for (std::size_t position = 0; position != rows.size(); ++position)
        types::enterHashed(entries, rows[position].crc, position);
    return entries;
}

TEST(HashedLookup, FindsEachRowWhereAllWantOneEntry) {
    const std::vector<Row> rows = {{0x10}, {0x20}, {0x30}};
    const std::vector<std::uint16_t> entries = tableOf(rows, 8);
    EXPECT_EQ(entries, (std::vector<std::uint16_t>{1, 2, 3, 0, 0, 0, 0, 0}));
    for (const Row& row : rows)
        EXPECT_EQ(types::findHashed(rows.data(), entries.data(), 7, row.crc), &row);
    EXPECT_EQ(types::findHashed(rows.data(), entries.data(), 7, 0x40), nullptr);
}

TEST(HashedLookup, GoesOnAtTheFirstEntryBehindTheLast) {
    const std::vector<Row> rows = {{0x17}, {0x27}};
    const std::vector<std::uint16_t> entries = tableOf(rows, 8);
    EXPECT_EQ(entries, (std::vector<std::uint16_t>{2, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(types::findHashed(rows.data(), entries.data(), 7, 0x27), &rows[1]);
}

TEST(HashedLookup, FindsNothingInATableWithoutRows) {
    const std::uint16_t free = 0;
    EXPECT_EQ(types::findHashed<Row>(nullptr, &free, 0, 0xC80D96B0), nullptr);
}

TEST(IndexedLookup, FindsEachOfManyAndNoOther) {
    constexpr unsigned bits = 4;
    std::mt19937 random(1);
    std::vector<std::uint32_t> crcs(100);
    std::generate(crcs.begin(), crcs.end(), [&] { return random() & ~1U; });
    crcs.front() = 0;
    crcs.back() = 0xFFFFFFFE;
    std::sort(crcs.begin(), crcs.end());
    std::vector<std::uint16_t> index(types::indexSize(bits));
    for (std::uint32_t value = 0; value != index.size(); ++value)
        index[value] = static_cast<std::uint16_t>(
            std::partition_point(
                crcs.begin(), crcs.end(),
                [value](std::uint32_t crc) { return types::topBits(crc, bits) < value; }) -
            crcs.begin());
    const auto find = [&](std::uint32_t crc) {
        return types::findIndexed<bits>(index.data(), crc, [&](std::size_t i) { return crcs[i]; });
    };
    for (const std::uint32_t crc : crcs) {
        const std::size_t position = find(crc);
        ASSERT_LT(position, crcs.size());
        EXPECT_EQ(crcs[position], crc);
        EXPECT_EQ(find(crc | 1U), types::notFound);
    }
}

}  // namespace
