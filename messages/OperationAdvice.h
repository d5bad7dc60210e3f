/// What to tell who asks for an operation that a port type does not have.
#pragma once

#include <vector>

class KORVAMessageParam;

namespace korva {

struct PortTypeDescriptor;

/// Fails, and tells what comes nearest: the operation of a similar name, the parameters that no
/// version of the operation has, or all of its versions.
/// @throws KORVAException 0xEA4112C6: always
[[noreturn]] void refuseOperation(const PortTypeDescriptor& portType, const char* name,
                                  const std::vector<KORVAMessageParam*>& parameters);

}  // namespace korva
