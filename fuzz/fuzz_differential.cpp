// Documents and envelopes through both parsers: what comes of them is the same.
#include "fuzz/Target.h"
#include "fuzz/TwoSources.h"

#include <array>

void korva::fuzz::attack(std::string_view input) {
    // By the input, so that the same one is always read in the same way.
    constexpr std::array<std::size_t, 5> pieces{4096, 1000, 3, 1, 65536};
    const std::size_t piece = pieces[input.size() % pieces.size()];
    const std::string difference = differenceOfSources(input, piece);
    if (!difference.empty()) failed("both parsers read it as the same", difference.c_str());
}
