/// From type names in attributes to the identities of types.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <array>
#include <cstddef>
#include <string_view>

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
    /// Names of types, and what they meant under the declarations of that time. Few types make up a
    /// document, so a name is nearly always found here.
    class Recent {
    public:
        /// What `name` meant, or null. e_Unknown is kept for what has to be looked at again.
        const ObjectType* find(std::string_view name, std::size_t revision) const;
        void keep(std::string_view name, std::size_t revision, ObjectType type);

    private:
        struct Entry {
            std::size_t revision;
            ObjectType type;
            unsigned length;
            char name[40];
        };
        static constexpr std::size_t entryCount = 64;

        static std::size_t positionOf(std::string_view name);

        std::array<Entry, entryCount> m_entries{};
    };

    ObjectType resolveArray(const TypeAttributes& attributes, const KORVANamespaceMapping& mapping,
                            const char* element);

    Recent m_types;
    Recent m_arrayTypes;
};

}  // namespace korva
