#include <korva/KORVAChildIndex.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>

namespace {

TEST(ChildIndex, CarriesTheNumberInThePointer) {
    for (const std::size_t index : {std::size_t{1}, std::size_t{2}, std::size_t{1000000},
                                    std::numeric_limits<std::size_t>::max()})
        EXPECT_EQ(KORVAChildIndex::toIndex(KORVAChildIndex::toName(index)), index);
    EXPECT_NE(KORVAChildIndex::toName(1), KORVAChildIndex::toName(2));
}

TEST(ChildIndex, ZeroIsNull) {
    EXPECT_EQ(KORVAChildIndex::toName(0), nullptr);
    EXPECT_EQ(KORVAChildIndex::toIndex(nullptr), 0u);
}

}  // namespace
