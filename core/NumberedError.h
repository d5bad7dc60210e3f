/// The short form of raising a numbered message.
#pragma once

#include <zel/ZELFileLocation.h>

#include <cstdint>
#include <initializer_list>

class KORVAException;

namespace korva {

/// A message of the catalogue. Null parameters count as empty; each is made `zel::printable`, as it
/// may come from the wire.
struct NumberedMessage {
    std::uint32_t id;
    std::initializer_list<const char*> parameters;
};

/// Adds a message behind those that `exception` has.
/// @throws ZELOutOfMemoryError no memory is left
void addMessage(KORVAException& exception, const NumberedMessage& message);

/// Fails with what is wrong and, behind it, advice.
/// @param function the label of the throwing function, or null
/// @throws KORVAException always
[[noreturn]] void raise(std::initializer_list<NumberedMessage> messages, ZELFileLocation location,
                        const char* function);

}  // namespace korva

/// Raises the message `id` from here: `KORVA_RAISE(eKORVA_UnknownEnumValue, "label()", text)`.
#define KORVA_RAISE(id, function, ...) ::korva::raise({{id, {__VA_ARGS__}}}, ZEL_LOCATION, function)
