#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/ForEachFailingAllocation.h"
#include "tests/support/TestStreams.h"

#include <korva/KORVAXSBase64Binary.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace {

using korva::test::CollectingStream;
using korva::test::liveAllocations;
using korva::test::TextStreamable;

std::string_view bytes(const KORVAXSBase64Binary& value) {
    return {value.str(), value.pcount()};
}

std::string written(const KORVAXSBase64Binary& value) {
    CollectingStream out;
    value.serialize(out);
    EXPECT_FALSE(out.closed);
    return out.text;
}

TEST(Base64Binary, StartsEmpty) {
    const KORVAXSBase64Binary value;
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_EQ(value.pcount(), 0u);
    EXPECT_EQ(value.streamable(), nullptr);
    EXPECT_FALSE(value.getIsContentId());
    EXPECT_EQ(written(value), "");
}

TEST(Base64Binary, CopiesTheBytesItIsMadeFrom) {
    char data[] = {'a', '\0', 'b'};
    const KORVAXSBase64Binary value(data, 3);
    data[0] = 'x';
    EXPECT_EQ(bytes(value), std::string_view("a\0b", 3));
}

TEST(Base64Binary, LengthZeroMeansUpToTheNul) {
    EXPECT_EQ(bytes(KORVAXSBase64Binary("text", 0)), "text");
    const KORVAXSBase64Binary empty("", 0);
    EXPECT_EQ(empty.pcount(), 0u);
}

TEST(Base64Binary, NullDataLeaveItEmpty) {
    const KORVAXSBase64Binary value(nullptr, 5);
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_EQ(value.pcount(), 0u);
}

TEST(Base64Binary, AppendAllocatesAndGrows) {
    KORVAXSBase64Binary value;
    std::string expected;
    for (int i = 0; i < 100; ++i) {
        const std::string piece(static_cast<std::size_t>(i % 7 + 1),
                                static_cast<char>('a' + i % 26));
        value.append(piece.data(), piece.size());
        expected += piece;
    }
    value.append("tail", 0);
    expected += "tail";
    EXPECT_EQ(bytes(value), expected);
}

TEST(Base64Binary, AppendMakesRoomForTwiceTheNewBytes) {
    KORVAXSBase64Binary value;
    value.append("abcd", 4);  // capacity 8
    std::size_t before = korva::test::allocationsSoFar();
    value.append("efgh", 4);
    EXPECT_EQ(korva::test::allocationsSoFar(), before);
    value.append("i", 1);  // capacity 10
    EXPECT_EQ(korva::test::allocationsSoFar(), before + 1);
    before = korva::test::allocationsSoFar();
    value.append("j", 1);
    EXPECT_EQ(korva::test::allocationsSoFar(), before);
    value.append("k", 1);
    EXPECT_EQ(korva::test::allocationsSoFar(), before + 1);
    EXPECT_EQ(bytes(value), "abcdefghijk");
}

TEST(Base64Binary, AppendGoesOnBehindTheBytesItWasMadeFrom) {
    KORVAXSBase64Binary value("abc", 3);
    value.append("de", 2);
    EXPECT_EQ(bytes(value), "abcde");
}

TEST(Base64Binary, AppendRefusesAReference) {
    KORVAXSBase64Binary value;
    value.reference("text", 4);
    EXPECT_ASSERTION(value.append("x", 1), "ZEL_ASSERT(m_buffer == NULL);");
    EXPECT_EQ(bytes(value), "text");
}

TEST(Base64Binary, AppendRefusesNullData) {
    KORVAXSBase64Binary value;
    EXPECT_ASSERTION(value.append(nullptr, 1), "ZEL_ASSERT(data);");
    EXPECT_EQ(value.pcount(), 0u);
}

TEST(Base64Binary, AppendOfNothingToNothingIsRefused) {
    KORVAXSBase64Binary value;
    EXPECT_ASSERTION(value.append("", 0), "ZEL_ASSERT(m_buffer);");
    value.append("x", 1);
    value.append("", 0);
    EXPECT_EQ(bytes(value), "x");
}

TEST(Base64Binary, AppendLetsAStreamableGo) {
    const TextStreamable source("stream");
    KORVAXSBase64Binary value;
    value.reference(source);
    value.append("text", 4);
    EXPECT_EQ(value.streamable(), nullptr);
    EXPECT_EQ(bytes(value), "text");
}

TEST(Base64Binary, ReferencePointsAtTheCallersBytes) {
    const char data[] = "bytes";
    KORVAXSBase64Binary value;
    value.reference(data, 3);
    EXPECT_EQ(value.str(), data);
    EXPECT_EQ(value.pcount(), 3u);
    value.reference(data, 0);
    EXPECT_EQ(value.pcount(), 5u);
    value.reference(nullptr, 3);
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_EQ(value.pcount(), 0u);
}

TEST(Base64Binary, ReferenceFreesWhatIsOwned) {
    const std::size_t live = liveAllocations();
    const char* const data = "data";
    const TextStreamable source("stream");
    const std::size_t withSource = liveAllocations();
    KORVAXSBase64Binary value("owned", 5);
    value.reference(data, 4);
    EXPECT_EQ(liveAllocations(), withSource);
    value.reference(nullptr, 0);
    value.append("owned", 5);
    value.reference(source);
    EXPECT_EQ(liveAllocations(), withSource);
    EXPECT_GE(withSource, live);
}

TEST(Base64Binary, DestructorFreesOnlyWhatIsOwned) {
    const std::size_t live = liveAllocations();
    const char* const data = "data";
    {
        KORVAXSBase64Binary owned("data", 4);
        KORVAXSBase64Binary referenced;
        referenced.reference(data, 4);
    }
    EXPECT_EQ(liveAllocations(), live);
    EXPECT_STREQ(data, "data");
}

TEST(Base64Binary, CountOfAStreamedValueIsMinusOne) {
    const TextStreamable source("stream");
    KORVAXSBase64Binary value("owned", 5);
    value.reference(source);
    EXPECT_EQ(value.pcount(), static_cast<std::size_t>(-1));
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_EQ(value.streamable(), &source);
    value.reference("x", 1);
    EXPECT_EQ(value.streamable(), nullptr);
    EXPECT_EQ(value.pcount(), 1u);
}

TEST(Base64Binary, ComparesByContent) {
    const KORVAXSBase64Binary value("a\0b", 3);
    const KORVAXSBase64Binary same("a\0b", 3);
    const KORVAXSBase64Binary other("a\0c", 3);
    const KORVAXSBase64Binary shorter("a", 1);
    EXPECT_TRUE(value == value);
    EXPECT_TRUE(value == same);
    EXPECT_FALSE(value != same);
    EXPECT_FALSE(value == other);
    EXPECT_TRUE(value != other);
    EXPECT_FALSE(value == shorter);
    EXPECT_TRUE(KORVAXSBase64Binary() == KORVAXSBase64Binary("", 0));
}

TEST(Base64Binary, ReferencedBytesEqualOwnedOnes) {
    KORVAXSBase64Binary reference;
    reference.reference("text", 4);
    EXPECT_TRUE(reference == KORVAXSBase64Binary("text", 4));
}

TEST(Base64Binary, ContentIdFlagPlaysNoPartInComparison) {
    KORVAXSBase64Binary id("id", 2);
    id.setIsContentId(true);
    EXPECT_TRUE(id == KORVAXSBase64Binary("id", 2));
}

TEST(Base64Binary, StreamedValueIsComparedWithItselfOnly) {
    const TextStreamable source("stream");
    KORVAXSBase64Binary streamed;
    streamed.reference(source);
    const KORVAXSBase64Binary empty;
    EXPECT_TRUE(streamed == streamed);
    EXPECT_ASSERTION(streamed == empty, "ZEL_ASSERT(!m_streamable);");
    EXPECT_FALSE(streamed == KORVAXSBase64Binary("x", 1));
    // The other side's stream is not looked at.
    EXPECT_TRUE(empty == streamed);
}

TEST(Base64Binary, IsWrittenInBase64) {
    EXPECT_EQ(written(KORVAXSBase64Binary("abcd", 4)), "YWJjZA==");
    const TextStreamable source("abcde");
    KORVAXSBase64Binary streamed;
    streamed.reference(source);
    EXPECT_EQ(written(streamed), "YWJjZGU=");
    KORVAXSBase64Binary reference;
    reference.reference("abc", 3);
    EXPECT_EQ(written(reference), "YWJj");
}

TEST(Base64Binary, ContentIdIsWrittenAsItStands) {
    KORVAXSBase64Binary id("part-1@host", 0);
    id.setIsContentId(true);
    EXPECT_EQ(written(id), "part-1@host");
}

TEST(Base64Binary, ContentIdOfLengthZeroWritesNothingAtAll) {
    KORVAXSBase64Binary id;
    id.setIsContentId(true);
    CollectingStream out;
    id.serialize(out);
    EXPECT_EQ(out.writes, 0);
}

TEST(Base64Binary, StreamIsEncodedWhateverTheContentIdFlag) {
    const TextStreamable source("abc");
    KORVAXSBase64Binary value;
    value.reference(source);
    value.setIsContentId(true);
    EXPECT_EQ(written(value), "YWJj");
}

TEST(Base64Binary, LargeValueIsWrittenWhole) {
    const std::string data(100000, 'a');
    const std::string text = written(KORVAXSBase64Binary(data.data(), data.size()));
    EXPECT_EQ(text.size(), (data.size() + 2) / 3 * 4);
    EXPECT_EQ(text.substr(0, 8), "YWFhYWFh");
}

TEST(Base64Binary, RaisesOutOfMemoryErrorAndStaysAsItWas) {
    EXPECT_EQ(korva::test::forEachFailingAllocation([] { KORVAXSBase64Binary value("abc", 3); }),
              1u);
    KORVAXSBase64Binary value("abc", 3);
    {
        const korva::test::AllocationFailure failure(1);
        EXPECT_THROW(value.append("def", 3), ZELOutOfMemoryError);
    }
    EXPECT_EQ(bytes(value), "abc");
    const TextStreamable source("stream");
    value.reference(source);
    {
        const korva::test::AllocationFailure failure(1);
        EXPECT_THROW(value.append("def", 3), ZELOutOfMemoryError);
    }
    EXPECT_EQ(value.streamable(), &source);
}

TEST(Base64Binary, AppendOfMoreThanMemoryHoldsRaisesOutOfMemoryError) {
    KORVAXSBase64Binary value("abc", 3);
    EXPECT_THROW(value.append("x", static_cast<std::size_t>(-1) / 2), ZELOutOfMemoryError);
    EXPECT_THROW(value.append("x", static_cast<std::size_t>(-1)), ZELOutOfMemoryError);
    EXPECT_EQ(bytes(value), "abc");
}

}  // namespace
