/// What to tell of an operation that belongs to no port type.
#pragma once

#include <string_view>
#include <vector>

class KORVAPortTypeI;

namespace korva {

/// Fails, and tells whether it is the namespace of another bus.
/// @throws KORVAException 0xEA456BB1: always
[[noreturn]] void refusePortType(const char* operation, std::string_view uri,
                                 const std::vector<KORVAPortTypeI*>& supported,
                                 const char* function);

}  // namespace korva
