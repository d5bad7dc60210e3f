/// How much memory this process ever had at once.
#pragma once

#include <cstddef>

namespace live_call {

/// The highest resident size of this process so far, in KB; 0 where the system doesn't tell.
std::size_t peakMemory();

}  // namespace live_call
