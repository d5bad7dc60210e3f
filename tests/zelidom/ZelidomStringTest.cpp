#include <zelidom/ZELIDOM_String.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(DocumentString, IsEmptyUnlessMadeOfAText) {
    EXPECT_TRUE(ZELIDOM_String().empty());
    EXPECT_TRUE(ZELIDOM_String(nullptr).empty());
    EXPECT_TRUE(ZELIDOM_String(u"").empty());
    EXPECT_FALSE(ZELIDOM_String(u"x").empty());
    EXPECT_NE(ZELIDOM_String(nullptr).wide(), nullptr);
    EXPECT_EQ(ZELIDOM_String(nullptr).utf8(), "");
}

TEST(DocumentString, GivesTheTextItself) {
    const XMLCh text[] = u"schedule";
    EXPECT_EQ(ZELIDOM_String(text).wide(), text);
    EXPECT_EQ(ZELIDOM_String(text).wideLength(), 8u);
}

TEST(DocumentString, ConvertsToUtf8) {
    EXPECT_EQ(ZELIDOM_String(u"a\u00FC\u65E5\U0001F600").utf8(),
              "a\xC3\xBC\xE6\x97\xA5\xF0\x9F\x98\x80");
    const XMLCh lone[] = {0xD83D, u'x', 0};
    EXPECT_EQ(ZELIDOM_String(lone).utf8(), "\xEF\xBF\xBDx");
    EXPECT_EQ(ZELIDOM_String(std::u16string(1000, u'\u65E5').c_str()).utf8().size(), 3000u);
}

TEST(DocumentString, ComparesWithUtf8) {
    EXPECT_EQ(ZELIDOM_String(u"name"), "name");
    EXPECT_NE(ZELIDOM_String(u"name"), "nam");
    EXPECT_NE(ZELIDOM_String(u"nam"), "name");
    EXPECT_NE(ZELIDOM_String(u"name"), "Name");
    EXPECT_EQ(ZELIDOM_String(), "");
    EXPECT_EQ(ZELIDOM_String(u"x\u00FC"), "x\xC3\xBC");
    EXPECT_NE(ZELIDOM_String(u"x\u00FC"), "x\xC3\xBD");
    // A byte of UTF-8 is no character.
    EXPECT_NE(ZELIDOM_String(u"\u00FC"), "\xFC");
    EXPECT_NE(ZELIDOM_String(u"\u0141"), "A");
}

TEST(DocumentString, ComparesTextsNotAddresses) {
    const std::u16string one = u"same";
    const std::u16string other = u"same";
    EXPECT_EQ(ZELIDOM_String(one.c_str()), ZELIDOM_String(other.c_str()));
    EXPECT_NE(ZELIDOM_String(one.c_str()), ZELIDOM_String(u"other"));
    EXPECT_EQ(ZELIDOM_String(nullptr), ZELIDOM_String(u""));
}

}  // namespace
