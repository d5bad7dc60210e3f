/// The children of any object as a range of names, types and values, without `void*`.
///
///     for (const KORVA_Child& child : korva::children(object))
///         if (!child.isNull()) std::cout << child.name() << ": " << child.describe() << '\n';
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class KORVAXSBase64Binary;

/// One child of an object, or one parameter of a message: what it is called, what it may be, and
/// what it is. Refers to the holder's value, and is good until that is set anew or ends.
///
/// Each accessor of a value gives nothing for a child that is not set.
/// @throws KORVAException 0xEA4F0032 from an accessor: the child is of another kind
/// @throws ZELOutOfMemoryError there is no memory for a text, or to tell such a mistake
class KORVA_EXPORT KORVA_Child {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// A child with a name that lives as long as the process.
    KORVA_Child(const char* name, ObjectType type, void* value)
        : m_name(name), m_index(0), m_type(type), m_value(value) {}
    /// The element of an array at the zero-based `index`.
    KORVA_Child(std::size_t index, ObjectType type, void* value)
        : m_name(nullptr), m_index(index), m_type(type), m_value(value) {}

    /// The name; of an element its index in decimal digits; empty for the text that an enumeration
    /// or a restricted string consists of. What a KORVA_Path has as a step.
    std::string name() const;
    /// Whether this is an element of an array.
    bool isElement() const { return m_name == nullptr; }
    /// The zero-based index of an element; 0 for all others.
    std::size_t index() const { return m_index; }
    /// The declared type; of an object in a message its own.
    ObjectType type() const { return m_type; }
    bool isNull() const { return m_value == nullptr; }

    /// Whether the child is an object: a class, an array, an enumeration or a restricted string.
    bool isObject() const;
    /// Whether the child is text, and no object.
    bool isText() const;

    /// A copy of the text, of a restricted string too, or the word of an enumeration. A char
    /// streamable is read out.
    std::optional<std::string> asText() const;
    /// An int or integer.
    std::optional<int> asInt() const;
    std::optional<bool> asBoolean() const;
    /// A float or decimal.
    std::optional<float> asFloat() const;
    /// The object itself, or null.
    KORVASchemaTypeI* asObject() const;
    /// The binary itself, or null.
    const KORVAXSBase64Binary* asBinary() const;
    /// The text as it is stored, without a copy; null when it is not set. May be a char streamable.
    const char* asCharStar() const;

    /// What is there, in a short form to be read: a text or word as it stands, a number in digits,
    /// "true" or "false", a class name with the number of elements of an array, "null".
    std::string describe() const;

private:
    const char* m_name;
    std::size_t m_index;
    ObjectType m_type;
    void* m_value;
};

/// The children of an object as they were when they were asked for, set or not, in the schema's
/// order.
class KORVA_EXPORT KORVA_Children {
public:
    using const_iterator = std::vector<KORVA_Child>::const_iterator;

    /// @throws ZELAssertError the object is an undocumented detail of a fault, which cannot be
    ///     walked
    /// @throws ZELOutOfMemoryError no memory is left
    explicit KORVA_Children(const KORVASchemaTypeI& object);
    explicit KORVA_Children(std::vector<KORVA_Child>&& children) noexcept;

    const_iterator begin() const { return m_children.begin(); }
    const_iterator end() const { return m_children.end(); }
    bool empty() const { return m_children.empty(); }
    std::size_t size() const { return m_children.size(); }
    /// The child at the zero-based `position`, which must be less than size().
    const KORVA_Child& operator[](std::size_t position) const { return m_children[position]; }

private:
    std::vector<KORVA_Child> m_children;
};

namespace korva {

/// @throws ZELAssertError, ZELOutOfMemoryError as the constructor of KORVA_Children
inline KORVA_Children children(const KORVASchemaTypeI& object) {
    return KORVA_Children(object);
}

}  // namespace korva
