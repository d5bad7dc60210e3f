/// Equality of values that are known by their type only.
#pragma once

#include <korva/KORVASchemaTypeI.h>

namespace korva::test {

/// Whether both are of one class, and each is equal to the other.
bool areEqual(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right);

/// The same for what getChildObject gives for a child of this type; null equals null only.
bool areEqual(const void* left, const void* right, KORVASchemaTypeI::ObjectType type);

}  // namespace korva::test
