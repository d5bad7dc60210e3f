/// What the functions for objects of any class rest on. Programs call those: korva::object_cast in
/// KORVA_Cast.h, korva::equal in KORVA_Equal.h, korva::setText in KORVA_Value.h.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <string_view>

class KORVAObjectRegistryI;

class KORVA_EXPORT KORVA_Objects {
public:
    KORVA_Objects() = delete;

    /// Whether both are of one class and equal, by the comparison of that class.
    /// @throws KORVAException 0xEA4F0005: an object holds itself
    /// @throws ZELOutOfMemoryError no memory is left
    static bool areEqual(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right);

    /// A copy of `text` that belongs to `registry`.
    /// @throws ZELOutOfMemoryError no memory is left
    static const char* keep(std::string_view text, KORVAObjectRegistryI& registry);

    /// Tells that `object` is of another class.
    /// @throws KORVAException always: 0xEA4F0036 with both class names
    [[noreturn]] static void refuseCast(KORVASchemaTypeI::ObjectType expected,
                                        const KORVASchemaTypeI& object);
};
