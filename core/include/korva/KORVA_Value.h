/// Values and texts of fields that may be unset, without a null pointer to ask for first.
///
///     const std::string name = korva::textOf(report->getDefaultName()).value_or("unnamed");
///     if (korva::value(schedule->getActive()) == true) ...
#pragma once

#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_Objects.h>

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace korva {

/// A property, an enumeration or a restricted string: what has a value that may be missing.
template <class X>
concept ValueHolder = std::is_base_of_v<KORVASchemaTypeI, X> && requires(const X& object) {
    object.getValue();
};

/// A copy of a text; nothing for null. A char streamable is read out.
/// @throws ZELOutOfMemoryError no memory is left
inline std::optional<std::string> textOf(const char* text) {
    if (text == nullptr) return std::nullopt;
    return KORVA_CharStreamable::toText(text);
}

/// The text of a restricted string, the word of an enumeration, or that of a property that holds
/// text, a restricted string or an enumeration; nothing for null, and where there is no value.
/// @throws ZELAssertError the value is none of the enumeration
/// @throws ZELOutOfMemoryError no memory is left
template <ValueHolder X>
std::optional<std::string> textOf(const X* object) {
    if (object == nullptr) return std::nullopt;
    if constexpr (std::is_base_of_v<KORVA_EnumObject, X>) {
        const char* const word = object->toString();
        return *word != '\0' ? textOf(word) : std::nullopt;
    } else {
        return textOf(object->getValue());
    }
}

/// A number or a boolean, as getters give it; nothing for null.
template <class Value>
requires(std::is_arithmetic_v<Value> &&
         !std::is_same_v<Value, char>) std::optional<Value> value(const Value* pointer) {
    if (pointer == nullptr) return std::nullopt;
    return *pointer;
}

/// As textOf.
inline std::optional<std::string> value(const char* text) {
    return textOf(text);
}

/// The enumerator of an enumeration, the text of a restricted string, or what a property holds of
/// these, of numbers, booleans and texts; nothing for null, and where there is no value.
/// @throws ZELOutOfMemoryError no memory is left for a text
template <ValueHolder X>
auto value(const X* object) {
    if constexpr (std::is_base_of_v<KORVA_EnumObject, X>) {
        const bool isSet = object != nullptr && object->getValue() != X::eKOVRAUninitialized;
        return isSet ? std::optional(object->getValue()) : std::nullopt;
    } else {
        using Result = decltype(value(object->getValue()));
        return object != nullptr ? value(object->getValue()) : Result();
    }
}

/// Gives a property of text, a restricted string or an enumeration its value: a copy of `text` that
/// belongs to `registry`, or the word. A NUL byte ends the text.
/// @throws KORVAException 0xEA45DC29: the enumeration has no such word
/// @throws ZELOutOfMemoryError no memory is left; the value is as it was
template <ValueHolder X>
requires requires(X& object, const char* text) {
    object.setValue(text);
}
void setText(X& object, std::string_view text, KORVAObjectRegistryI& registry) {
    object.setValue(KORVA_Objects::keep(text, registry));
}

/// Gives any field of text a copy of `text` that belongs to `registry`:
/// `setText(*detail, &KORVAFaultDetail::setErrorCode, code, registry)`.
/// @throws ZELOutOfMemoryError no memory is left; the field is as it was
template <class X, class Holder>
requires std::is_base_of_v<Holder, X>
void setText(X& object, void (Holder::*setter)(const char*), std::string_view text,
             KORVAObjectRegistryI& registry) {
    (object.*setter)(KORVA_Objects::keep(text, registry));
}

}  // namespace korva
