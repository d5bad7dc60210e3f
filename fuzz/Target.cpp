#include "fuzz/Target.h"

#include "fuzz/Cost.h"

#include <xercesc/util/PlatformUtils.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::size_t refusedCount = 0;

}  // namespace

std::size_t korva::fuzz::refusedSoFar() noexcept {
    return refusedCount;
}

void korva::fuzz::failed(const char* claim, const char* reason) {
    std::fprintf(stderr, "%s\nThis does not hold: %s.\n", reason, claim);
    std::abort();
}

void korva::fuzz::require(bool holds, const char* claim) {
    if (!holds) failed(claim, "");
}

void korva::fuzz::requireSame(std::string_view left, std::string_view right, const char* claim) {
    if (left == right) return;
    constexpr std::size_t context = 100;
    const auto at = static_cast<std::size_t>(
        std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first - left.begin());
    const std::size_t from = at - std::min(at, context);
    for (const std::string_view text : {left, right})
        std::fprintf(stderr, "%s\n", std::string(text.substr(from, 2 * context)).c_str());
    require(false, claim);
}

// The two functions that libFuzzer calls.

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    xercesc::XMLPlatformUtils::Initialize();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korva::fuzz::Cost cost(size);
    try {
        korva::fuzz::attack({reinterpret_cast<const char*>(data), size});
    } catch (const ZELThrowable& refusal) {
        ++refusedCount;
        korva::fuzz::require(refusal.toString() != nullptr, "a refusal has a text");
    }
    cost.check();
    return 0;
}
