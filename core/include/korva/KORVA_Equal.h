/// Equality of objects whose classes are known at run time only.
#pragma once

#include <korva/KORVA_Objects.h>

namespace korva {

/// Whether both are of one class and equal in all that they hold, whichever stands first: an object
/// of a derived class differs from one of its base. Objects of a class that is no one's of the
/// library's are equal to themselves only.
/// @throws KORVAException 0xEA4F0005: an object holds itself
/// @throws ZELOutOfMemoryError no memory is left
inline bool equal(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right) {
    return KORVA_Objects::areEqual(left, right);
}

/// The same for pointers: null equals null only.
inline bool equal(const KORVASchemaTypeI* left, const KORVASchemaTypeI* right) {
    if (left == nullptr || right == nullptr) return left == right;
    return KORVA_Objects::areEqual(*left, *right);
}

}  // namespace korva
