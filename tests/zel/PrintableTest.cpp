#include "tests/support/AllocationFailure.h"

#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELPrintable.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using zel::longestPrintable;
using zel::printable;

TEST(Printable, OrdinaryTextsStayByteForByte) {
    for (const char* const text :
         {"", "name", "a b", "C:\\new\\table", "{0} \"quoted\" 'text' <&>", "\xC3\xA9",
          "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xEF\xBF\xBD", "\xE2\x80\x8D", "\xC2\xA0", "~"})
        EXPECT_EQ(printable(text), text);
}

TEST(Printable, LineBreaksAndControlCharactersAreEscaped) {
    EXPECT_EQ(printable("a\nb\r\n\tc"), "a\\nb\\r\\n\\tc");
    EXPECT_EQ(printable(std::string_view("\0\x01\x1B[31m\x1F\x7F", 9)),
              "\\u{0}\\u{1}\\u{1B}[31m\\u{1F}\\u{7F}");
    EXPECT_EQ(printable("\xC2\x80\xC2\x85\xC2\x9F"), "\\u{80}\\u{85}\\u{9F}");
    EXPECT_EQ(printable("\xE2\x80\xA8\xE2\x80\xA9"), "\\u{2028}\\u{2029}");
}

TEST(Printable, MarksThatTurnTheDirectionAreEscaped) {
    EXPECT_EQ(printable("\xD8\x9C\xE2\x80\x8E\xE2\x80\x8F"), "\\u{61C}\\u{200E}\\u{200F}");
    EXPECT_EQ(printable("\xE2\x80\xAA\xE2\x80\xAE"), "\\u{202A}\\u{202E}");
    EXPECT_EQ(printable("\xE2\x81\xA6\xE2\x81\xA9"), "\\u{2066}\\u{2069}");
}

TEST(Printable, BytesThatAreNoUtf8AreEscapedOneByOne) {
    EXPECT_EQ(printable("a\xFF\xC3"), "a\\x{FF}\\x{C3}");
    EXPECT_EQ(printable("\xC0\x80"), "\\x{C0}\\x{80}");
    EXPECT_EQ(printable("\xED\xA0\x80"), "\\x{ED}\\x{A0}\\x{80}");
    EXPECT_EQ(printable("\xF4\x90\x80\x80"), "\\x{F4}\\x{90}\\x{80}\\x{80}");
    EXPECT_EQ(printable("\xE2\x82z"), "\\x{E2}\\x{82}z");
}

TEST(Printable, LongTextsAreCutAndSayHowLongTheyWere) {
    const std::string most(longestPrintable, 'x');
    EXPECT_EQ(printable(most), most);
    EXPECT_EQ(printable(most + 'x'), most + " ... (cut, 513 bytes)");
    EXPECT_EQ(printable(std::string(20'000'000, 'x')), most + " ... (cut, 20000000 bytes)");
}

TEST(Printable, NoCharacterAndNoEscapeIsCutInTwo) {
    for (const std::string character : {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"})
        for (std::size_t before = 505; before <= 512; ++before) {
            const std::string text = std::string(before, 'x') + character + "yyyyyyyy";
            const std::string result = printable(text);
            const std::string kept = result.substr(0, result.find(" ..."));
            EXPECT_LE(kept.size(), longestPrintable);
            EXPECT_EQ(kept, text.substr(0, kept.size()));
            // Whole, or not at all.
            EXPECT_TRUE(kept.size() <= before || kept.size() >= before + character.size());
        }
    EXPECT_EQ(printable(std::string(510, 'x') + "\x01 more"),
              std::string(510, 'x') + " ... (cut, 516 bytes)");
    EXPECT_EQ(printable(std::string(510, 'x') + "\n"), std::string(510, 'x') + "\\n");
}

TEST(Printable, ALackOfMemoryIsTold) {
    const std::string text(600, 'x');
    korva::test::failEachAllocation([&] {
        try {
            EXPECT_EQ(printable(text).size(), longestPrintable + 21);
        } catch (const ZELOutOfMemoryError&) {
        }
    });
}

}  // namespace
