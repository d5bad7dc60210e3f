/// The words of an enumeration.
#pragma once

#include "core/Descriptor.h"

namespace korva {

/// The value of a word; 0 for the empty text.
/// @throws ZELAssertError `name` is null
/// @throws KORVAException 0xEA45DC29: the enumeration has no such word; behind it 0xEA4F0003 with
///     the number of open values if the enumeration is open
int stringToEnum(const char* name, const EnumDescriptor& descriptor);

/// The word of a value; the empty text for 0.
/// @throws ZELAssertError the enumeration has no such value
const char* enumToString(int value, const EnumDescriptor& descriptor);

}  // namespace korva
