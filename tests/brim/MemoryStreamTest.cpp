#include "tests/brim/Streams.h"
#include "tests/support/AllocationFailure.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(MemoryOutput, CollectsWhatIsWritten) {
    BRIMMemoryOutputStream out;
    EXPECT_STREQ(out.str(), "");
    EXPECT_EQ(out.pcount(), 0u);
    out.write("abc", 3);
    out.write(nullptr, 0);
    out.write("d\0e", 3);
    EXPECT_EQ(std::string(out.str(), out.pcount()), std::string("abcd\0e", 6));
    EXPECT_EQ(out.str()[6], '\0');
}

TEST(MemoryOutput, GrowsGeometrically) {
    BRIMMemoryOutputStream out(16);
    const std::size_t before = korva::test::allocationsSoFar();
    for (int i = 0; i < 1000000; ++i)
        out.write("x", 1);
    EXPECT_LT(korva::test::allocationsSoFar() - before, 35u);
    EXPECT_EQ(out.pcount(), 1000000u);
}

TEST(MemoryOutput, AllocatesNothingBeforeTheFirstWrite) {
    const std::size_t before = korva::test::allocationsSoFar();
    BRIMMemoryOutputStream out;
    EXPECT_STREQ(out.str(), "");
    EXPECT_EQ(korva::test::allocationsSoFar(), before);
}

TEST(MemoryOutput, ResetStartsAgain) {
    BRIMMemoryOutputStream out;
    out.write("abc", 3);
    out.reset();
    EXPECT_EQ(out.pcount(), 0u);
    out.write("de", 2);
    EXPECT_STREQ(out.str(), "de");
}

TEST(MemoryOutput, CloseKeepsTheContents) {
    BRIMMemoryOutputStream out;
    out.write("abc", 3);
    out.close();
    out.close();
    EXPECT_STREQ(out.str(), "abc");
}

TEST(MemoryInput, GivesTheBytesInOrderThenTheEnd) {
    const std::string text("ab\0cdefg", 8);
    for (std::size_t size = 1; size < 12; ++size) {
        BRIMMemoryInputStream in(text.data(), text.size());
        EXPECT_EQ(korva::test::readAll(in, size), text);
        char byte = '#';
        EXPECT_EQ(in.read(&byte, 1), 0);
        EXPECT_EQ(in.read(&byte, 1), 0);
        EXPECT_EQ(byte, '#');
    }
}

TEST(MemoryInput, TakesNoBytesAtAll) {
    BRIMMemoryInputStream in(nullptr, 0);
    char byte;
    EXPECT_EQ(in.read(&byte, 1), 0);
}

}  // namespace
