/// What a misspelt name was meant to be.
#pragma once

#include <span>
#include <string_view>

namespace korva {

/// The name among `names` that differs from `name` in the fewest letters, or null where none is
/// alike: half of the letters or more would have to be changed. Upper and lower case are alike.
const char* nearestName(std::string_view name, std::span<const char* const> names);

}  // namespace korva
