#include "fuzz/Cost.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KORVA_FUZZ_ADDRESS_SANITIZER
#elif __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define KORVA_FUZZ_OTHER_SANITIZER
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) && !defined(KORVA_FUZZ_ADDRESS_SANITIZER)
#define KORVA_FUZZ_ADDRESS_SANITIZER
#elif defined(__SANITIZE_THREAD__) && !defined(KORVA_FUZZ_OTHER_SANITIZER)
#define KORVA_FUZZ_OTHER_SANITIZER
#endif

namespace {

constexpr long long freeBytes = 64LL << 20U;
constexpr long long bytesForEach = 16;
constexpr double mostSeconds = 1;

// Statically initialized: the first allocation comes before any constructor.
std::atomic<bool> isMeasuring{false};
std::atomic<long long> held{0};  ///< negative when more was given back than taken
std::atomic<long long> mostHeld{0};
std::atomic<long long> limit{std::numeric_limits<long long>::max()};

[[maybe_unused]] void took(std::size_t size) noexcept {
    if (!isMeasuring.load(std::memory_order_relaxed)) return;
    const long long now = held.fetch_add(static_cast<long long>(size), std::memory_order_relaxed) +
                          static_cast<long long>(size);
    if (now <= mostHeld.load(std::memory_order_relaxed)) return;
    mostHeld.store(now, std::memory_order_relaxed);
    if (now <= limit.load(std::memory_order_relaxed)) return;
    isMeasuring.store(false, std::memory_order_relaxed);
    std::fprintf(stderr, "The attack holds %lld bytes; it may hold %lld.\n", now, limit.load());
    std::abort();
}

[[maybe_unused]] void gave(std::size_t size) noexcept {
    if (isMeasuring.load(std::memory_order_relaxed))
        held.fetch_sub(static_cast<long long>(size), std::memory_order_relaxed);
}

double processorSeconds() noexcept {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace

#if defined(KORVA_FUZZ_ADDRESS_SANITIZER)

// Of the sanitizer's interface, whose header does not come with every compiler.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier)
int __sanitizer_install_malloc_and_free_hooks(void (*took)(const volatile void* block,
                                                           std::size_t size),
                                              void (*gave)(const volatile void* block));
std::size_t __sanitizer_get_allocated_size(const volatile void* block);
// NOLINTEND(bugprone-reserved-identifier)
}

namespace {

const int hooks = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void*, std::size_t size) { took(size); },
    [](const volatile void* block) {
        if (block != nullptr && isMeasuring.load(std::memory_order_relaxed))
            gave(__sanitizer_get_allocated_size(block));
    });

}  // namespace

#elif defined(__GLIBC__) && !defined(KORVA_FUZZ_OTHER_SANITIZER)

#include <cerrno>
#include <malloc.h>

extern "C" {

void* __libc_malloc(std::size_t size);                // NOLINT(bugprone-reserved-identifier)
void* __libc_calloc(std::size_t count, std::size_t);  // NOLINT(bugprone-reserved-identifier)
void* __libc_realloc(void* block, std::size_t size);  // NOLINT(bugprone-reserved-identifier)
void* __libc_memalign(std::size_t, std::size_t);      // NOLINT(bugprone-reserved-identifier)
void __libc_free(void* block);                        // NOLINT(bugprone-reserved-identifier)

void* malloc(std::size_t size) noexcept {
    void* const block = __libc_malloc(size);
    took(malloc_usable_size(block));
    return block;
}

void* calloc(std::size_t count, std::size_t size) noexcept {
    void* const block = __libc_calloc(count, size);
    took(malloc_usable_size(block));
    return block;
}

void* realloc(void* block, std::size_t size) noexcept {
    const std::size_t before = malloc_usable_size(block);
    void* const moved = __libc_realloc(block, size);
    if (moved != nullptr || size == 0) gave(before);
    took(malloc_usable_size(moved));
    return moved;
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
    void* const block = __libc_memalign(alignment, size);
    took(malloc_usable_size(block));
    return block;
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
    return memalign(alignment, size);
}

int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
    *block = memalign(alignment, size);
    return *block != nullptr ? 0 : ENOMEM;
}

void free(void* block) noexcept {
    gave(malloc_usable_size(block));
    __libc_free(block);
}

}  // extern "C"

#endif

namespace korva::fuzz {

Cost::Cost(std::size_t inputSize) noexcept : m_begin(processorSeconds()) {
    held = 0;
    mostHeld = 0;
    limit = freeBytes + bytesForEach * static_cast<long long>(inputSize);
    isMeasuring = true;
}

void Cost::check() {
    isMeasuring = false;
    const double taken = seconds();
    if (taken <= mostSeconds) return;
    std::fprintf(stderr, "The attack took %.2f seconds; it may take %.2f.\n", taken, mostSeconds);
    std::abort();
}

std::size_t Cost::peak() noexcept {
    return static_cast<std::size_t>(mostHeld.load());
}

double Cost::seconds() const noexcept {
    return processorSeconds() - m_begin;
}

}  // namespace korva::fuzz
