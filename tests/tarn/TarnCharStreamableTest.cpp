#include "tests/support/ExpectThrow.h"
#include "tests/support/TestStreams.h"

#include <tarn/TARN_CharStreamable.h>
#include <tarn/TARN_Streamable.h>
#include <tarn/TARN_String.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class Letters : public TARN_Streamable {
public:
    BRIMOutputStream& operator>>(BRIMOutputStream& out) const override {
        out.write("abc", 3);
        return out;
    }
};

std::string written(const TARN_CharStreamable& text) {
    korva::test::CollectingStream out;
    text >> out;
    return out.text;
}

TEST(TarnCharStreamable, IsToldFromText) {
    const TARN_CharStreamable text;
    EXPECT_TRUE(TARN_CharStreamable::isCharStreamable(text.asCharStar()));
    for (const char* const plain : {"", "a", "\xFF", "\xFF\xFF",
                                    "\xFF\xFF\xFF"
                                    "a"})
        EXPECT_FALSE(TARN_CharStreamable::isCharStreamable(plain));
    EXPECT_FALSE(TARN_CharStreamable::isCharStreamable(nullptr));
}

TEST(TarnCharStreamable, WritesItsText) {
    TARN_CharStreamable text;
    EXPECT_EQ(written(text), "");
    text.initialize("abc", false);
    EXPECT_EQ(written(text), "abc");
    EXPECT_STREQ(text.getData(), "abc");
    EXPECT_EQ(text.getStreamable(), nullptr);
}

TEST(TarnCharStreamable, WritesItsStreamMoreThanOnce) {
    const Letters letters;
    TARN_CharStreamable text;
    text.initialize(letters, false);
    EXPECT_EQ(written(text), "abc");
    EXPECT_EQ(written(text), "abc");
    EXPECT_EQ(text.getStreamable(), &letters);
    EXPECT_EQ(text.getData(), nullptr);
}

TEST(TarnCharStreamable, WritesBase64) {
    const Letters letters;
    TARN_CharStreamable streamed;
    streamed.initialize(letters, true);
    EXPECT_EQ(written(streamed), "YWJj");
    TARN_CharStreamable text;
    text.initialize("abc", true);
    EXPECT_EQ(written(text), "YWJj");
}

TEST(TarnCharStreamable, HasOneSource) {
    const Letters letters;
    TARN_CharStreamable text;
    EXPECT_ASSERTION(text.initialize(nullptr, false), "ZEL_ASSERT(data);");
    text.initialize("abc", false);
    EXPECT_ASSERTION(text.initialize("abc", false), "ZEL_ASSERT(!m_streamable && !m_data);");
    EXPECT_ASSERTION(text.initialize(letters, false), "ZEL_ASSERT(!m_streamable && !m_data);");
}

TEST(TarnCharStreamable, MayBeTheIdOfAnAttachment) {
    TARN_CharStreamable text;
    EXPECT_FALSE(text.getIsContentId());
    text.setIsContentId(true);
    EXPECT_TRUE(text.getIsContentId());
    EXPECT_TRUE(TARN_CharStreamable::isCharStreamable(text.asCharStar()));
    text.setIsContentId(false);
    EXPECT_FALSE(text.getIsContentId());
}

TEST(TarnString, GrowsAndIsReset) {
    TARN_String text;
    text.appendChars("abc", 3);
    text.appendChars("d", 1);
    EXPECT_STREQ(text.str(), "abcd");
    EXPECT_EQ(text.pcount(), 4u);
    EXPECT_EQ(text.buffer()->str(), text.str());
    text.reset();
    EXPECT_STREQ(text.str(), "");
}

}  // namespace
