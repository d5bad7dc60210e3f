#include "tests/brim/Streams.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMXmlEncodeOutputStream.h>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using korva::test::RecordingOutput;

std::string encoded(const std::string& text) {
    BRIMMemoryOutputStream out;
    BRIMXmlEncodeOutputStream(out).write(text.data(), text.size());
    return {out.str(), out.pcount()};
}

// A plain encoder, byte by byte, against which the real one is compared.
std::string plainlyEncoded(const std::string& text) {
    std::string result;
    for (const char byte : text) {
        if (byte == '&') {
            result += "&amp;";
        } else if (byte == '<') {
            result += "&lt;";
        } else if (byte == '>') {
            result += "&gt;";
        } else if (byte == '"') {
            result += "&quot;";
        } else if (byte == '\'') {
            result += "&apos;";
        } else if (byte == '\r') {
            result += "&#xD;";
        } else {
            result += byte;
        }
    }
    return result;
}

TEST(XmlEncode, ReplacesMarkup) {
    EXPECT_EQ(encoded("a<b"), "a&lt;b");
    EXPECT_EQ(encoded("&<>\"'\r"), "&amp;&lt;&gt;&quot;&apos;&#xD;");
    EXPECT_EQ(encoded("&amp;"), "&amp;amp;");
}

TEST(XmlEncode, EveryOtherBytePassesUnchanged) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(encoded(text), plainlyEncoded(text));
        // Also inside a block that is looked at as a whole.
        const std::string framed = std::string(20, 'x') + text + std::string(20, 'y');
        EXPECT_EQ(encoded(framed), plainlyEncoded(framed));
    }
}

TEST(XmlEncode, TextsOfEveryLengthAndDensity) {
    std::mt19937 random(9);
    const std::string markup = "&<>\"'\r";
    for (std::size_t length = 0; length < 200; ++length) {
        for (const unsigned rareness : {1u, 2u, 5u, 40u}) {
            std::string text;
            for (std::size_t i = 0; i < length; ++i) {
                text += random() % rareness == 0 ? markup[random() % markup.size()]
                                                 : static_cast<char>('a' + random() % 26);
            }
            ASSERT_EQ(encoded(text), plainlyEncoded(text));
        }
    }
}

TEST(XmlEncode, LargeTexts) {
    std::string text;
    for (int i = 0; i < 3000; ++i)
        text += std::string(static_cast<std::size_t>(i), 'x') + "&\r\n";
    EXPECT_EQ(encoded(text), plainlyEncoded(text));
    EXPECT_EQ(encoded(std::string(100000, '<')), plainlyEncoded(std::string(100000, '<')));
}

TEST(XmlEncode, CleanTextIsOneWriteOfTheSameBytes) {
    class SamePointer : public BRIMOutputStream {
    public:
        void write(const char* bytes, std::size_t length) override {
            m_bytes = bytes;
            m_length += length;
            ++m_writes;
        }
        const char* m_bytes = nullptr;
        std::size_t m_length = 0;
        int m_writes = 0;
    };
    SamePointer out;
    const std::string text(100000, 'x');
    BRIMXmlEncodeOutputStream(out).write(text.data(), text.size());
    EXPECT_EQ(out.m_bytes, text.data());
    EXPECT_EQ(out.m_length, text.size());
    EXPECT_EQ(out.m_writes, 1);
}

TEST(XmlEncode, TextFullOfMarkupIsJoinedIntoFewWrites) {
    RecordingOutput out;
    const std::string text(1000, '<');
    BRIMXmlEncodeOutputStream(out).write(text.data(), text.size());
    EXPECT_LT(out.writes().size(), 10u);
}

TEST(XmlEncode, NothingGivesNothing) {
    RecordingOutput out;
    BRIMXmlEncodeOutputStream(out).write("", 0);
    BRIMXmlEncodeOutputStream(out).write(nullptr, 0);
    EXPECT_EQ(out.writes().size(), 0u);
}

TEST(XmlEncode, HoldsNothingBackAndLeavesTheStreamOpen) {
    RecordingOutput out;
    {
        BRIMXmlEncodeOutputStream xml(out);
        xml.write("a<b", 3);
        EXPECT_EQ(out.all(), "a&lt;b");
        xml.flush();
        EXPECT_EQ(out.flushes(), 1);
        xml.close();
        xml.close();
        xml.write("c", 1);
    }
    EXPECT_EQ(out.all(), "a&lt;bc");
    EXPECT_EQ(out.closes(), 0);
}

TEST(XmlEncode, FailureOfTheStreamPasses) {
    RecordingOutput out(0);
    BRIMXmlEncodeOutputStream xml(out);
    EXPECT_THROW(xml.write("a<b", 3), BRIMStreamError);
    EXPECT_THROW(xml.write("ab", 2), BRIMStreamError);
}

}  // namespace
