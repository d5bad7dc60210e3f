/// Paths to what an object holds, however deep: "parameters/value/0/name".
///
///     const std::string name = korva::get(report, "defaultName/value").asText().value_or("");
///     korva::set(report, "defaultName/value", "Orders", registry);
///
/// A path is made of steps with slashes between them. A step is
/// - a name of the schema, which leads to the child that is called so,
/// - a number, which leads to the element of an array; counted from 0, without leading zeros,
/// - `*`, which leads to each child, or each element; only where many places are asked for.
///
/// The path without steps leads to the object itself. Nothing is skipped: that a property holds its
/// value as a child, "value", is part of the path, and so is the number of each element.
#pragma once

#include <korva/KORVA_Children.h>

#include <concepts>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class KORVAObjectRegistryI;
class KORVA_PathValue;
struct KORVA_PathMatch;

namespace korva {
class PathRoot;
}

/// A path, read once and used for any number of objects.
class KORVA_EXPORT KORVA_Path {
public:
    enum class StepKind { Name, Index, Any };

    struct Step {
        StepKind kind;
        std::string name;   ///< as it is written: "name", "0", "*"
        std::size_t index;  ///< zero-based; 0 unless the kind is Index

        friend bool operator==(const Step& left, const Step& right) = default;
    };

    /// The path without steps.
    KORVA_Path() = default;
    /// Reads a path. Paths are taken as texts wherever one is asked for.
    /// @throws KORVAException 0xEA4F0031: a step is empty, or a number that is none
    /// @throws ZELOutOfMemoryError no memory is left
    KORVA_Path(std::string_view text);
    KORVA_Path(const char* text) : KORVA_Path(std::string_view(text)) {}
    KORVA_Path(const std::string& text) : KORVA_Path(std::string_view(text)) {}

    const std::vector<Step>& steps() const { return m_steps; }
    bool empty() const { return m_steps.empty(); }
    /// Whether there is a `*` among the steps.
    bool isPattern() const;
    /// The path as it is written.
    std::string toString() const;

    /// The path with one more step, which `child` is.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVA_Path operator/(const KORVA_Child& child) const;

    /// Whether `place`, a path without `*`, is one of the places to which this path leads: it has
    /// the same steps, with any in the place of a `*`.
    bool matches(const KORVA_Path& place) const;

    friend bool operator==(const KORVA_Path& left, const KORVA_Path& right) = default;

    /// What the path leads to. The last step may lead to a child that is not set, all others must
    /// be set.
    /// @throws KORVAException 0xEA4F0030: there is no such place, with what there is instead;
    ///     0xEA4F0031: the path has a `*`
    /// @throws ZELAssertError the path leads into an undocumented detail of a fault
    /// @throws ZELOutOfMemoryError no memory is left
    KORVA_Child get(const KORVASchemaTypeI& root) const;

    /// The same; nothing when there is no such place.
    /// @throws KORVAException 0xEA4F0031 as get
    /// @throws ZELAssertError, ZELOutOfMemoryError as get
    std::optional<KORVA_Child> find(const KORVASchemaTypeI& root) const;

    /// All places to which a path with `*` leads, in the schema's order; none if there is none.
    /// @throws ZELAssertError, ZELOutOfMemoryError as get
    std::vector<KORVA_PathMatch> findAll(const KORVASchemaTypeI& root) const;

    /// Gives the place to which the path leads a value, or none.
    ///
    /// What is not set on the way is made and registered in `registry`. In an array the number of
    /// its elements leads to a new one behind the last. A text for an enumeration or a restricted
    /// string becomes its word or text. Objects and binaries are stored as they stand, texts as
    /// copies. After a failure nothing has changed, but that `registry` may own more.
    /// @throws KORVAException 0xEA4F0030: there is no such place, with what there is instead;
    ///     0xEA4F0031: the path has a `*` or no steps; 0xEA4F0032, 0xEA47C21F: the value is of
    ///     another kind; 0xEA45DC29: the enumeration has no such word; 0xEA47EC7B: an object on
    ///     the way is not set, and its class is abstract
    /// @throws ZELAssertError as get
    /// @throws ZELOutOfMemoryError no memory is left
    void set(KORVASchemaTypeI& root, const KORVA_PathValue& value,
             KORVAObjectRegistryI& registry) const;

    /// The same operations for whatever else has children, such as messages.
    KORVA_Child get(const korva::PathRoot& root) const;
    std::optional<KORVA_Child> find(const korva::PathRoot& root) const;
    std::vector<KORVA_PathMatch> findAll(const korva::PathRoot& root) const;
    void set(korva::PathRoot& root, const KORVA_PathValue& value,
             KORVAObjectRegistryI& registry) const;

private:
    std::vector<Step> m_steps;
};

/// A place that a path leads to, and what is there.
struct KORVA_PathMatch {
    KORVA_Path path;
    KORVA_Child child;
};

/// A value to be stored: a number, a boolean, a text, an object, a binary, or null. Made from any
/// of these where one is asked for; refers to texts, objects and binaries.
class KORVA_PathValue {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    KORVA_PathValue(std::nullptr_t) : m_type(KORVASchemaTypeI::e_Unknown) {}
    KORVA_PathValue(int value) : m_type(KORVASchemaTypeI::eInt), m_int(value) {}
    /// Nothing but a boolean: a pointer would become one.
    template <std::same_as<bool> Boolean>
    KORVA_PathValue(Boolean value) : m_type(KORVASchemaTypeI::eBoolean), m_boolean(value) {}
    template <std::floating_point Float>
    KORVA_PathValue(Float value)
        : m_type(KORVASchemaTypeI::eFloat), m_float(static_cast<float>(value)) {}
    KORVA_PathValue(std::string_view value) : m_type(KORVASchemaTypeI::eString), m_text(value) {}
    KORVA_PathValue(const std::string& value) : KORVA_PathValue(std::string_view(value)) {}
    KORVA_PathValue(const char* value) : KORVA_PathValue(std::string_view(value)) {}
    /// Must not be null.
    KORVA_PathValue(KORVASchemaTypeI* value) : m_type(value->getObjectType()), m_pointer(value) {}
    /// Must not be null.
    KORVA_PathValue(KORVAXSBase64Binary* value)
        : m_type(KORVASchemaTypeI::eBase64Binary), m_pointer(value) {}

    bool isNull() const { return m_type == KORVASchemaTypeI::e_Unknown; }
    /// The type as setChildObject takes it; e_Unknown for null.
    ObjectType type() const { return m_type; }
    /// The text, empty for all others.
    std::string_view text() const { return m_text; }
    /// What setChildObject takes for all but texts and null.
    void* pointer() const;

private:
    ObjectType m_type;
    int m_int = 0;
    bool m_boolean = false;
    float m_float = 0;
    std::string_view m_text;
    void* m_pointer = nullptr;
};

inline void* KORVA_PathValue::pointer() const {
    // setChildObject reads numbers, and stores the pointers to all others.
    if (m_type == KORVASchemaTypeI::eInt) return const_cast<int*>(&m_int);
    if (m_type == KORVASchemaTypeI::eBoolean) return const_cast<bool*>(&m_boolean);
    if (m_type == KORVASchemaTypeI::eFloat) return const_cast<float*>(&m_float);
    return m_pointer;
}

namespace korva {

/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_Path::get
inline KORVA_Child get(const KORVASchemaTypeI& object, const KORVA_Path& path) {
    return path.get(object);
}

/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_Path::find
inline std::optional<KORVA_Child> find(const KORVASchemaTypeI& object, const KORVA_Path& path) {
    return path.find(object);
}

/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_Path::findAll
inline std::vector<KORVA_PathMatch> findAll(const KORVASchemaTypeI& object,
                                            const KORVA_Path& path) {
    return path.findAll(object);
}

/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_Path::set
inline void set(KORVASchemaTypeI& object, const KORVA_Path& path, const KORVA_PathValue& value,
                KORVAObjectRegistryI& registry) {
    path.set(object, value, registry);
}

}  // namespace korva
