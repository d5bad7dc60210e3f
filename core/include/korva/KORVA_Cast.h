/// Casts to a class of the schema, checked by what the object says that it is.
///
///     if (auto* const report = korva::object_cast<KORVAReport>(found->at(0))) ...
#pragma once

#include <korva/KORVA_Objects.h>

#include <type_traits>

namespace korva {

/// A class that the schema, or the library by hand, gives an identity of its own; not what somebody
/// derives from it.
template <class X>
concept SchemaClass = requires {
    typename X::Identity;
    requires std::is_same_v<typename X::Self, X>;
};

/// `object` as an `X`; null when it is none, or null. Classes of the schema are told by `isa`, all
/// others, such as KORVA_ArrayObject or classes of one's own, by `dynamic_cast`.
template <class X>
X* object_cast(KORVASchemaTypeI* object) {
    if constexpr (SchemaClass<X>)
        return object != nullptr && object->isa(X::Identity::value) ? static_cast<X*>(object)
                                                                    : nullptr;
    else
        return dynamic_cast<X*>(object);
}

/// The same for an object that is only read.
template <class X>
const X* object_cast(const KORVASchemaTypeI* object) {
    return object_cast<X>(const_cast<KORVASchemaTypeI*>(object));
}

/// The same for an object that must be an `X`.
/// @throws KORVAException 0xEA4F0036: it is none
/// @throws ZELOutOfMemoryError it is none, and there is no memory to tell
template <SchemaClass X>
X& object_cast(KORVASchemaTypeI& object) {
    X* const result = object_cast<X>(&object);
    if (result == nullptr) KORVA_Objects::refuseCast(X::Identity::value, object);
    return *result;
}

template <SchemaClass X>
const X& object_cast(const KORVASchemaTypeI& object) {
    return object_cast<X>(const_cast<KORVASchemaTypeI&>(object));
}

}  // namespace korva
