#include "tests/support/ExpectThrow.h"

#include <tarn/TARNBase64Binary.h>
#include <tarn/TARN_Streamable.h>

#include <gtest/gtest.h>

namespace {

class NoBytes : public TARN_Streamable {
public:
    BRIMOutputStream& operator>>(BRIMOutputStream& out) const override { return out; }
};

TEST(TarnBase64Binary, StartsEmpty) {
    const TARNBase64Binary value;
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_EQ(value.pcount(), 0u);
    EXPECT_EQ(value.streamable(), nullptr);
    EXPECT_FALSE(value.getIsContentId());
}

TEST(TarnBase64Binary, RefersToBytesWithoutCopying) {
    const char bytes[] = {'a', '\0', 'b'};
    TARNBase64Binary value;
    value.reference(bytes, sizeof bytes);
    EXPECT_EQ(value.str(), bytes);
    EXPECT_EQ(value.pcount(), 3u);
}

TEST(TarnBase64Binary, ALengthOfZeroMakesNoReference) {
    TARNBase64Binary value;
    value.reference("abc", 3);
    value.reference("abc", 0);
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_EQ(value.pcount(), 0u);
    value.reference(nullptr, 0);
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_ASSERTION(value.reference(nullptr, 1), "ZEL_ASSERT(bytes != NULL || length == 0);");
}

TEST(TarnBase64Binary, BytesAndStreamReplaceEachOther) {
    const NoBytes stream;
    TARNBase64Binary value;
    value.reference("abc", 3);
    value.reference(stream);
    EXPECT_EQ(value.streamable(), &stream);
    EXPECT_EQ(value.str(), nullptr);
    EXPECT_EQ(value.pcount(), static_cast<std::size_t>(-1));
    value.reference("abc", 3);
    EXPECT_EQ(value.streamable(), nullptr);
    EXPECT_EQ(value.pcount(), 3u);
}

TEST(TarnBase64Binary, IsEqualByItsBytes) {
    const std::string copy = "abc";
    TARNBase64Binary left;
    TARNBase64Binary right;
    EXPECT_TRUE(left.isEqualTo(right));
    left.reference("abc", 3);
    EXPECT_FALSE(left.isEqualTo(right));
    right.reference(copy.data(), 3);
    EXPECT_TRUE(left.isEqualTo(right));
    right.setIsContentId(true);
    EXPECT_FALSE(left.isEqualTo(right));
    right.setIsContentId(false);
    right.reference("abd", 3);
    EXPECT_FALSE(left.isEqualTo(right));
    const NoBytes stream;
    left.reference(stream);
    EXPECT_FALSE(left.isEqualTo(right));
    right.reference(stream);
    EXPECT_TRUE(left.isEqualTo(right));
}

}  // namespace
