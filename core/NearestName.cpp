#include "core/NearestName.h"

#include <zel/ZELAscii.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace korva {

namespace {

/// Longer names are not looked at.
constexpr std::size_t longestName = 64;

/// How many letters have to be put in, taken out or changed to make the one of the other.
std::size_t distance(std::string_view left, std::string_view right) {
    std::array<std::size_t, longestName + 1> row{};
    for (std::size_t j = 0; j <= right.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const bool isSame = zel::toLower(left[i - 1]) == zel::toLower(right[j - 1]);
            const std::size_t changed = diagonal + (isSame ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row[right.size()];
}

}  // namespace

const char* nearestName(std::string_view name, std::span<const char* const> names) {
    const char* nearest = nullptr;
    std::size_t smallest = name.size() > longestName ? 0 : (name.size() + 1) / 2;
    for (const char* const candidate : names) {
        const std::string_view text(candidate);
        if (smallest == 0 || text.size() > longestName) continue;
        const std::size_t found = distance(name, text);
        if (found >= smallest) continue;
        smallest = found;
        nearest = candidate;
    }
    return nearest;
}

}  // namespace korva
