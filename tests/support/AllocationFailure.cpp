#include "tests/support/AllocationFailure.h"

#include <atomic>
#include <cstdlib>
#include <new>

// What allocates without `operator new`, libxml2 for one, is counted too, where nobody else stands
// in for malloc.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define KORVA_COUNT_MALLOC
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void __libc_free(void* memory);
}
#endif

namespace korva::test {

/// The allocator below what is counted.
namespace memory {

#ifdef KORVA_COUNT_MALLOC
void* allocate(std::size_t size) noexcept {
    return __libc_malloc(size);
}
void release(void* block) noexcept {
    __libc_free(block);
}
#else
void* allocate(std::size_t size) noexcept {
    return std::malloc(size);
}
void release(void* block) noexcept {
    std::free(block);
}
#endif

}  // namespace memory

namespace {

constinit std::atomic<std::size_t> live{0};
constinit std::atomic<std::size_t> given{0};
constinit std::atomic<std::size_t> countdown{0};
constinit std::atomic<bool> failed{false};
constinit std::atomic<bool> exhausted{false};

/// Whether this allocation is to fail.
bool fails() noexcept {
    if (exhausted) return true;
    if (countdown == 0 || --countdown != 0) return false;
    failed = true;
    return true;
}

void* counted(void* memory) noexcept {
    if (memory != nullptr) {
        ++live;
        ++given;
    }
    return memory;
}

void* allocate(std::size_t size) noexcept {
    return fails() ? nullptr : counted(memory::allocate(size != 0 ? size : 1));
}

void release(void* memory) noexcept {
    if (memory == nullptr) return;
    --live;
    memory::release(memory);
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

bool countsMalloc() noexcept {
#ifdef KORVA_COUNT_MALLOC
    return true;
#else
    return false;
#endif
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

#ifdef KORVA_COUNT_MALLOC

// NOLINTBEGIN(bugprone-reserved-identifier)

extern "C" void* malloc(std::size_t size) {
    return korva::test::allocate(size);
}

extern "C" void* calloc(std::size_t count, std::size_t size) {
    return korva::test::fails() ? nullptr : korva::test::counted(__libc_calloc(count, size));
}

extern "C" void* realloc(void* memory, std::size_t size) {
    if (memory == nullptr) return malloc(size);
    if (size == 0) {
        korva::test::release(memory);
        return nullptr;
    }
    void* const grown = korva::test::fails() ? nullptr : __libc_realloc(memory, size);
    if (grown != nullptr) ++korva::test::given;
    return grown;
}

extern "C" void free(void* memory) {
    korva::test::release(memory);
}

// NOLINTEND(bugprone-reserved-identifier)

#endif
