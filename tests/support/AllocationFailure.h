/// Lets a test make any chosen allocation of the program fail, and counts what is allocated.
///
/// A program that uses this links `AllocationFailure.cpp`, which replaces the global `operator
/// new`, and `malloc` where no sanitizer does.
#pragma once

#include <cstddef>

namespace korva::test {

/// While it lives, the n-th allocation from its construction on fails, and no other. Counted
/// from 1; 0 lets all succeed.
class AllocationFailure {
public:
    explicit AllocationFailure(std::size_t n) noexcept;
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;
    ~AllocationFailure();

    /// True once the chosen allocation was asked for.
    bool happened() const noexcept;
};

/// While it lives, every allocation fails.
class NoMemory {
public:
    NoMemory() noexcept;
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
    ~NoMemory();
};

/// Whether blocks of `malloc` are among what fails and is counted.
bool countsMalloc() noexcept;

/// How many blocks are not yet freed.
std::size_t liveAllocations() noexcept;

/// How many blocks were given so far.
std::size_t allocationsSoFar() noexcept;

/// Calls `action` with the first allocation failing, then with the second, and so on, until it
/// gets through without one. Returns how many there were. `action` must catch what it expects.
template <class Action>
std::size_t failEachAllocation(Action action) {
    for (std::size_t n = 1;; ++n) {
        const AllocationFailure failure(n);
        action();
        if (!failure.happened()) return n - 1;
    }
}

}  // namespace korva::test
