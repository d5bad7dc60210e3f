#include "tests/support/AllocationFailure.h"

#include <zel/ZELByteBuffer.h>
#include <zel/ZELOutOfMemoryError.h>

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <utility>

namespace {

std::string contents(const ZELByteBuffer& buffer) {
    return {buffer.str(), buffer.pcount()};
}

TEST(ByteBuffer, IsEmptyButNeverNullAtFirst) {
    const ZELByteBuffer buffer(1, 128, 0);
    EXPECT_NE(buffer.str(), nullptr);
    EXPECT_STREQ(buffer.str(), "");
    EXPECT_EQ(buffer.pcount(), 0u);
}

TEST(ByteBuffer, AllocatesNothingBeforeTheFirstByte) {
    const std::size_t before = korva::test::allocationsSoFar();
    ZELByteBuffer buffer(1, 128, 0);
    buffer.appendChars("", 0);
    buffer.appendChars(nullptr, 0);
    buffer.reset();
    buffer.shrinkToFit();
    const ZELByteBuffer copy(buffer);
    EXPECT_EQ(korva::test::allocationsSoFar(), before);
    EXPECT_EQ(buffer.capacity(), 0u);
}

TEST(ByteBuffer, FirstAllocationHasTheGivenSizeWithTheNul) {
    ZELByteBuffer buffer(ZELByteBuffer::eGrowGeometric, 128, 0);
    buffer.appendChars("x", 1);
    EXPECT_EQ(buffer.capacity(), 127u);
    ZELByteBuffer larger(1, 4, 0);
    larger.appendChars("0123456789", 10);
    EXPECT_EQ(larger.capacity(), 10u);
    ZELByteBuffer none(1, 0, 0);
    none.appendChars("x", 1);
    EXPECT_EQ(none.capacity(), 1u);
}

TEST(ByteBuffer, KeepsAllBytesWithANulBehindThem) {
    ZELByteBuffer buffer(1, 8, 0);
    std::string expected;
    for (int i = 0; i < 1000; ++i) {
        const std::string piece(static_cast<std::size_t>(i % 7), static_cast<char>('a' + i % 26));
        buffer.appendChars(piece.data(), piece.size());
        expected += piece;
        ASSERT_EQ(buffer.str()[buffer.pcount()], '\0');
    }
    EXPECT_EQ(contents(buffer), expected);
}

TEST(ByteBuffer, TakesNulBytes) {
    ZELByteBuffer buffer;
    buffer.appendChars("a\0b", 3);
    buffer.appendChar('\0');
    EXPECT_EQ(contents(buffer), std::string("a\0b\0", 4));
}

TEST(ByteBuffer, GeometricGrowthAllocatesSeldom) {
    ZELByteBuffer buffer(1, 128, 0);
    const std::size_t before = korva::test::allocationsSoFar();
    for (int i = 0; i < 1000000; ++i)
        buffer.appendChar('x');
    EXPECT_LT(korva::test::allocationsSoFar() - before, 30u);
    EXPECT_EQ(buffer.pcount(), 1000000u);
    EXPECT_LT(buffer.capacity(), 1500000u);
}

TEST(ByteBuffer, ExactGrowthAllocatesWhatIsNeeded) {
    ZELByteBuffer buffer(ZELByteBuffer::eGrowExact, 0, 0);
    buffer.appendChars("abc", 3);
    EXPECT_EQ(buffer.capacity(), 3u);
    buffer.appendChars("de", 2);
    EXPECT_EQ(buffer.capacity(), 5u);
    EXPECT_EQ(contents(buffer), "abcde");
}

TEST(ByteBuffer, ResetKeepsTheAllocation) {
    ZELByteBuffer buffer(1, 16, 0);
    buffer.appendChars("abc", 3);
    const char* before = buffer.str();
    buffer.reset();
    EXPECT_STREQ(buffer.str(), "");
    EXPECT_EQ(buffer.pcount(), 0u);
    buffer.appendChars("de", 2);
    EXPECT_EQ(buffer.str(), before);
    EXPECT_STREQ(buffer.str(), "de");
}

TEST(ByteBuffer, ReserveMakesRoomForJustThat) {
    ZELByteBuffer buffer(1, 128, 0);
    buffer.reserve(1000);
    EXPECT_EQ(buffer.capacity(), 1000u);
    EXPECT_STREQ(buffer.str(), "");
    buffer.appendChars("abc", 3);
    buffer.reserve(10);
    EXPECT_EQ(buffer.capacity(), 1000u);
    buffer.reserve(2000);
    EXPECT_EQ(contents(buffer), "abc");
}

TEST(ByteBuffer, ShrinkToFitDropsTheSlackAndKeepsTheBytes) {
    ZELByteBuffer buffer(1, 128, 0);
    buffer.appendChars("abc", 3);
    buffer.shrinkToFit();
    EXPECT_EQ(buffer.capacity(), 3u);
    EXPECT_STREQ(buffer.str(), "abc");
    buffer.appendChars("d", 1);
    EXPECT_STREQ(buffer.str(), "abcd");
    buffer.reset();
    buffer.shrinkToFit();
    EXPECT_EQ(buffer.capacity(), 0u);
    EXPECT_STREQ(buffer.str(), "");
    buffer.appendChars("e", 1);
    EXPECT_STREQ(buffer.str(), "e");
}

TEST(ByteBuffer, TruncateAndChopCutTheEnds) {
    ZELByteBuffer buffer;
    buffer.truncate(3);
    buffer.chop(3);
    EXPECT_STREQ(buffer.str(), "");
    buffer.appendChars("0123456789", 10);
    buffer.truncate(20);
    EXPECT_EQ(buffer.pcount(), 10u);
    buffer.truncate(8);
    EXPECT_STREQ(buffer.str(), "01234567");
    buffer.chop(0);
    buffer.chop(3);
    EXPECT_STREQ(buffer.str(), "34567");
    EXPECT_EQ(buffer.pcount(), 5u);
    buffer.chop(6);
    EXPECT_STREQ(buffer.str(), "");
    EXPECT_EQ(buffer.pcount(), 0u);
}

TEST(ByteBuffer, ExtendAndCommitWriteInPlace) {
    ZELByteBuffer buffer(1, 4, 0);
    buffer.appendChars("ab", 2);
    char* end = buffer.extend(10);
    std::memcpy(end, "cdef", 4);
    buffer.commit(4);
    EXPECT_STREQ(buffer.str(), "abcdef");
    std::memcpy(buffer.extend(3), "xyz", 3);
    buffer.commit(0);
    EXPECT_STREQ(buffer.str(), "abcdef");
    ZELByteBuffer empty;
    empty.commit(0);
    EXPECT_STREQ(empty.str(), "");
}

TEST(ByteBuffer, CopyIsIndependentAndTight) {
    ZELByteBuffer buffer(1, 128, 0);
    buffer.appendChars("abc", 3);
    ZELByteBuffer copy(buffer);
    EXPECT_EQ(copy.capacity(), 3u);
    copy.appendChars("d", 1);
    EXPECT_STREQ(buffer.str(), "abc");
    EXPECT_STREQ(copy.str(), "abcd");
    buffer = copy;
    EXPECT_STREQ(buffer.str(), "abcd");
    const ZELByteBuffer& same = buffer;
    buffer = same;
    EXPECT_STREQ(buffer.str(), "abcd");
}

TEST(ByteBuffer, MoveTakesTheAllocation) {
    ZELByteBuffer buffer(1, 128, 0);
    buffer.appendChars("abc", 3);
    const char* bytes = buffer.str();
    ZELByteBuffer moved(std::move(buffer));
    EXPECT_EQ(moved.str(), bytes);
    EXPECT_STREQ(buffer.str(), "");
    buffer.appendChars("x", 1);
    buffer = std::move(moved);
    EXPECT_EQ(buffer.str(), bytes);
}

TEST(ByteBuffer, DerivedClassReachesTheBytes) {
    class Trimmed : private ZELByteBuffer {
    public:
        Trimmed() : ZELByteBuffer(1, 128, 0) {}
        using ZELByteBuffer::appendChars;
        using ZELByteBuffer::str;
        void cut() { m_pBuffer[--m_length] = '\0'; }
    };
    Trimmed text;
    text.appendChars("abc", 3);
    text.cut();
    EXPECT_STREQ(text.str(), "ab");
}

TEST(ByteBuffer, ImpossibleLengthIsOutOfMemory) {
    ZELByteBuffer buffer;
    buffer.appendChars("abc", 3);
    EXPECT_THROW(buffer.extend(std::numeric_limits<std::size_t>::max()), ZELOutOfMemoryError);
    EXPECT_THROW(buffer.extend(std::numeric_limits<std::size_t>::max() - 3), ZELOutOfMemoryError);
    EXPECT_THROW(buffer.reserve(std::numeric_limits<std::size_t>::max()), ZELOutOfMemoryError);
    EXPECT_STREQ(buffer.str(), "abc");
}

TEST(ByteBuffer, IsFiveWords) {
    EXPECT_LE(sizeof(ZELByteBuffer), 5 * sizeof(void*));
}

}  // namespace
