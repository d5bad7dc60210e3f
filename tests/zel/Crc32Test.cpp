#include <zel/ZELUtCrc32.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace {

std::uint32_t byZlib(std::string_view text, std::uint32_t seed) {
    return static_cast<std::uint32_t>(
        ::crc32(seed, reinterpret_cast<const Bytef*>(text.data()), static_cast<uInt>(text.size())));
}

// Known values of the schema's names, computed by the compiler.
static_assert(ZELUtCrc32::crc32("schedule") == 0x5A3811FBu);
static_assert(ZELUtCrc32::crc32(std::string_view("dailyPeriod")) == 0xC80D96B0u);
static_assert(ZELUtCrc32::crc32("fatal", 0) == 0x38D0528Fu);
static_assert(ZELUtCrc32::crc32("") == 0u);

TEST(Crc32, EqualsZlibForEveryLength) {
    std::mt19937 random(1);
    std::string text;
    for (int length = 0; length < 300; ++length) {
        EXPECT_EQ(ZELUtCrc32::crc32(std::string_view(text)), byZlib(text, 0)) << length;
        EXPECT_EQ(ZELUtCrc32::crc32(text.data(), text.size(), 0x12345678u),
                  byZlib(text, 0x12345678u))
            << length;
        text += static_cast<char>(random());
    }
}

TEST(Crc32, SeedContinuesAnEarlierOne) {
    const std::string text = "propertyBagOfTheSchema";
    for (std::size_t cut = 0; cut <= text.size(); ++cut) {
        const std::uint32_t head = ZELUtCrc32::crc32(std::string_view(text).substr(0, cut));
        EXPECT_EQ(ZELUtCrc32::crc32(text.c_str() + cut, head), byZlib(text, 0));
    }
}

TEST(Crc32, TextEndsAtItsNul) {
    EXPECT_EQ(ZELUtCrc32::crc32("abc\0def", 0), byZlib("abc", 0));
    EXPECT_EQ(ZELUtCrc32::crc32("abc\0def", 7, 0), byZlib(std::string_view("abc\0def", 7), 0));
}

TEST(Crc32, NullCountsAsEmpty) {
    const char* none = nullptr;
    EXPECT_EQ(ZELUtCrc32::crc32(none, 0), 0u);
    EXPECT_EQ(ZELUtCrc32::crc32(none, 77), 77u);
}

TEST(Crc32, DoesNotDependOnAlignment) {
    alignas(16) char bytes[64];
    for (std::size_t offset = 0; offset < 16; ++offset) {
        const std::string text = "0123456789abcdefghijklmnopqrstuv";
        text.copy(bytes + offset, text.size());
        EXPECT_EQ(ZELUtCrc32::crc32(bytes + offset, text.size(), 0), byZlib(text, 0));
    }
}

}  // namespace
