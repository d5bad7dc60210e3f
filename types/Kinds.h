/// What kinds of types and of fields there are, for the schema compiler and for both object models.
#pragma once

#include <cstdint>
#include <string_view>

/// The families of the schema's types, as X(name).
#define KORVA_TYPE_KINDS(X) X(Class) X(Property) X(Array) X(Enum) X(RestrictedString)

/// The kinds of fields that are a value in the object itself, which may be missing, as
/// X(name, C++ type, name in messages).
#define KORVA_VALUE_KINDS(X)    \
    X(Boolean, bool, "boolean") \
    X(Int, int, "int")          \
    X(Float, float, "float")

namespace types {

enum class TypeKind : std::uint8_t {
#define KORVA_ENUMERATOR(name) name,
    KORVA_TYPE_KINDS(KORVA_ENUMERATOR)
#undef KORVA_ENUMERATOR
};

/// How a field is kept in its object.
enum class FieldKind : std::uint8_t {
    Object,  ///< pointer to an object
    Text,    ///< const char*
    Binary,  ///< pointer to a value carrier
#define KORVA_ENUMERATOR(name, Value, text) name,
    KORVA_VALUE_KINDS(KORVA_ENUMERATOR)
#undef KORVA_ENUMERATOR
        EmbeddedArray,  ///< an array inside the object
    // Of the second model's fault only:
    OptionalArray,  ///< pointer to an array, and behind it one to the array that the object made
    UnlistedArray   ///< the same, and not among the names of the children
};

/// Whether a field is a pointer, null while unset.
constexpr bool isPointer(FieldKind kind) {
    return kind <= FieldKind::Binary;
}

/// Whether a field is a value with a mark that tells whether there is one.
constexpr bool isValue(FieldKind kind) {
    return kind > FieldKind::Binary && kind < FieldKind::EmbeddedArray;
}

/// Calls `use` with a value of the kind's C++ type: its zero.
/// @return whether it is the kind of a value; otherwise nothing is called
template <class Use>
constexpr bool visitValue(FieldKind kind, Use use) {
    switch (kind) {
#define KORVA_CASE(name, Value, text) \
    case FieldKind::name: use(Value{}); return true;
        KORVA_VALUE_KINDS(KORVA_CASE)
#undef KORVA_CASE
        default: return false;
    }
}

/// What messages call a value of this C++ type.
template <class Value>
inline constexpr const char* valueName = nullptr;
#define KORVA_NAME(name, Value, text) \
    template <>                       \
    inline constexpr const char* valueName<Value> = text;
KORVA_VALUE_KINDS(KORVA_NAME)
#undef KORVA_NAME

/// "RestrictedString".
constexpr std::string_view nameOf(TypeKind kind) {
    switch (kind) {
#define KORVA_CASE(name) \
    case TypeKind::name: return #name;
        KORVA_TYPE_KINDS(KORVA_CASE)
#undef KORVA_CASE
    }
    return {};
}

}  // namespace types
