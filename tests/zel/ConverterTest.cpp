#include <zel/I18NConverter.h>
#include <zel/ZELByteBuffer.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

// A slow and plain converter of code points, against which the real one is compared.
std::string utf8Of(char32_t point) {
    std::string text;
    if (point < 0x80) {
        text += static_cast<char>(point);
    } else if (point < 0x800) {
        text += static_cast<char>(0xC0 + point / 0x40);
        text += static_cast<char>(0x80 + point % 0x40);
    } else if (point < 0x10000) {
        text += static_cast<char>(0xE0 + point / 0x1000);
        text += static_cast<char>(0x80 + point / 0x40 % 0x40);
        text += static_cast<char>(0x80 + point % 0x40);
    } else {
        text += static_cast<char>(0xF0 + point / 0x40000);
        text += static_cast<char>(0x80 + point / 0x1000 % 0x40);
        text += static_cast<char>(0x80 + point / 0x40 % 0x40);
        text += static_cast<char>(0x80 + point % 0x40);
    }
    return text;
}

std::u16string utf16Of(char32_t point) {
    if (point < 0x10000) return std::u16string(1, static_cast<char16_t>(point));
    return {static_cast<char16_t>(0xD800 + (point - 0x10000) / 0x400),
            static_cast<char16_t>(0xDC00 + (point - 0x10000) % 0x400)};
}

const std::string replacement = "\xEF\xBF\xBD";

std::string appended(const std::vector<std::u16string>& pieces) {
    I18NConverter converter;
    ZELByteBuffer buffer;
    for (const std::u16string& piece : pieces) {
        converter.append(piece.data(), piece.size(), buffer);
    }
    converter.finish(buffer);
    return {buffer.str(), buffer.pcount()};
}

std::string allocated(const std::u16string& text) {
    I18NConverter converter;
    const std::unique_ptr<char[]> result(converter.toUtf8(text.data(), text.size()));
    return result.get();
}

std::u16string widened(const std::string& text) {
    std::u16string result;
    I18NConverter::appendUtf16(text.data(), text.size(), result);
    return result;
}

TEST(Converter, EveryCharacterBothWays) {
    for (char32_t point = 1; point <= 0x10FFFF; ++point) {
        if (point == 0xD800) point = 0xE000;
        const std::u16string wide = utf16Of(point);
        const std::string narrow = utf8Of(point);
        char bytes[5];
        std::size_t length = 0;
        I18NConverter converter;
        ASSERT_TRUE(converter.toUtf8(wide.data(), wide.size(), bytes, sizeof bytes, &length));
        ASSERT_EQ(std::string(bytes, length), narrow)
            << std::hex << static_cast<std::uint32_t>(point);
        char16_t units[3];
        ASSERT_TRUE(I18NConverter::toUtf16(narrow.data(), narrow.size(), units, 3, &length));
        ASSERT_EQ(std::u16string(units, length), wide)
            << std::hex << static_cast<std::uint32_t>(point);
    }
}

TEST(Converter, MixedTextsOfEveryLengthInEveryForm) {
    std::mt19937 random(7);
    const char32_t samples[] = {U'a',  U'z',   0x7F,   0x80,    0xFC,    0x7FF,
                                0x800, 0x20AC, 0xFFFD, 0x10000, 0x1F600, 0x10FFFF};
    for (std::size_t length = 0; length < 80; ++length) {
        for (unsigned rareness = 1; rareness < 40; rareness += 6) {
            std::u16string wide;
            std::string narrow;
            for (std::size_t i = 0; i < length; ++i) {
                const char32_t point = random() % rareness == 0
                                           ? samples[random() % std::size(samples)]
                                           : static_cast<char32_t>('a' + random() % 26);
                wide += utf16Of(point);
                narrow += utf8Of(point);
            }
            ASSERT_EQ(appended({wide}), narrow);
            ASSERT_EQ(allocated(wide), narrow);
            ASSERT_EQ(widened(narrow), wide);
            const std::unique_ptr<char16_t[]> units(
                I18NConverter::toUtf16(narrow.data(), narrow.size()));
            ASSERT_EQ(std::u16string(units.get()), wide);

            // Into buffers that just fit, and that miss by one; nothing behind them is touched.
            std::vector<char> bytes(narrow.size() + 2, '#');
            I18NConverter converter;
            std::size_t written = 0;
            ASSERT_FALSE(converter.toUtf8(wide.data(), wide.size(), bytes.data(), narrow.size()));
            ASSERT_FALSE(converter.isPending());
            ASSERT_TRUE(converter.toUtf8(wide.data(), wide.size(), bytes.data(), narrow.size() + 1,
                                         &written));
            ASSERT_EQ(written, narrow.size());
            ASSERT_STREQ(bytes.data(), narrow.c_str());
            ASSERT_EQ(bytes.back(), '#');
            std::vector<char16_t> twos(wide.size() + 2, u'#');
            ASSERT_FALSE(
                I18NConverter::toUtf16(narrow.data(), narrow.size(), twos.data(), wide.size()));
            ASSERT_TRUE(I18NConverter::toUtf16(narrow.data(), narrow.size(), twos.data(),
                                               wide.size() + 1, &written));
            ASSERT_EQ(std::u16string(twos.data(), written), wide);
            ASSERT_EQ(twos.back(), u'#');
        }
    }
}

TEST(Converter, NothingFitsIntoNoRoom) {
    I18NConverter converter;
    EXPECT_FALSE(converter.toUtf8(u"", 0, nullptr, 0));
    char byte = '#';
    EXPECT_TRUE(converter.toUtf8(u"", 0, &byte, 1));
    EXPECT_EQ(byte, '\0');
}

TEST(Converter, NulTerminatedForms) {
    I18NConverter converter;
    char bytes[4];
    EXPECT_TRUE(converter.toUtf8(u"abc", bytes, sizeof bytes));
    EXPECT_STREQ(bytes, "abc");
    EXPECT_FALSE(converter.toUtf8(u"abcd", bytes, sizeof bytes));
    const std::unique_ptr<char[]> text(converter.toUtf8(u"abcd"));
    EXPECT_STREQ(text.get(), "abcd");
}

TEST(Converter, JoinsAPairThatIsCutInTwo) {
    EXPECT_EQ(appended({u"a\xD83D", u"\xDE00z"}), "a\xF0\x9F\x98\x80z");
    EXPECT_EQ(appended({u"\xD83D", u"", u"\xDE00"}), "\xF0\x9F\x98\x80");
}

TEST(Converter, JoinsAPairAcrossEveryForm) {
    I18NConverter converter;
    char bytes[8];
    std::size_t written = 9;
    ASSERT_TRUE(converter.toUtf8(u"\xD83D", 1, bytes, sizeof bytes, &written));
    EXPECT_EQ(written, 0u);
    EXPECT_TRUE(converter.isPending());
    EXPECT_FALSE(converter.toUtf8(u"\xDE00", 1, bytes, 4));
    EXPECT_TRUE(converter.isPending());
    ASSERT_TRUE(converter.toUtf8(u"\xDE00", 1, bytes, 5));
    EXPECT_STREQ(bytes, "\xF0\x9F\x98\x80");
    EXPECT_FALSE(converter.isPending());

    const std::unique_ptr<char[]> first(converter.toUtf8(u"x\xD83D", 2));
    EXPECT_STREQ(first.get(), "x");
    const std::unique_ptr<char[]> second(converter.toUtf8(u"\xDE00y", 2));
    EXPECT_STREQ(second.get(), "\xF0\x9F\x98\x80y");
}

TEST(Converter, SurrogateWithoutPartnerBecomesReplacement) {
    EXPECT_EQ(appended({u"\xD83D"}), replacement);
    EXPECT_EQ(appended({u"a\xD83D"
                        u"b"}),
              "a" + replacement + "b");
    EXPECT_EQ(appended({u"a\xD83D", u"b"}), "a" + replacement + "b");
    EXPECT_EQ(appended({u"\xDE00"}), replacement);
    EXPECT_EQ(appended({u"\xD83D\xD83D\xDE00"}), replacement + "\xF0\x9F\x98\x80");
    EXPECT_EQ(appended({u"\xD83D\x00FC"}), replacement + "\xC3\xBC");
    EXPECT_EQ(appended({u"\xDE00\xD83D"}), replacement + replacement);
}

TEST(Converter, ResetForgetsAWaitingSurrogate) {
    I18NConverter converter;
    ZELByteBuffer buffer;
    converter.append(u"\xD83D", 1, buffer);
    converter.reset();
    converter.append(u"a", 1, buffer);
    converter.finish(buffer);
    EXPECT_STREQ(buffer.str(), "a");
}

TEST(Converter, AsciiAppendAllocatesNoMoreThanTheText) {
    I18NConverter converter;
    ZELByteBuffer buffer(ZELByteBuffer::eGrowExact, 0);
    const std::u16string text(1000, u'x');
    converter.append(text.data(), text.size(), buffer);
    EXPECT_EQ(buffer.capacity(), 1000u);
}

TEST(Converter, AWholeTextIsUtf8ToItsEnd) {
    EXPECT_EQ(I18NConverter::utf8(u""), "");
    EXPECT_EQ(I18NConverter::utf8(u"a\u00FC\u65E5\U0001F600"), "a\u00FC\u65E5\U0001F600");
    EXPECT_EQ(I18NConverter::utf8(std::u16string(1000, u'\u65E5')).size(), 3000u);
    const char16_t high[] = {u'a', 0xD83D};
    EXPECT_EQ(I18NConverter::utf8({high, 2}), "a\uFFFD");
    const char16_t low[] = {0xDE00, u'a'};
    EXPECT_EQ(I18NConverter::utf8({low, 2}), "\uFFFDa");
}

TEST(Converter, MalformedUtf8BecomesReplacements) {
    const std::u16string one(1, u'\xFFFD');
    EXPECT_EQ(widened("\x80"), one);  // continuation without a start
    EXPECT_EQ(widened("\xC3"), one);  // cut short
    EXPECT_EQ(widened("\xE2\x82"), one + one);
    EXPECT_EQ(widened("\xF0\x9F\x98"), one + one + one);
    EXPECT_EQ(widened("\xC0\xAF"), one + one);  // overlong
    EXPECT_EQ(widened("\xC1\xBF"), one + one);
    EXPECT_EQ(widened("\xE0\x9F\xBF"), one + one + one);
    EXPECT_EQ(widened("\xF0\x8F\xBF\xBF"), one + one + one + one);
    EXPECT_EQ(widened("\xED\xA0\x80"), one + one + one);            // a surrogate
    EXPECT_EQ(widened("\xF4\x90\x80\x80"), one + one + one + one);  // beyond the last character
    EXPECT_EQ(widened("\xF5\x80\x80\x80"), one + one + one + one);
    EXPECT_EQ(widened("\xFF"), one);
    EXPECT_EQ(widened("a\xC3z"), u"a" + one + u"z");
}

}  // namespace
