#include <zel/ZELAscii.h>

#include <gtest/gtest.h>

TEST(Ascii, ComparesWithoutTheCaseOfLetters) {
    EXPECT_TRUE(zel::equalIgnoringCase("SOAP-ENV", "soap-env"));
    EXPECT_TRUE(zel::equalIgnoringCase("aZ", "Az"));
    EXPECT_TRUE(zel::equalIgnoringCase("", ""));
    EXPECT_FALSE(zel::equalIgnoringCase("gzip", "gzi"));
    EXPECT_FALSE(zel::equalIgnoringCase("gzi", "gzip"));
    EXPECT_FALSE(zel::equalIgnoringCase("gzip", "gzap"));
}

TEST(Ascii, TellsAllElseApart) {
    // Next to the letters, and letters beyond ASCII.
    EXPECT_FALSE(zel::equalIgnoringCase("@", "`"));
    EXPECT_FALSE(zel::equalIgnoringCase("[", "{"));
    EXPECT_FALSE(zel::equalIgnoringCase("\u00C4", "\u00E4"));
    EXPECT_FALSE(zel::equalIgnoringCase("\xC4", "\xE4"));
}
