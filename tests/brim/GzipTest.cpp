#include "tests/brim/Streams.h"

#include <brim/BRIMGZIPInputStream.h>
#include <brim/BRIMMemoryInputStream.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <random>
#include <string>
#include <vector>

namespace {

using korva::test::PiecewiseInput;
using korva::test::readAll;
using korva::test::streamErrorOf;

std::string compressed(const std::string& bytes, int windowBits = MAX_WBITS + 16) {
    z_stream zip{};
    EXPECT_EQ(deflateInit2(&zip, 6, Z_DEFLATED, windowBits, 8, Z_DEFAULT_STRATEGY), Z_OK);
    std::string result(deflateBound(&zip, static_cast<uLong>(bytes.size())) + 64, '\0');
    zip.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    zip.avail_in = static_cast<uInt>(bytes.size());
    zip.next_out = reinterpret_cast<Bytef*>(result.data());
    zip.avail_out = static_cast<uInt>(result.size());
    EXPECT_EQ(deflate(&zip, Z_FINISH), Z_STREAM_END);
    result.resize(zip.total_out);
    deflateEnd(&zip);
    return result;
}

std::string expanded(const std::string& data, std::size_t piece = 100000,
                     std::size_t size = 16384) {
    PiecewiseInput in(data, piece, -1);
    BRIMGZIPInputStream gzip(in);
    return readAll(gzip, size);
}

std::string sample() {
    std::mt19937 random(3);
    std::string text;
    while (text.size() < 200000)
        text += std::to_string(random() % 1000) + " words of text\n";
    return text;
}

TEST(Gzip, ExpandsInEveryPiece) {
    const std::string text = sample();
    const std::string data = compressed(text);
    for (const std::size_t piece : {1ul, 100ul, 1000000ul}) {
        for (const std::size_t size : {7ul, 16384ul, 1000000ul}) {
            ASSERT_EQ(expanded(data, piece, size), text) << piece << " " << size;
        }
    }
}

TEST(Gzip, ExpandsNothingToNothing) {
    EXPECT_EQ(expanded(compressed("")), "");
    EXPECT_EQ(expanded(compressed(""), 1), "");
}

TEST(Gzip, EndIsGivenAgainAndAgain) {
    const std::string data = compressed("abc");
    BRIMMemoryInputStream in(data.data(), data.size());
    BRIMGZIPInputStream gzip(in);
    char bytes[16];
    EXPECT_EQ(gzip.read(bytes, sizeof bytes), 3);
    EXPECT_EQ(gzip.read(bytes, sizeof bytes), 0);
    EXPECT_EQ(gzip.read(bytes, sizeof bytes), 0);
}

TEST(Gzip, MembersFollowEachOther) {
    const std::string data = compressed("first") + compressed("") + compressed("second");
    for (const std::size_t piece : {1ul, 5ul, 1000ul}) {
        EXPECT_EQ(expanded(data, piece), "firstsecond");
    }
}

TEST(Gzip, EveryShorteningIsRefused) {
    const std::string data = compressed("some text to be cut, some text to be cut");
    for (std::size_t length = 0; length < data.size(); ++length) {
        for (const std::size_t piece : {1ul, 1000ul}) {
            ASSERT_EQ(streamErrorOf([&] { expanded(data.substr(0, length), piece); }),
                      "gzip: the data is cut short")
                << length;
        }
    }
    const std::string two = data + data;
    for (std::size_t length = data.size() + 1; length < two.size(); ++length) {
        ASSERT_EQ(streamErrorOf([&] { expanded(two.substr(0, length)); }),
                  "gzip: the data is cut short")
            << length;
    }
}

TEST(Gzip, DamagedDataIsRefused) {
    const std::string text = sample().substr(0, 2000);
    const std::string data = compressed(text);
    std::size_t refused = 0;
    for (std::size_t place = 0; place < data.size(); ++place) {
        std::string damaged = data;
        damaged[place] = static_cast<char>(damaged[place] ^ 0x10);
        std::string result;
        if (streamErrorOf([&] { result = expanded(damaged); }) != "no error") {
            ++refused;
        } else {
            // Not every bit carries data, but what comes out is never wrong.
            EXPECT_EQ(result, text) << place;
        }
    }
    EXPECT_GT(refused, data.size() - 16);
}

TEST(Gzip, GarbageBehindTheDataIsRefused) {
    EXPECT_NE(streamErrorOf([&] { expanded(compressed("abc") + "garbage"); }), "no error");
    EXPECT_NE(streamErrorOf([&] { expanded(compressed("abc") + std::string(1, '\0')); }),
              "no error");
    EXPECT_NE(streamErrorOf([&] { expanded(compressed("abc") + "garbage", 1); }), "no error");
}

TEST(Gzip, OtherFormsAreRefused) {
    EXPECT_NE(streamErrorOf([&] { expanded("plain text, not compressed"); }), "no error");
    EXPECT_NE(streamErrorOf([&] { expanded(compressed("zlib's own header", MAX_WBITS)); }),
              "no error");
}

TEST(Gzip, GivesWhatCameBeforeAFailureThenRepeatsTheFailure) {
    const std::string data = compressed("abc") + "garbage";
    BRIMMemoryInputStream in(data.data(), data.size());
    BRIMGZIPInputStream gzip(in);
    char bytes[16];
    EXPECT_EQ(gzip.read(bytes, sizeof bytes), 3);
    EXPECT_THROW(gzip.read(bytes, sizeof bytes), BRIMStreamError);
    EXPECT_THROW(gzip.read(bytes, sizeof bytes), BRIMStreamError);
}

TEST(Gzip, FailureOfTheStreamPassesUnchanged) {
    PiecewiseInput in(compressed("abc").substr(0, 12), 100);
    in.failAtEnd([] { throw 7; });
    BRIMGZIPInputStream gzip(in);
    EXPECT_THROW(readAll(gzip), int);
}

}  // namespace
