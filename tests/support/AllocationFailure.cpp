#include "tests/support/AllocationFailure.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace korva::test {

namespace {

constinit std::atomic<std::size_t> live{0};
constinit std::atomic<std::size_t> given{0};
constinit std::atomic<std::size_t> countdown{0};
constinit std::atomic<bool> failed{false};
constinit std::atomic<bool> exhausted{false};

void* allocate(std::size_t size) noexcept {
    if (exhausted) return nullptr;
    if (countdown != 0 && --countdown == 0) {
        failed = true;
        return nullptr;
    }
    void* memory = std::malloc(size != 0 ? size : 1);
    if (memory) {
        ++live;
        ++given;
    }
    return memory;
}

void release(void* memory) noexcept {
    if (!memory) return;
    --live;
    std::free(memory);
}

}  // namespace

AllocationFailure::AllocationFailure(std::size_t n) noexcept {
    failed = false;
    countdown = n;
}

AllocationFailure::~AllocationFailure() {
    countdown = 0;
}

bool AllocationFailure::happened() const noexcept {
    return failed;
}

NoMemory::NoMemory() noexcept {
    exhausted = true;
}
NoMemory::~NoMemory() {
    exhausted = false;
}

std::size_t liveAllocations() noexcept {
    return live;
}
std::size_t allocationsSoFar() noexcept {
    return given;
}

}  // namespace korva::test

void* operator new(std::size_t size) {
    if (void* memory = korva::test::allocate(size)) return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return korva::test::allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return korva::test::allocate(size);
}

void operator delete(void* memory) noexcept {
    korva::test::release(memory);
}
void operator delete[](void* memory) noexcept {
    korva::test::release(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    korva::test::release(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    korva::test::release(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    korva::test::release(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    korva::test::release(memory);
}
