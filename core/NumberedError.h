/// The short form of raising a numbered message.
#pragma once

#include <zel/ZELFileLocation.h>

#include <cstdint>
#include <initializer_list>

namespace korva {

/// Fails with one message of the catalogue. Null parameters count as empty; each
/// is made `zel::printable`, as it may come from the wire.
/// @param function the label of the throwing function, or null
/// @throws KORVAException always
[[noreturn]] void raise(std::uint32_t messageId, std::initializer_list<const char*> parameters,
                        ZELFileLocation location, const char* function);

}  // namespace korva

/// Raises the message `id` from here: `KORVA_RAISE(eKORVA_UnknownEnumValue, "label()", text)`.
#define KORVA_RAISE(id, function, ...) ::korva::raise(id, {__VA_ARGS__}, ZEL_LOCATION, function)
