#include <korva/KORVA_String.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

std::string trimmed(const std::string& text) {
    KORVA_String buffer;
    buffer.appendChars(text.data(), text.size());
    buffer.trim();
    EXPECT_EQ(std::strlen(buffer.str()), buffer.pcount());
    return buffer.str();
}

TEST(KorvaString, CollectsText) {
    KORVA_String buffer;
    EXPECT_STREQ(buffer.str(), "");
    EXPECT_EQ(buffer.pcount(), 0u);
    std::string expected;
    for (int i = 0; i < 1000; ++i) {
        buffer.appendChars("abc", 3);
        expected += "abc";
    }
    EXPECT_EQ(buffer.str(), expected);
    EXPECT_EQ(buffer.pcount(), 3000u);
    buffer.reset();
    EXPECT_STREQ(buffer.str(), "");
}

TEST(KorvaString, BufferIsTheStringItself) {
    KORVA_String text;
    text.appendChars("x", 1);
    EXPECT_EQ(text.buffer()->str(), text.str());
}

TEST(KorvaString, TrimDoesNothingToAnEmptyBuffer) {
    KORVA_String fresh;
    fresh.trim();
    EXPECT_STREQ(fresh.str(), "");
    fresh.appendChars("x", 1);
    fresh.reset();
    fresh.trim();
    EXPECT_STREQ(fresh.str(), "");
}

TEST(KorvaString, TrimRemovesAllSixKindsOfWhiteSpaceAtBothEnds) {
    EXPECT_EQ(trimmed(" \n\r\t\v\fvalue\f\v\t\r\n "), "value");
    EXPECT_EQ(trimmed("value  "), "value");
    EXPECT_EQ(trimmed("  value"), "value");
    EXPECT_EQ(trimmed("value"), "value");
    EXPECT_EQ(trimmed(" x "), "x");
}

TEST(KorvaString, TrimKeepsWhatStandsInside) {
    EXPECT_EQ(trimmed(" a b\tc\n"), "a b\tc");
}

TEST(KorvaString, TrimKeepsOtherBytes) {
    EXPECT_EQ(trimmed(" \xC2\xA0 "), "\xC2\xA0");
    EXPECT_EQ(trimmed(" \x08\x0E "), "\x08\x0E");
}

TEST(KorvaString, TrimResetsABufferOfWhiteSpaceOnly) {
    EXPECT_EQ(trimmed(" "), "");
    EXPECT_EQ(trimmed(" \n\r\t\v\f"), "");
}

}  // namespace
