#include <zel/ZELAssertError.h>
#include <zel/ZELReferenceCount.h>
#include <zel/ZELSmartPointer.h>
#include <zel/ZELThreadUnsafeReferenceCount.h>

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

template <class Base>
struct Counted : Base {
    explicit Counted(int& ends) : m_ends(ends) {}
    ~Counted() override { ++m_ends; }
    int& m_ends;
};

template <class Base>
class EveryReferenceCount : public testing::Test {};

using Counts = testing::Types<ZELThreadUnsafeReferenceCount, ZELReferenceCount>;
TYPED_TEST_SUITE(EveryReferenceCount, Counts, );

TYPED_TEST(EveryReferenceCount, StartsAtZeroAndEndsWithTheLastReference) {
    int ends = 0;
    auto* counted = new Counted<TypeParam>(ends);
    EXPECT_EQ(counted->getReferenceCount(), 0u);
    counted->addReference();
    counted->addReference();
    EXPECT_EQ(counted->getReferenceCount(), 2u);
    counted->removeReference();
    EXPECT_EQ(counted->getReferenceCount(), 1u);
    EXPECT_EQ(ends, 0);
    counted->removeReference();
    EXPECT_EQ(ends, 1);
}

TYPED_TEST(EveryReferenceCount, LastReferenceCallsCleanup) {
    struct Kept : TypeParam {
        void cleanup() override { ++cleanups; }
        int cleanups = 0;
    };
    Kept kept;
    kept.addReference();
    kept.removeReference();
    EXPECT_EQ(kept.cleanups, 1);
    EXPECT_EQ(kept.getReferenceCount(), 0u);
}

TYPED_TEST(EveryReferenceCount, RemovingWhatIsNotThereIsAnAssertion) {
    TypeParam counted;
    try {
        counted.removeReference();
        FAIL();
    } catch (const ZELAssertError& error) {
        EXPECT_STREQ(error.getText(), "ZEL_ASSERT(count > 0);");
    }
    EXPECT_EQ(counted.getReferenceCount(), 0u);
}

TYPED_TEST(EveryReferenceCount, CopyCountsFromZeroAndAssignmentKeepsTheCount) {
    TypeParam counted;
    counted.addReference();
    counted.addReference();
    TypeParam copy(counted);
    EXPECT_EQ(copy.getReferenceCount(), 0u);
    copy = counted;
    EXPECT_EQ(copy.getReferenceCount(), 0u);
    EXPECT_EQ(counted.getReferenceCount(), 2u);
}

TEST(ReferenceCount, DerivesFromTheUnsafeOneAndAddsNothing) {
    EXPECT_TRUE((std::is_base_of_v<ZELThreadUnsafeReferenceCount, ZELReferenceCount>));
    EXPECT_EQ(sizeof(ZELReferenceCount), sizeof(ZELThreadUnsafeReferenceCount));
    EXPECT_EQ(sizeof(ZELReferenceCount), 2 * sizeof(void*));
}

TEST(ReferenceCount, CountsAcrossThreads) {
    ZELReferenceCount counted;
    counted.addReference();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < 20000; ++n) {
                counted.addReference();
                counted.removeReference();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counted.getReferenceCount(), 1u);
}

using Thing = Counted<ZELReferenceCount>;
using Pointer = ZELSmartPointer<Thing>;

TEST(SmartPointer, IsOnePointer) {
    EXPECT_EQ(sizeof(Pointer), sizeof(void*));
    EXPECT_FALSE(Pointer());
    EXPECT_EQ(Pointer(nullptr).get(), nullptr);
}

TEST(SmartPointer, HoldsAReferenceFromItsStartToItsEnd) {
    int ends = 0;
    auto* thing = new Thing(ends);
    {
        const Pointer pointer = thing;
        EXPECT_TRUE(pointer);
        EXPECT_EQ(thing->getReferenceCount(), 1u);
        EXPECT_EQ(pointer.get(), thing);
        EXPECT_EQ(&*pointer, thing);
        EXPECT_EQ(pointer->getReferenceCount(), 1u);
        {
            const Pointer copy(pointer);
            EXPECT_EQ(thing->getReferenceCount(), 2u);
        }
        EXPECT_EQ(thing->getReferenceCount(), 1u);
    }
    EXPECT_EQ(ends, 1);
}

TEST(SmartPointer, AssignmentLetsTheOldTargetGo) {
    int ends = 0;
    auto* first = new Thing(ends);
    auto* second = new Thing(ends);
    Pointer pointer(first);
    pointer = second;
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(second->getReferenceCount(), 1u);
    Pointer& same = pointer;
    pointer = same;
    EXPECT_EQ(second->getReferenceCount(), 1u);
    pointer = nullptr;
    EXPECT_EQ(ends, 2);
    EXPECT_FALSE(pointer);
}

TEST(SmartPointer, MoveTakesTheReferenceOver) {
    int ends = 0;
    Pointer from(new Thing(ends));
    Pointer to(std::move(from));
    EXPECT_EQ(to->getReferenceCount(), 1u);
    EXPECT_FALSE(from.get());
    from = std::move(to);
    EXPECT_EQ(from->getReferenceCount(), 1u);
}

TEST(SmartPointer, ConvertsToABaseAndToConst) {
    int ends = 0;
    const Pointer pointer(new Thing(ends));
    const ZELSmartPointer<ZELReferenceCount> base = pointer;
    EXPECT_EQ(base.get(), pointer.get());
    EXPECT_EQ(pointer->getReferenceCount(), 2u);
    EXPECT_FALSE((std::is_convertible_v<ZELSmartPointer<ZELReferenceCount>, Pointer>));
}

TEST(SmartPointer, Compares) {
    int ends = 0;
    auto* thing = new Thing(ends);
    const Pointer pointer(thing);
    EXPECT_TRUE(pointer == Pointer(thing));
    EXPECT_TRUE(pointer == thing);
    EXPECT_TRUE(pointer != nullptr);
    EXPECT_TRUE(Pointer() == nullptr);
    EXPECT_TRUE(pointer != Pointer());
}

}  // namespace
