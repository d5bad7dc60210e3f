#include "tests/halyard/Messages.h"

#include <zel/ZELAssertError.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <random>
#include <string>

namespace {

using korva::test::gzipped;
using korva::test::lines;
using korva::test::PiecewiseInput;
using korva::test::readAll;
using korva::test::ReadMessage;
using korva::test::readMessage;
using korva::test::readParts;
using korva::test::streamErrorOf;
using korva::test::typeOfB;

constexpr const char* cutShort = "multipart: the message is cut short";

/// Gives the same text again and again, `times` times.
class RepeatingInput : public BRIMInputStream {
public:
    RepeatingInput(std::string before, std::string text, unsigned long long times,
                   std::string behind)
        : m_before(std::move(before)),
          m_text(std::move(text)),
          m_behind(std::move(behind)),
          m_times(times) {}

    long long read(char* buffer, std::size_t size) override {
        std::size_t total = 0;
        while (total < size) {
            if (m_position == current().size()) {
                if (m_turn > m_times) break;
                ++m_turn;
                m_position = 0;
                continue;
            }
            const std::size_t count = std::min(size - total, current().size() - m_position);
            std::memcpy(buffer + total, current().data() + m_position, count);
            m_position += count;
            total += count;
        }
        return static_cast<long long>(total);
    }

private:
    const std::string& current() const {
        return m_turn == 0 ? m_before : m_turn <= m_times ? m_text : m_behind;
    }

    std::string m_before;
    std::string m_text;
    std::string m_behind;
    unsigned long long m_times;
    unsigned long long m_turn = 0;
    std::size_t m_position = 0;
};

TEST(HostileMultipart, EveryShorteningIsToldAndGivesNoWrongPart) {
    const std::string text = lines("pre|--b|A: x||<e/>|--b|Content-ID: <1>||one|--b--");
    for (std::size_t length = 0; length < text.size(); ++length) {
        for (const std::size_t piece : {1ul, 1000ul}) {
            const std::string error =
                streamErrorOf([&] { readMessage(text.substr(0, length), typeOfB, piece); });
            ASSERT_EQ(error, length < text.find("--b") + 5
                                 ? "multipart: the message has no boundary"
                                 : cutShort)
                << length;
        }
    }
    EXPECT_EQ(streamErrorOf([&] { readMessage(text); }), "no error");
}

TEST(HostileMultipart, WhatCameBeforeTheCutIsGivenFirst) {
    PiecewiseInput in(lines("--b||<e/>|--"), 1000);
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    BRIMInputStream& root = reader.getRoot();
    char bytes[100];
    std::string content;
    EXPECT_EQ(streamErrorOf([&] {
                  for (;;)
                      content.append(bytes,
                                     static_cast<std::size_t>(root.read(bytes, sizeof bytes)));
              }),
              cutShort);
    EXPECT_EQ(content, "<e/>\r\n--");
    EXPECT_EQ(streamErrorOf([&] { root.read(bytes, sizeof bytes); }), cutShort);
    EXPECT_EQ(streamErrorOf([&] { reader.hasNextPart(); }), cutShort);
}

TEST(HostileMultipart, AMessageWithoutPartsHasNoRoot) {
    EXPECT_EQ(streamErrorOf([&] { readMessage("--b--\r\n"); }),
              "multipart: the message has no root part");
    EXPECT_EQ(streamErrorOf([&] { readMessage("--b--"); }),
              "multipart: the message has no root part");
}

TEST(HostileMultipart, HeadersThatAreNoneAreRefused) {
    const auto errorOf = [](std::string_view headers) {
        return streamErrorOf(
            [&] { readMessage(lines("--b|") + std::string(headers) + lines("||x|--b--")); });
    };
    const std::string none = "multipart: a header has no name and colon";
    EXPECT_EQ(errorOf("text"), none);
    EXPECT_EQ(errorOf(": x"), none);
    EXPECT_EQ(errorOf(" A: x"), "no error");
    EXPECT_EQ(errorOf(" folded"), none);
    EXPECT_EQ(errorOf("A: x\r\n--b"), none);
    EXPECT_EQ(errorOf(std::string_view("A: \0", 4)), "multipart: a header has a NUL character");
}

TEST(HostileMultipart, EndlessHeadersMeetTheLimit) {
    const std::string limit =
        "The input exceeds the limit on the header bytes of a part, which is 16384. If its source "
        "can be trusted, raise the limit with HALYARDTKMultipartReader::setMaximumHeaderBytes.";
    for (const char* const text : {"A: x\r\n", "x", " \r\n", "A:\n"}) {
        // Of the root, and of a part.
        for (const char* const before : {"--b\r\nA: x\r\n", "--b\r\n\r\n<e/>\r\n--b\r\nA: x\r\n"}) {
            RepeatingInput in(before, text, 1ULL << 40U, "");
            HALYARDTKMultipartReader reader(in, typeOfB.c_str());
            EXPECT_EQ(streamErrorOf([&] {
                          readAll(reader.getRoot());
                          readParts(reader);
                      }),
                      limit)
                << text;
        }
    }
}

TEST(HostileMultipart, HeadersMayBeAsLongAsTheLimit) {
    const std::string text = lines("--b|A: 34567890||<e/>|--b--");
    for (std::size_t limit = 0; limit < 20; ++limit) {
        PiecewiseInput in(text, 3);
        HALYARDTKMultipartReader reader(in, typeOfB.c_str());
        reader.setMaximumHeaderBytes(limit);
        EXPECT_EQ(streamErrorOf([&] { readAll(reader.getRoot()); }) == "no error", limit >= 15)
            << limit;
    }
    RepeatingInput in("--b\r\n", "A: x\r\n", 20000, "\r\n<e/>\r\n--b--");
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    reader.setMaximumHeaderBytes(120002);
    EXPECT_EQ(readAll(reader.getRoot()), "<e/>");
}

TEST(HostileMultipart, AHundredThousandPartsMeetTheLimit) {
    const auto read = [](std::size_t limit) {
        RepeatingInput in("--b\r\n\r\n<e/>\r\n--b", "\r\n\r\n\r\n--b", 100000, "--");
        HALYARDTKMultipartReader reader(in, typeOfB.c_str());
        if (limit != 0) reader.setMaximumParts(limit);
        std::size_t count = 0;
        const std::string error = streamErrorOf([&] {
            while (reader.hasNextPart()) {
                reader.releasePart(reader.getNextPart());
                ++count;
            }
        });
        return std::to_string(count) + ": " + error;
    };
    EXPECT_EQ(
        read(0),
        "10000: The input exceeds the limit on the parts of a message, which is 10000. If its "
        "source can be trusted, raise the limit with "
        "HALYARDTKMultipartReader::setMaximumParts.");
    EXPECT_EQ(read(99999).substr(0, 7), "99999: ");
    EXPECT_EQ(read(100000), "100000: no error");
}

/// gzip data of `size` zeros.
std::string bomb(std::size_t size) {
    return gzipped(std::string(size, '\0'));
}

TEST(HostileMultipart, ARootThatExpandsTooMuchMeetsTheLimits) {
    const std::string text =
        lines("--b|Content-Encoding: gzip||") + bomb(32 << 20) + lines("|--b--");
    const auto read = [&](unsigned long long ratio, unsigned long long bytes) {
        PiecewiseInput in(text, 1000);
        HALYARDTKMultipartReader reader(in, typeOfB.c_str());
        if (ratio != 0) reader.setMaximumInflateRatio(ratio);
        if (bytes != 0) reader.setMaximumInflatedBytes(bytes);
        std::size_t length = 0;
        const std::string error =
            streamErrorOf([&] { length = readAll(reader.getRoot(), 16384).size(); });
        return error == "no error" ? std::to_string(length) : error;
    };
    EXPECT_EQ(read(0, 0),
              "The input exceeds the limit on the ratio by which the root part expands, which is "
              "200. If its source can be trusted, raise the limit with "
              "HALYARDTKMultipartReader::setMaximumInflateRatio.");
    EXPECT_EQ(
        read(2000, 3 << 20),
        "The input exceeds the limit on the expanded bytes of the root part, which is 3145728. "
        "If its source can be trusted, raise the limit with "
        "HALYARDTKMultipartReader::setMaximumInflatedBytes.");
    EXPECT_EQ(read(2000, 0), std::to_string(32 << 20));
    EXPECT_EQ(read(2000, 32 << 20), std::to_string(32 << 20));
    PiecewiseInput in(text, 1000);
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    EXPECT_THROW(reader.setMaximumInflateRatio(0), ZELAssertError);
}

TEST(HostileMultipart, ASmallRootMayExpandAsItLikes) {
    EXPECT_EQ(readMessage(lines("--b|Content-Encoding: gzip||") + bomb(16 << 20) + lines("|--b--"))
                  .root.size(),
              16u << 20U);
}

TEST(HostileMultipart, DamagedEncodingsAreTold) {
    EXPECT_EQ(streamErrorOf([] {
                  readMessage(lines("--b|Content-Transfer-Encoding: base64||a$b|--b--"));
              }).substr(0, 7),
              "base64:");
    EXPECT_EQ(streamErrorOf([] {
                  readMessage(lines("--b|Content-Encoding: gzip||text|--b--"));
              }).substr(0, 5),
              "gzip:");
}

TEST(HostileMultipart, AlmostBoundariesCostNoMoreThanOthers) {
    // Would take minutes if each of them were looked at with all that follows.
    const std::string almost = "\r\n--b x";
    RepeatingInput in("--b\r\n\r\n", almost, 3000000, "\r\n--b--");
    HALYARDTKMultipartReader reader(in, typeOfB.c_str());
    std::vector<char> bytes(100000);
    unsigned long long total = 0;
    while (const long long count = reader.getRoot().read(bytes.data(), bytes.size()))
        total += static_cast<unsigned long long>(count);
    EXPECT_EQ(total, 3000000u * almost.size());
}

TEST(HostileMultipart, RandomMessagesEndInPartsOrInAnError) {
    std::mt19937 random(11);
    const std::vector<std::string> words = {
        "\r\n", "\n",       "--b",      "--b--", "--",  "\r",
        " ",    "A: x\r\n", "\r\n\r\n", "text",  "\0x", "Content-Encoding: gzip\r\n"};
    int whole = 0;
    for (int turn = 0; turn < 20000; ++turn) {
        std::string text = "--b\r\n";
        for (unsigned i = random() % 30; i != 0; --i)
            text += words[random() % words.size()];
        if (turn % 2 == 0) text += "\r\n--b--\r\n";
        ReadMessage inOne;
        ReadMessage inPieces;
        const std::string error = streamErrorOf([&] { inOne = readMessage(text); });
        const std::string again =
            streamErrorOf([&] { inPieces = readMessage(text, typeOfB, 1 + random() % 5); });
        ASSERT_EQ(error, again) << text;
        ASSERT_EQ(inOne, inPieces) << text;
        whole += error == "no error";
    }
    EXPECT_GT(whole, 1000);
}

}  // namespace
