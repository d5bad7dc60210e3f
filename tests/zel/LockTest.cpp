#include <zel/ZELThreadCriticalSection.h>
#include <zel/ZELThreadGuard.h>
#include <zel/ZELThreadLockableResource.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>
#include <vector>

namespace {

// These lines fail to compile if a lock needs code at load time.
constinit ZELThreadLockableResource resource;
constinit ZELThreadCriticalSection section;

bool isFree(ZELThreadLockableResource& lock) {
    bool free = false;
    std::thread([&] {
        free = lock.tryLock();
        if (free) lock.unlock();
    }).join();
    return free;
}

TEST(ThreadGuard, HoldsTheLockWhileItLives) {
    EXPECT_TRUE(isFree(resource));
    {
        const ZELThreadGuard guard(resource);
        EXPECT_FALSE(isFree(resource));
    }
    EXPECT_TRUE(isFree(resource));
}

TEST(ThreadGuard, LetsTheLockGoWhenAnExceptionPasses) {
    try {
        const ZELThreadGuard guard(section);
        throw std::runtime_error("");
    } catch (const std::runtime_error&) {
    }
    EXPECT_TRUE(isFree(section));
}

TEST(ThreadGuard, KeepsThreadsApart) {
    int counter = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < 10000; ++n) {
                const ZELThreadGuard guard(section);
                ++counter;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counter, 40000);
}

}  // namespace
