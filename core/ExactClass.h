/// Whether an object is what its descriptor tells.
#pragma once

#include <typeinfo>

namespace korva {

/// Whether `object` is of just the class that `descriptor` tells of: what somebody derived from a
/// generated class, or wrote in its place, may answer otherwise than the tables say.
/// @param descriptor of a type or a message; null, or without a class, describes no object
template <class Object, class Descriptor>
bool isExactly(const Object& object, const Descriptor* descriptor) {
    return descriptor != nullptr && descriptor->typeInfo != nullptr &&
           typeid(object) == *descriptor->typeInfo;
}

}  // namespace korva
