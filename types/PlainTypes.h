/// The plain types: values that need no type of the schema.
#pragma once

#include "types/Kinds.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// All of them, as X(number, name, name on the wire, kind). The C++ type and the form as text
/// follow from the kind. The number is published by both object models, as the enumerator e<name>.
#define KORVA_PLAIN_TYPES(X)                   \
    X(1, String, "string", Text)               \
    X(2, Int, "int", Int)                      \
    X(3, Integer, "integer", Int)              \
    X(4, Decimal, "decimal", Float)            \
    X(5, Time, "time", Text)                   \
    X(6, DateTime, "dateTime", Text)           \
    X(7, Boolean, "boolean", Boolean)          \
    X(8, Base64Binary, "base64Binary", Binary) \
    X(9, Float, "float", Float)                \
    X(10, QName, "QName", Text)

namespace types {

enum class PlainType : std::int32_t {
    None = 0,
#define KORVA_ENUMERATOR(number, name, wireName, kind) name = number,
    KORVA_PLAIN_TYPES(KORVA_ENUMERATOR)
#undef KORVA_ENUMERATOR
};

struct PlainRow {
    PlainType type;
    FieldKind kind;
    std::string_view name;  ///< "String"
    std::string_view text;  ///< "xs:string", with a NUL behind it

    constexpr std::string_view wireName() const { return text.substr(sizeof "xs:" - 1); }
};

inline constexpr PlainRow plainRows[] = {
#define KORVA_ROW(number, name, wireName, kind) \
    {PlainType::name, FieldKind::kind, #name, "xs:" wireName},
    KORVA_PLAIN_TYPES(KORVA_ROW)
#undef KORVA_ROW
};

inline constexpr std::size_t plainCount = sizeof plainRows / sizeof *plainRows;

static_assert(
    [] {
        for (std::size_t i = 0; i != plainCount; ++i)
            if (static_cast<std::size_t>(plainRows[i].type) != i + 1) return false;
        return true;
    }(),
    "the numbers follow each other, so that a number is found at its place");

/// What stands in the place of a type's text when there is no type.
inline constexpr const char* unknownText = "_unknown";

/// The plain type of this number, or null.
constexpr const PlainRow* findPlain(std::int32_t number) {
    const auto position = static_cast<std::uint32_t>(number) - 1;
    return position < plainCount ? plainRows + position : nullptr;
}

/// The plain type of this name on the wire, "string"; or null.
constexpr const PlainRow* findPlain(std::string_view wireName) {
    for (const PlainRow& row : plainRows)
        if (row.wireName() == wireName) return &row;
    return nullptr;
}

/// How a field of this type is kept; what is not plain is an object.
constexpr FieldKind kindOf(std::int32_t type) {
    const PlainRow* const row = findPlain(type);
    return row != nullptr ? row->kind : FieldKind::Object;
}

}  // namespace types
