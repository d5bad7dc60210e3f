/// The names of the plain types.
#pragma once

#include <korva/KORVASchemaTypeI.h>

namespace korva {

/// "xs:int" and its like, "_unknown" for e_Unknown; null for any other type.
const char* plainTypeText(KORVASchemaTypeI::ObjectType type);

/// The plain type with this local name, e_Unknown if there is none.
KORVASchemaTypeI::ObjectType plainTypeOf(const char* localName);

}  // namespace korva
