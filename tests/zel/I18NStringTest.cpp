#include <zel/I18NString.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

TEST(I18NString, FromUtf8) {
    const I18NString text(
        "gr\xC3\xBC\xC3\x9F"
        "e \xF0\x9F\x98\x80");
    EXPECT_EQ(std::u16string(text.wide(), text.wideLength()), u"gr\u00FC\u00DFe \U0001F600");
    EXPECT_EQ(text.wide()[text.wideLength()], u'\0');
    EXPECT_EQ(text.utf8Length(), 12u);
}

TEST(I18NString, FromUtf16) {
    const std::u16string wide = u"gr\u00FC\u00DFe \U0001F600";
    const I18NString text(wide.data(), wide.size());
    EXPECT_STREQ(text.utf8(),
                 "gr\xC3\xBC\xC3\x9F"
                 "e \xF0\x9F\x98\x80");
    EXPECT_EQ(text.wideLength(), wide.size());
}

TEST(I18NString, EmptyInEveryWay) {
    const I18NString texts[] = {I18NString(), I18NString(""), I18NString(nullptr),
                                I18NString(static_cast<const char16_t*>(nullptr), 0)};
    for (const I18NString& text : texts) {
        EXPECT_TRUE(text.empty());
        EXPECT_STREQ(text.utf8(), "");
        EXPECT_EQ(text.wideLength(), 0u);
        ASSERT_NE(text.wide(), nullptr);
        EXPECT_EQ(text.wide()[0], u'\0');
    }
}

TEST(I18NString, LengthsMayIncludeNul) {
    EXPECT_EQ(I18NString("a\0b", 3).wideLength(), 3u);
    EXPECT_EQ(I18NString(std::string("a\0b", 3)).utf8Length(), 3u);
    EXPECT_EQ(I18NString(u"a\0b", 3).utf8Length(), 3u);
}

TEST(I18NString, SurrogateWithoutPartnerBecomesReplacement) {
    const char16_t high[] = {u'a', 0xD83D};
    EXPECT_STREQ(I18NString(high, 2).utf8(), "a\xEF\xBF\xBD");
    const char16_t low[] = {0xDE00, u'a'};
    EXPECT_STREQ(I18NString(low, 2).utf8(),
                 "\xEF\xBF\xBD"
                 "a");
}

TEST(I18NString, CopiesAndMoves) {
    I18NString text("a text that is longer than what fits into a string object");
    text.wide();
    I18NString copy(text);
    EXPECT_TRUE(copy == text);
    const I18NString moved(std::move(copy));
    EXPECT_TRUE(moved == text);
    EXPECT_EQ(moved.wideLength(), text.wideLength());
    copy = moved;
    EXPECT_TRUE(copy == text);
    copy = I18NString("b");
    EXPECT_STREQ(copy.utf8(), "b");
    EXPECT_EQ(copy.wideLength(), 1u);
}

TEST(I18NString, ComparesAcrossEncodings) {
    EXPECT_TRUE(I18NString("abc") == I18NString(u"abc", 3));
    EXPECT_FALSE(I18NString("abc") == I18NString(u"abd", 3));
}

}  // namespace
