/// The text object behind getGeneratedObjectName.
#pragma once

#include <string>

namespace korva {

/// A text that is never destroyed, for a function-local static.
/// @throws ZELOutOfMemoryError no memory is left; the next call tries again
const std::string& makeObjectName(const char* name);

}  // namespace korva
