// From type names in attributes to the identities of types.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <xercesc/util/XercesDefs.hpp>

#include <array>
#include <cstddef>

class KORVANamespaceMapping;

namespace korva {

struct TypeAttributes;

/// Resolves the type attributes of elements. Belongs to one parse.
class TypeNames {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// The type that the attributes of the element `element` tell; e_Unknown if they tell none, or
    /// one of a namespace that nobody knows.
    /// @throws KORVAException 0xEA4BA852, 0xEA4CB90C or 0xEA48385C: it is an array without
    ///     `arrayType`, the `arrayType` has no prefix, or there is no such type
    /// @throws ZELAssertError an attribute is too long
    ObjectType resolve(const TypeAttributes& attributes, const KORVANamespaceMapping& mapping,
                       const char* element);

private:
    /// A value of `xsi:type` and what it meant under the declarations of that time.
    struct Recent {
        std::size_t revision;
        ObjectType type;
        unsigned length;
        XMLCh value[48];
    };
    static constexpr std::size_t recentCount = 64;

    std::array<Recent, recentCount> m_recent{};
};

}  // namespace korva
