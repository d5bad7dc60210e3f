#include <zel/ZELOwner.h>

#include <gtest/gtest.h>

#include <utility>

namespace {

struct Counted {
    explicit Counted(int& alive) : count(alive) { ++count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() { --count; }
    int& count;
};

}  // namespace

TEST(Owner, OwnsNothingAtFirst) {
    const ZELOwner<Counted> owner;
    EXPECT_FALSE(owner);
    EXPECT_TRUE(owner == nullptr);
    EXPECT_EQ(owner.get(), nullptr);
}

TEST(Owner, DeletesItsObjectAtItsEnd) {
    int alive = 0;
    {
        const ZELOwner<Counted> owner(new Counted(alive));
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(&owner->count, &alive);
        EXPECT_EQ(&(*owner).count, &alive);
    }
    EXPECT_EQ(alive, 0);
}

TEST(Owner, DeletesItsObjectWhenItGetsAnother) {
    int first = 0;
    int second = 0;
    ZELOwner<Counted> owner(new Counted(first));
    owner.reset(new Counted(second));
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
    owner.reset();
    EXPECT_EQ(second, 0);
    EXPECT_FALSE(owner);
}

TEST(Owner, HandsItsObjectOverWhenMoved) {
    int first = 0;
    int second = 0;
    ZELOwner<Counted> from(new Counted(first));
    ZELOwner<Counted> to(std::move(from));
    EXPECT_EQ(first, 1);
    EXPECT_FALSE(from);  // NOLINT(bugprone-use-after-move): what a move leaves is promised
    EXPECT_TRUE(to);

    to = ZELOwner<Counted>(new Counted(second));
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST(Owner, KeepsItsObjectWhenMovedToItself) {
    int alive = 0;
    ZELOwner<Counted> owner(new Counted(alive));
    ZELOwner<Counted>& same = owner;
    owner = std::move(same);
    EXPECT_EQ(alive, 1);
    EXPECT_TRUE(owner);
}

TEST(Owner, LeavesAReleasedObjectToTheCaller) {
    int alive = 0;
    ZELOwner<Counted> owner(new Counted(alive));
    Counted* const released = owner.release();
    EXPECT_FALSE(owner);
    EXPECT_EQ(alive, 1);
    delete released;
}
