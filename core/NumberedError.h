// The short form of raising a numbered message.
#pragma once

#include <zel/ZELFileLocation.h>

#include <cstdint>
#include <initializer_list>

namespace korva {

/// Raises a KORVAException with one message of the catalogue. Null parameters count as empty; each
/// is made `zel::printable`, as it may come from the wire.
/// @param function the label of the throwing function, or null
[[noreturn]] void raise(std::uint32_t messageId, std::initializer_list<const char*> parameters,
                        ZELFileLocation location, const char* function);

}  // namespace korva

/// Raises the message `id` from here: `KORVA_RAISE(0xEA45DC29U, "_stringToEnum()", text)`.
#define KORVA_RAISE(id, function, ...) ::korva::raise(id, {__VA_ARGS__}, ZEL_LOCATION, function)
