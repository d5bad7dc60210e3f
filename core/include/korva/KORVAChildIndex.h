/// The numbers that name the children of an array.
#pragma once

#include <cstddef>
#include <cstdint>

/// Array children are named by their one-based number, carried in the value of a `const char*`.
/// Such a name is never a text: ask for a KORVASchemaTypeArrayI before reading one.
struct KORVAChildIndex {
    /// The name of the element at the one-based `index`; 0 gives null.
    static const char* toName(std::size_t index) {
        return reinterpret_cast<const char*>(static_cast<std::uintptr_t>(index));
    }

    /// The one-based index that `name` carries.
    static std::size_t toIndex(const char* name) {
        return static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(name));
    }
};
