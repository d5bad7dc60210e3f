#include "tests/brim/Streams.h"
#include "tests/support/AllocationFailure.h"

#include <brim/BRIMGZIPInputStream.h>
#include <brim/BRIMGZIPOutputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELOutOfMemoryError.h>

#include <gtest/gtest.h>
#include <zlib.h>

#include <random>
#include <string>

namespace {

using korva::test::readAll;
using korva::test::RecordingOutput;
using korva::test::streamErrorOf;

std::string sample(std::size_t size) {
    std::mt19937 random(7);
    std::string text;
    while (text.size() < size)
        text += std::to_string(random() % 5000) + std::string(1, '\0') + " words of text\n";
    text.resize(size);
    return text;
}

std::string compressed(const std::string& text, std::size_t piece, int level = -1) {
    BRIMMemoryOutputStream out;
    BRIMGZIPOutputStream gzip(out, level);
    for (std::size_t at = 0; at < text.size(); at += piece)
        gzip.write(text.data() + at, std::min(piece, text.size() - at));
    gzip.close();
    return {out.str(), out.pcount()};
}

/// By zlib itself.
std::string expanded(const std::string& data) {
    z_stream zip{};
    EXPECT_EQ(inflateInit2(&zip, MAX_WBITS + 16), Z_OK);
    std::string result(1000000, '\0');
    zip.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    zip.avail_in = static_cast<uInt>(data.size());
    zip.next_out = reinterpret_cast<Bytef*>(result.data());
    zip.avail_out = static_cast<uInt>(result.size());
    EXPECT_EQ(inflate(&zip, Z_FINISH), Z_STREAM_END);
    EXPECT_EQ(zip.avail_in, 0u);
    result.resize(zip.total_out);
    inflateEnd(&zip);
    return result;
}

TEST(GzipOutput, WhatItWritesExpandsToWhatWasWritten) {
    for (const std::size_t size : {0ul, 1ul, 16384ul, 300000ul}) {
        const std::string text = sample(size);
        for (const std::size_t piece : {1000ul, 1000000ul})
            EXPECT_EQ(expanded(compressed(text, piece)), text) << size << " " << piece;
    }
    EXPECT_EQ(expanded(compressed(sample(500), 1)), sample(500));
}

TEST(GzipOutput, LevelsTradeSize) {
    const std::string text = sample(100000);
    const std::size_t stored = compressed(text, 1000, 0).size();
    const std::size_t usual = compressed(text, 1000).size();
    EXPECT_GT(stored, text.size());
    EXPECT_LT(usual, text.size() / 2);
    EXPECT_LE(compressed(text, 1000, 9).size(), usual);
    EXPECT_EQ(compressed(text, 1000, 10), compressed(text, 1000));
}

TEST(GzipOutput, CloseEndsTheMemberOnceAndLeavesTheStreamOpen) {
    RecordingOutput out;
    BRIMGZIPOutputStream gzip(out);
    gzip.write("abc", 3);
    gzip.close();
    const std::string data = out.all();
    gzip.close();
    EXPECT_EQ(out.all(), data);
    EXPECT_EQ(out.closes(), 0);
    EXPECT_EQ(expanded(data), "abc");
    EXPECT_THROW(gzip.write("d", 1), ZELAssertError);
}

TEST(GzipOutput, WithoutCloseTheDataIsNotComplete) {
    BRIMMemoryOutputStream out;
    {
        BRIMGZIPOutputStream gzip(out);
        const std::string text = sample(100000);
        gzip.write(text.data(), text.size());
    }
    BRIMMemoryInputStream in(out.str(), out.pcount());
    BRIMGZIPInputStream gzip(in);
    EXPECT_EQ(streamErrorOf([&] { readAll(gzip); }), "gzip: the data is cut short");
}

TEST(GzipOutput, FlushPassesOnAllThatWasWritten) {
    RecordingOutput out;
    BRIMGZIPOutputStream gzip(out);
    gzip.write("abc", 3);
    gzip.flush();
    EXPECT_EQ(out.flushes(), 1);
    const std::string data = out.all();
    BRIMMemoryInputStream in(data.data(), data.size());
    BRIMGZIPInputStream expander(in);
    char bytes[8];
    EXPECT_EQ(expander.read(bytes, sizeof bytes), 3);
    gzip.close();
    gzip.flush();
    EXPECT_EQ(out.flushes(), 2);
    EXPECT_EQ(expanded(out.all()), "abc");
}

TEST(GzipOutput, AFailureOfTheStreamPassesThrough) {
    RecordingOutput out(0);
    BRIMGZIPOutputStream gzip(out);
    EXPECT_EQ(streamErrorOf([&] {
                  gzip.write("abc", 3);
                  gzip.close();
              }),
              "the stream is full");
}

TEST(GzipOutput, MissingMemoryIsToldByTheConstructorAlone) {
    const std::string text = sample(100000);
    BRIMMemoryOutputStream out(200000);
    out.write("", 1);
    int failures = 0;
    const std::size_t live = korva::test::liveAllocations();
    korva::test::failEachAllocation([&] {
        try {
            BRIMGZIPOutputStream gzip(out);
            const korva::test::NoMemory none;
            out.reset();
            gzip.write(text.data(), text.size());
            gzip.close();
        } catch (const ZELOutOfMemoryError&) {
            ++failures;
        }
    });
    EXPECT_GE(failures, 5);
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

TEST(GzipCounting, CountsWhatCameInAndWhatWentOut) {
    const std::string text = sample(100000);
    const std::string first = compressed(text, 1000);
    const std::string data = first + compressed("second", 6);
    for (const std::size_t piece : {1ul, 1000ul, 1000000ul}) {
        korva::test::PiecewiseInput in(data, piece);
        BRIMGZIPInputStream gzip(in);
        EXPECT_EQ(gzip.compressedBytes(), 0u);
        EXPECT_EQ(gzip.expandedBytes(), 0u);
        std::string bytes(50000, '\0');
        unsigned long long total = 0;
        while (total < text.size()) {
            total += static_cast<unsigned long long>(gzip.read(
                bytes.data(), std::min<unsigned long long>(bytes.size(), text.size() - total)));
            EXPECT_EQ(gzip.expandedBytes(), total);
        }
        EXPECT_GT(gzip.compressedBytes(), first.size() - 30);
        EXPECT_LE(gzip.compressedBytes(), first.size());
        EXPECT_EQ(readAll(gzip), "second");
        EXPECT_EQ(gzip.compressedBytes(), data.size());
        EXPECT_EQ(gzip.expandedBytes(), text.size() + 6);
    }
}

TEST(GzipCounting, TellsWhatExpandsFar) {
    constexpr std::size_t megabyte = 1U << 20U;
    std::string data;
    const std::string member = compressed(std::string(megabyte, '\0'), megabyte);
    for (int i = 0; i < 17; ++i)
        data += member;
    korva::test::PiecewiseInput in(data, 1000);
    BRIMGZIPInputStream gzip(in);
    EXPECT_FALSE(gzip.expandsBeyond(1));
    std::string bytes(16 * megabyte, '\0');
    while (gzip.expandedBytes() < bytes.size()) {
        ASSERT_GT(gzip.read(bytes.data(), bytes.size() - gzip.expandedBytes()), 0);
        EXPECT_FALSE(gzip.expandsBeyond(1)) << gzip.expandedBytes();
    }
    EXPECT_EQ(readAll(gzip).size(), megabyte);
    const unsigned long long ratio = gzip.expandedBytes() / gzip.compressedBytes();
    EXPECT_TRUE(gzip.expandsBeyond(ratio - 1));
    EXPECT_FALSE(gzip.expandsBeyond(ratio + 1));
}

}  // namespace
