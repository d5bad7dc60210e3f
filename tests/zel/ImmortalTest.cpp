#include <zel/ZELImmortal.h>

#include <gtest/gtest.h>

#include <new>

namespace {

struct Watched {
    explicit Watched(int& made) { ++made; }
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    ~Watched() { ADD_FAILURE() << "an immortal object was destroyed"; }
    int value = 7;
};

Watched& first(int& made) {
    return zel::immortal<Watched>([&made](void* at) { return ::new (at) Watched(made); });
}

Watched& second(int& made) {
    return zel::immortal<Watched>([&made](void* at) { return ::new (at) Watched(made); });
}

const int& stubborn(int& tries) {
    return zel::immortal<const int>([&tries](void* at) {
        if (++tries == 1) throw std::bad_alloc();
        return ::new (at) int(tries);
    });
}

}  // namespace

TEST(Immortal, IsMadeOnce) {
    int made = 0;
    Watched& object = first(made);
    EXPECT_EQ(made, 1);
    EXPECT_EQ(object.value, 7);
    EXPECT_EQ(&first(made), &object);
    EXPECT_EQ(made, 1);
}

TEST(Immortal, IsAnotherInAnotherPlace) {
    int made = 0;
    EXPECT_NE(&first(made), &second(made));
    EXPECT_EQ(second(made).value, 7);
}

TEST(Immortal, IsTriedAgainAfterAFailure) {
    int tries = 0;
    EXPECT_THROW(stubborn(tries), std::bad_alloc);
    EXPECT_EQ(stubborn(tries), 2);
    EXPECT_EQ(stubborn(tries), 2);
    EXPECT_EQ(tries, 2);
}
