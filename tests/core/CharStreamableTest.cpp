#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/TestStreams.h"

#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>

namespace {

using korva::test::CollectingStream;
using korva::test::TextStreamable;

std::string written(const KORVA_CharStreamable& value) {
    CollectingStream out;
    EXPECT_EQ(&(value >> out), &out);
    EXPECT_FALSE(out.closed);
    return out.text;
}

TEST(CharStreamable, StartsWithTheMarkerThatNoTextHas) {
    KORVA_CharStreamable value;
    EXPECT_EQ(std::memcmp(value.asCharStar(), "\xFF\xFF\xFF\x00", 4), 0);
    EXPECT_EQ(value.asCharStar(), reinterpret_cast<const char*>(&value));
    value.setIsContentId(true);
    EXPECT_EQ(std::memcmp(value.asCharStar(), "\xFF\xFE\xFF\x00", 4), 0);
    EXPECT_TRUE(value.getIsContentId());
    value.setIsContentId(false);
    EXPECT_EQ(std::memcmp(value.asCharStar(), "\xFF\xFF\xFF\x00", 4), 0);
    EXPECT_FALSE(value.getIsContentId());
}

TEST(CharStreamable, StartsEmpty) {
    const KORVA_CharStreamable value;
    EXPECT_EQ(value.getStreamable(), nullptr);
    EXPECT_EQ(value.getData(), nullptr);
    EXPECT_FALSE(value.getIsContentId());
    EXPECT_EQ(written(value), "");
}

TEST(CharStreamable, IsRecognisedByItsFirstBytes) {
    KORVA_CharStreamable value;
    EXPECT_TRUE(KORVA_CharStreamable::isCharStreamable(value.asCharStar()));
    value.setIsContentId(true);
    EXPECT_TRUE(KORVA_CharStreamable::isCharStreamable(value.asCharStar()));
    EXPECT_FALSE(KORVA_CharStreamable::isCharStreamable(nullptr));
    EXPECT_FALSE(KORVA_CharStreamable::isCharStreamable(""));
    EXPECT_FALSE(KORVA_CharStreamable::isCharStreamable("text"));
    EXPECT_TRUE(KORVA_CharStreamable::isCharStreamable("\xFF\xFF\xFF"));
    EXPECT_FALSE(KORVA_CharStreamable::isCharStreamable("\xFF\xFD\xFF"));
    EXPECT_FALSE(KORVA_CharStreamable::isCharStreamable("\xFF\xFF\xFFx"));
    EXPECT_FALSE(KORVA_CharStreamable::isCharStreamable("\xFE\xFF\xFF"));
}

TEST(CharStreamable, ReadsAShortTextOnlyUpToTheFirstByteThatDiffers) {
    // Each text ends exactly at the end of its block, so that the address sanitizer sees one byte
    // too many.
    for (const char* const text : {"", "\xFF", "\xFF\xFF", "\xFF\xFE"}) {
        const std::size_t size = std::strlen(text) + 1;
        auto* const copy = new char[size];
        std::memcpy(copy, text, size);
        EXPECT_FALSE(KORVA_CharStreamable::isCharStreamable(copy));
        delete[] copy;
    }
    auto* const one = new char[1]{'x'};
    EXPECT_FALSE(KORVA_CharStreamable::isCharStreamable(one));
    delete[] one;
}

TEST(CharStreamable, IsInitializedOnceOnly) {
    const TextStreamable source("stream");
    const char* const text = "!m_streamable && !m_data";
    const std::string expected = std::string("ZEL_ASSERT(") + text + ");";
    KORVA_CharStreamable fromText;
    fromText.initialize("text", false);
    EXPECT_ASSERTION(fromText.initialize("other", false), expected);
    EXPECT_ASSERTION(fromText.initialize(source, false), expected);
    EXPECT_STREQ(fromText.getData(), "text");
    EXPECT_EQ(fromText.getStreamable(), nullptr);
    KORVA_CharStreamable fromStream;
    fromStream.initialize(source, false);
    EXPECT_ASSERTION(fromStream.initialize("other", false), expected);
    EXPECT_ASSERTION(fromStream.initialize(source, false), expected);
    EXPECT_EQ(fromStream.getStreamable(), &source);
    EXPECT_EQ(fromStream.getData(), nullptr);
}

TEST(CharStreamable, RefusesNullData) {
    KORVA_CharStreamable value;
    EXPECT_ASSERTION(value.initialize(nullptr, false), "ZEL_ASSERT(data);");
    value.initialize("text", false);
    EXPECT_EQ(written(value), "text");
}

TEST(CharStreamable, CopyIsMadeFromACharStreamableOnly) {
    const char* const text = "ZEL_ASSERT(KORVA_CharStreamable::isCharStreamable(c));";
    EXPECT_ASSERTION(KORVA_CharStreamable("plain text"), text);
    EXPECT_ASSERTION(KORVA_CharStreamable(static_cast<const char*>(nullptr)), text);
}

TEST(CharStreamable, CopySharesThePieces) {
    const TextStreamable source("stream");
    KORVA_CharStreamable tail;
    tail.initialize(" and text", false);
    KORVA_CharStreamable original;
    original.initialize(source, true);
    original.setIsContentId(true);
    original.append(tail);
    const KORVA_CharStreamable copy(original.asCharStar());
    EXPECT_EQ(copy.getStreamable(), &source);
    EXPECT_TRUE(copy.getIsContentId());
    EXPECT_EQ(written(copy), written(original));
    EXPECT_TRUE(copy.sharesPiecesWith(original));
}

TEST(CharStreamable, DeletingACopyFreesNothing) {
    KORVA_CharStreamable tail;
    tail.initialize("b", false);
    KORVA_CharStreamable original;
    original.initialize("a", false);
    original.append(tail);
    const std::size_t live = korva::test::liveAllocations();
    delete new KORVA_CharStreamable(original.asCharStar());
    EXPECT_EQ(korva::test::liveAllocations(), live);
    EXPECT_EQ(written(original), "ab");
}

TEST(CharStreamable, AppendLinksBehindTheLastPieceOfTheChain) {
    KORVA_CharStreamable first;
    KORVA_CharStreamable second;
    KORVA_CharStreamable third;
    KORVA_CharStreamable fourth;
    first.initialize("1", false);
    second.initialize("2", false);
    third.initialize("3", false);
    fourth.initialize("4", false);
    first.append(second);
    third.append(fourth);
    first.append(third);
    EXPECT_EQ(written(first), "1234");
    EXPECT_EQ(written(second), "234");
    EXPECT_EQ(written(fourth), "4");
}

TEST(CharStreamable, AppendBeginsAChainThatHasNoPieceYet) {
    KORVA_CharStreamable first;
    KORVA_CharStreamable second;
    first.initialize("1", false);
    second.initialize("2", false);
    KORVA_CharStreamable* chain = nullptr;
    chain = &KORVA_CharStreamable::append(chain, first);
    EXPECT_EQ(chain, &first);
    chain = &KORVA_CharStreamable::append(chain, second);
    EXPECT_EQ(chain, &first);
    EXPECT_EQ(written(*chain), "12");
}

TEST(CharStreamable, EmptyPiecesAreSkipped) {
    KORVA_CharStreamable first;
    KORVA_CharStreamable second;
    KORVA_CharStreamable third;
    second.initialize("2", false);
    first.append(second);
    first.append(third);
    CollectingStream out;
    first >> out;
    EXPECT_EQ(out.text, "2");
    EXPECT_EQ(out.writes, 1);
}

TEST(CharStreamable, StreamableWritesItself) {
    const TextStreamable source("from the stream");
    KORVA_CharStreamable value;
    value.initialize(source, false);
    EXPECT_EQ(written(value), "from the stream");
    EXPECT_EQ(written(value), "from the stream");
}

TEST(CharStreamable, FlagOfTheFirstPieceEncodesTheWholeChainInOne) {
    const TextStreamable source("b");
    KORVA_CharStreamable first;
    KORVA_CharStreamable second;
    KORVA_CharStreamable third;
    first.initialize("a", true);
    second.initialize(source, false);
    third.initialize("cd", false);
    first.append(second);
    first.append(third);
    EXPECT_EQ(written(first), "YWJjZA==");  // "abcd" in one encoding, padded once
}

TEST(CharStreamable, FlagOfALaterPieceDoesNotCount) {
    KORVA_CharStreamable first;
    KORVA_CharStreamable second;
    first.initialize("a", false);
    second.initialize("b", true);
    first.append(second);
    EXPECT_EQ(written(first), "ab");
}

TEST(CharStreamable, SharesPiecesOnlyWithTheSameMarkerPiecesAndFlag) {
    const char* const data = "data";
    const TextStreamable source("s");
    KORVA_CharStreamable tail;
    KORVA_CharStreamable plain;
    plain.initialize(data, false);
    KORVA_CharStreamable same;
    same.initialize(data, false);
    EXPECT_TRUE(plain.sharesPiecesWith(same));
    same.setIsContentId(true);
    EXPECT_FALSE(plain.sharesPiecesWith(same));
    KORVA_CharStreamable encoded;
    encoded.initialize(data, true);
    EXPECT_FALSE(plain.sharesPiecesWith(encoded));
    KORVA_CharStreamable chained;
    chained.initialize(data, false);
    chained.append(tail);
    EXPECT_FALSE(plain.sharesPiecesWith(chained));
    KORVA_CharStreamable streamed;
    streamed.initialize(source, false);
    EXPECT_FALSE(plain.sharesPiecesWith(streamed));
}

}  // namespace
