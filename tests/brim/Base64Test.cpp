#include "tests/brim/Streams.h"

#include <brim/BRIMBase64InputStream.h>
#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

using korva::test::PiecewiseInput;
using korva::test::readAll;
using korva::test::RecordingOutput;
using korva::test::streamErrorOf;

// A plain encoder, bit by bit, against which the real one is compared.
std::string plainBase64(const std::string& bytes) {
    const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t bit = 0; bit < bytes.size() * 8; bit += 6) {
        unsigned value = 0;
        for (std::size_t i = bit; i < bit + 6; ++i) {
            const unsigned byte =
                i / 8 < bytes.size() ? static_cast<unsigned char>(bytes[i / 8]) : 0;
            value = value << 1 | (byte >> (7 - i % 8) & 1);
        }
        text += alphabet[value];
    }
    while (text.size() % 4 != 0)
        text += '=';
    return text;
}

std::string randomBytes(std::size_t length, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(length, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

std::string encoded(const std::string& bytes, std::size_t piece) {
    BRIMMemoryOutputStream out;
    BRIMBase64OutputStream base64(out);
    for (std::size_t done = 0; done < bytes.size(); done += piece) {
        base64.write(bytes.data() + done, std::min(piece, bytes.size() - done));
    }
    base64.close();
    return {out.str(), out.pcount()};
}

std::string decoded(const std::string& text, std::size_t piece = 100000, std::size_t size = 1024) {
    PiecewiseInput in(text, piece);
    BRIMBase64InputStream base64(in);
    return readAll(base64, size);
}

TEST(Base64Output, KnownTexts) {
    const std::pair<const char*, const char*> known[] = {{"", ""},
                                                         {"f", "Zg=="},
                                                         {"fo", "Zm8="},
                                                         {"foo", "Zm9v"},
                                                         {"foob", "Zm9vYg=="},
                                                         {"fooba", "Zm9vYmE="},
                                                         {"foobar", "Zm9vYmFy"},
                                                         {"hello", "aGVsbG8="}};
    for (const auto& [bytes, text] : known) {
        EXPECT_EQ(encoded(bytes, 100), text);
        EXPECT_EQ(decoded(text), bytes);
    }
}

TEST(Base64Output, EveryLengthInEveryPiece) {
    for (std::size_t length = 0; length < 50; ++length) {
        const std::string bytes = randomBytes(length, static_cast<unsigned>(length));
        for (std::size_t piece = 1; piece <= 17; ++piece) {
            ASSERT_EQ(encoded(bytes, piece), plainBase64(bytes)) << length << " by " << piece;
        }
    }
}

TEST(Base64Output, LargeDataInOddPieces) {
    const std::string bytes = randomBytes(100001, 5);
    const std::string text = plainBase64(bytes);
    for (const std::size_t piece : {1ul, 3ul, 1000ul, 12287ul, 12288ul, 12289ul, 100001ul}) {
        ASSERT_EQ(encoded(bytes, piece), text) << piece;
    }
}

TEST(Base64Output, WritesNoLineBreaksAndPiecesOfTheBuffersSize) {
    RecordingOutput out;
    BRIMBase64OutputStream base64(out);
    const std::string bytes(50000, 'x');
    base64.write(bytes.data(), bytes.size());
    base64.close();
    EXPECT_EQ(out.all().find('\n'), std::string::npos);
    EXPECT_LE(out.writes().size(), 6u);
    EXPECT_EQ(out.writes()[0].size(), 16384u);
}

TEST(Base64Output, CloseEndsOnceAndLeavesTheStreamOpen) {
    RecordingOutput out;
    {
        BRIMBase64OutputStream base64(out);
        base64.write("f", 1);
        base64.close();
        base64.close();
    }
    EXPECT_EQ(out.all(), "Zg==");
    EXPECT_EQ(out.closes(), 0);
}

TEST(Base64Output, DestructorEndsTheEncoding) {
    RecordingOutput out;
    BRIMBase64OutputStream(out).write("fo", 2);
    EXPECT_EQ(out.all(), "Zm8=");
    EXPECT_EQ(out.closes(), 0);
}

TEST(Base64Output, NothingWrittenGivesNothing) {
    RecordingOutput out;
    BRIMBase64OutputStream(out).close();
    EXPECT_EQ(out.writes().size(), 0u);
}

TEST(Base64Output, WrapBeginsANewEncoding) {
    RecordingOutput first;
    RecordingOutput second;
    BRIMBase64OutputStream base64;
    base64.wrap(first);
    base64.write("f", 1);
    base64.wrap(second);
    EXPECT_EQ(first.all(), "Zg==");
    base64.write("fo", 2);
    base64.close();
    EXPECT_EQ(second.all(), "Zm8=");
    base64.wrap(first);
    base64.write("foo", 3);
    base64.close();
    EXPECT_EQ(first.all(), "Zg==Zm9v");
}

TEST(Base64Output, WriteWithoutAStreamIsAnAssertion) {
    BRIMBase64OutputStream base64;
    EXPECT_THROW(base64.write("x", 1), ZELAssertError);
    base64.flush();
    base64.close();
    RecordingOutput out;
    base64.wrap(out);
    base64.close();
    EXPECT_THROW(base64.write("x", 1), ZELAssertError);
}

TEST(Base64Output, FlushPassesCompleteGroupsOn) {
    RecordingOutput out;
    BRIMBase64OutputStream base64(out);
    base64.write("foob", 4);
    EXPECT_EQ(out.all(), "");
    base64.flush();
    EXPECT_EQ(out.all(), "Zm9v");
    EXPECT_EQ(out.flushes(), 1);
    base64.close();
    EXPECT_EQ(out.all(), "Zm9vYg==");
}

TEST(Base64Output, FailureOfTheStreamPassesOnceAndDestructorStaysQuiet) {
    const std::string bytes(20000, 'x');
    RecordingOutput out(0);
    {
        BRIMBase64OutputStream base64(out);
        EXPECT_THROW(base64.write(bytes.data(), bytes.size()), BRIMStreamError);
    }
    RecordingOutput atClose(0);
    {
        BRIMBase64OutputStream base64(atClose);
        base64.write("x", 1);
        EXPECT_THROW(base64.close(), BRIMStreamError);
        base64.close();
    }
    EXPECT_EQ(atClose.failures(), 1);
    RecordingOutput atEnd(0);
    BRIMBase64OutputStream(atEnd).write("x", 1);
    EXPECT_EQ(atEnd.failures(), 1);
}

TEST(Base64Input, EveryLengthInEveryPiece) {
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string bytes = randomBytes(length, static_cast<unsigned>(length));
        const std::string text = plainBase64(bytes);
        for (std::size_t piece = 1; piece <= 9; ++piece) {
            for (std::size_t size = 1; size <= 9; ++size) {
                ASSERT_EQ(decoded(text, piece, size), bytes) << length << piece << size;
            }
        }
    }
}

TEST(Base64Input, LargeDataInOddPieces) {
    const std::string bytes = randomBytes(100001, 6);
    const std::string text = plainBase64(bytes);
    for (const std::size_t piece : {1ul, 7ul, 16383ul, 16384ul, 16385ul, 1000000ul}) {
        for (const std::size_t size : {1ul, 2ul, 3ul, 4ul, 1024ul, 1000000ul}) {
            ASSERT_EQ(decoded(text, piece, size), bytes) << piece << " " << size;
        }
    }
}

TEST(Base64Input, NothingIsWrittenBehindTheCallersBuffer) {
    const std::string text = plainBase64(std::string(30, 'x'));
    for (std::size_t size = 1; size <= 12; ++size) {
        BRIMMemoryInputStream in(text.data(), text.size());
        BRIMBase64InputStream base64(in);
        std::string buffer(size + 4, '#');
        ASSERT_EQ(base64.read(buffer.data(), size), static_cast<long long>(size));
        ASSERT_EQ(buffer, std::string(size, 'x') + "####");
    }
}

TEST(Base64Input, SkipsWhiteSpaceEverywhere) {
    const std::string bytes = randomBytes(1000, 8);
    const std::string text = plainBase64(bytes);
    std::string broken;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i % 76 == 0) broken += "\r\n";
        broken += text[i];
    }
    EXPECT_EQ(decoded(broken + "\n"), bytes);
    std::string sparse;
    for (std::size_t i = 0; i < text.size(); ++i)
        sparse += std::string(1, text[i]) + " \t\n\v\f\r"[i % 6];
    EXPECT_EQ(decoded(sparse), bytes);
    EXPECT_EQ(decoded("Z g = = "), "f");
    EXPECT_EQ(decoded(" \n "), "");
}

TEST(Base64Input, EndIsGivenAgainAndAgain) {
    PiecewiseInput in("Zg==", 100, -1);
    BRIMBase64InputStream base64(in);
    char byte;
    EXPECT_EQ(base64.read(&byte, 1), 1);
    EXPECT_EQ(base64.read(&byte, 1), 0);
    EXPECT_EQ(base64.read(&byte, 1), 0);
}

TEST(Base64Input, DoesNotWaitForMoreThanItNeeds) {
    PiecewiseInput in("Zm9vZm9v", 4);
    BRIMBase64InputStream base64(in);
    char bytes[16];
    EXPECT_EQ(base64.read(bytes, sizeof bytes), 3);
    EXPECT_EQ(in.reads(), 1);
}

TEST(Base64Input, EveryOtherCharacterIsRefusedAtEveryPlace) {
    const std::string alphabet =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/= \t\n\v\f\r";
    for (int character = 0; character < 256; ++character) {
        if (alphabet.find(static_cast<char>(character)) != std::string::npos) continue;
        for (std::size_t place = 0; place < 8; ++place) {
            std::string text = "Zm9vZm9v";
            text[place] = static_cast<char>(character);
            ASSERT_EQ(streamErrorOf([&] { decoded(text); }),
                      "base64: there is a character that isn't base64, at offset " +
                          std::to_string(place));
        }
    }
}

TEST(Base64Input, ShortenedGroupIsRefused) {
    for (const char* text : {"Z", "Zg", "Zm8", "Zg=", "Zm9vZ", "Zm9vZm8", "Zm9v Zg="}) {
        EXPECT_NE(streamErrorOf([&] { decoded(text); }).find("ends within a group"),
                  std::string::npos)
            << text;
    }
}

TEST(Base64Input, WrongPaddingIsRefused) {
    for (const char* text : {"=", "====", "Z===", "Zg=v", "Zm9v=", "=Zg="}) {
        EXPECT_NE(streamErrorOf([&] { decoded(text); }).find("padding is in the wrong place"),
                  std::string::npos)
            << text;
    }
    for (const char* text : {"Zg==Zg==", "Zm8=A", "Zg== =", "Zg==*"}) {
        EXPECT_NE(streamErrorOf([&] { decoded(text); }).find("behind the padding"),
                  std::string::npos)
            << text;
    }
}

TEST(Base64Input, FailureIsRepeated) {
    BRIMMemoryInputStream in("Zm9v*", 5);
    BRIMBase64InputStream base64(in);
    char bytes[3];
    EXPECT_EQ(base64.read(bytes, 3), 3);
    EXPECT_THROW(base64.read(bytes, 3), BRIMStreamError);
    EXPECT_THROW(base64.read(bytes, 3), BRIMStreamError);
}

TEST(Base64Input, OffsetCountsAllCharacters) {
    const std::string text = plainBase64(std::string(30000, 'x')) + "\n*";
    EXPECT_EQ(streamErrorOf([&] { decoded(text); }),
              "base64: there is a character that isn't base64, at offset 40001");
}

TEST(Base64Input, FailureOfTheStreamPassesUnchanged) {
    PiecewiseInput in("Zm9v", 100);
    in.failAtEnd([] { throw 7; });
    BRIMBase64InputStream base64(in);
    EXPECT_THROW(readAll(base64), int);
}

}  // namespace
