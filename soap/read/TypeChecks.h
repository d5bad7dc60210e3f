/// Whether a value may stand where it does.
#pragma once

#include "core/Descriptor.h"

namespace korva {

/// @param object of a generated type, otherwise not looked at
/// @throws KORVAException 0xEA487D84, 0xEA4BD4DB: the value of the element `name` is of another
///     type than expected, and of none derived from it
void checkType(const char* name, const KORVASchemaTypeI* object, ObjectType type,
               ObjectType expected);

/// The same for the item of an array.
/// @throws KORVAException 0xEA4BCA5D: it does not fit
void checkItemType(const KORVASchemaTypeI* object, ObjectType type, ObjectType declared);

}  // namespace korva
