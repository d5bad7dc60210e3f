#include "tests/support/AllocationFailure.h"

#include <korva/KORVA_RefCount_ConstChar.h>
#include <zel/ZELSmartPointer.h>

#include <gtest/gtest.h>

namespace {

TEST(RefCountConstChar, LastHolderFreesTheText) {
    const std::size_t live = korva::test::liveAllocations();
    {
        ZELSmartPointer<KORVA_RefCount_ConstChar> first(
            new KORVA_RefCount_ConstChar(new char[3]{'a', 'b', '\0'}));
        const ZELSmartPointer<KORVA_RefCount_ConstChar> second(first);
        first = nullptr;
        EXPECT_STREQ(second->ptr(), "ab");
        EXPECT_EQ(korva::test::liveAllocations(), live + 2);
    }
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

TEST(RefCountConstChar, TakesAConstantTextAndNull) {
    const std::size_t live = korva::test::liveAllocations();
    {
        const char* const text = new char[2]{'x', '\0'};
        const ZELSmartPointer<KORVA_RefCount_ConstChar> holder(new KORVA_RefCount_ConstChar(text));
        EXPECT_EQ(holder->ptr(), text);
        const ZELSmartPointer<KORVA_RefCount_ConstChar> empty(
            new KORVA_RefCount_ConstChar(static_cast<const char*>(nullptr)));
        EXPECT_EQ(empty->ptr(), nullptr);
    }
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

}  // namespace
