/// Code for an object by what it turns out to be, instead of a chain of casts.
#pragma once

#include <korva/KORVA_ArrayObject.h>
#include <korva/KORVA_Cast.h>
#include <korva/KORVA_ClassObject.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_RestrictedString.h>

#include <optional>
#include <type_traits>
#include <utility>

namespace korva {

namespace visiting {

template <class Result, class Handler, class Argument>
std::remove_reference_t<Argument> argumentOf(Result (Handler::*)(Argument) const);
template <class Result, class Handler, class Argument>
std::remove_reference_t<Argument> argumentOf(Result (Handler::*)(Argument));

/// The class that a handler takes by reference.
template <class Handler>
using ClassOf = decltype(argumentOf(&std::remove_cvref_t<Handler>::operator()));

template <class Handler>
using ResultOf = std::invoke_result_t<Handler, ClassOf<Handler>&>;

/// `X` with the constness of `Like`.
template <class X, class Like>
using AsConstAs = std::conditional_t<std::is_const_v<Like>, const X, X>;

template <class Object>
concept SchemaObject = std::is_base_of_v<KORVASchemaTypeI, std::remove_const_t<Object>>;

}  // namespace visiting

/// Calls `visitor` with `object` as its family: KORVA_ClassObject, KORVA_ArrayObject,
/// KORVA_EnumObject or KORVA_RestrictedString, or KORVASchemaTypeI if it is of none, such as a
/// fault. Gives what the visitor gives, which must be of one type for all.
template <visiting::SchemaObject Object, class Visitor>
decltype(auto) visit(Object& object, Visitor&& visitor) {
    using visiting::AsConstAs;
    using Base = AsConstAs<KORVASchemaTypeI, Object>;
    Base* const base = &object;
    if (auto* const found = dynamic_cast<AsConstAs<KORVA_ClassObject, Object>*>(base))
        return std::forward<Visitor>(visitor)(*found);
    if (auto* const found = dynamic_cast<AsConstAs<KORVA_ArrayObject, Object>*>(base))
        return std::forward<Visitor>(visitor)(*found);
    if (auto* const found = dynamic_cast<AsConstAs<KORVA_EnumObject, Object>*>(base))
        return std::forward<Visitor>(visitor)(*found);
    if (auto* const found = dynamic_cast<AsConstAs<KORVA_RestrictedString, Object>*>(base))
        return std::forward<Visitor>(visitor)(*found);
    return std::forward<Visitor>(visitor)(*base);
}

/// Calls the first handler whose class `object` is of, and no other:
///
///     korva::match(*found,
///                  [&](const KORVAReport& report) { print(report); },
///                  [&](const KORVAFolder& folder) { enter(folder); });
///
/// Each handler takes one reference to a class; KORVASchemaTypeI takes what is left.
/// @return of handlers without a result, whether one was called; of others the result, if one was
template <visiting::SchemaObject Object, class... Handlers>
auto match(Object& object, Handlers&&... handlers) {
    using Result = std::common_type_t<visiting::ResultOf<Handlers>...>;
    visiting::AsConstAs<KORVASchemaTypeI, Object>* const base = &object;
    if constexpr (std::is_void_v<Result>) {
        const auto call = [base](auto&& handler) {
            using X = std::remove_const_t<visiting::ClassOf<decltype(handler)>>;
            auto* const found = object_cast<X>(base);
            if (found != nullptr) handler(*found);
            return found != nullptr;
        };
        return (call(handlers) || ...);
    } else {
        std::optional<Result> result;
        const auto call = [base, &result](auto&& handler) {
            using X = std::remove_const_t<visiting::ClassOf<decltype(handler)>>;
            auto* const found = object_cast<X>(base);
            if (found != nullptr) result.emplace(handler(*found));
            return found != nullptr;
        };
        static_cast<void>((call(handlers) || ...));
        return result;
    }
}

}  // namespace korva
