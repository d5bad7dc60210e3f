// What a document may ask for before reading it is given up.
#pragma once

#include <cstddef>

namespace korva {

/// The limits of a deserializer, which documents them at its setters.
struct ReadLimits {
    std::size_t depth = 10'000;
    std::size_t text = std::size_t{1} << 30U;
    std::size_t entityExpansions = 50'000;
};

}  // namespace korva
