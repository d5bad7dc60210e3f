/// What a path starts at: an object, or a message.
#pragma once

#include <korva/KORVA_Children.h>
#include <korva/KORVA_Path.h>

#include <optional>

namespace korva {

/// Something with children that a path can walk and change. The first step of a path asks this, all
/// others ask objects.
class PathRoot {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    virtual ~PathRoot() = default;

    /// All children, set or not.
    virtual KORVA_Children children() const = 0;
    /// The child to which a step leads, a name or a number.
    virtual std::optional<KORVA_Child> find(const KORVA_Path::Step& step) const;
    /// What stands for the element behind the last of an array; nothing if this is no array.
    virtual std::optional<KORVA_Child> newElement() const = 0;
    /// The root itself, for the path without steps; null if it is no object.
    virtual KORVASchemaTypeI* object() const = 0;
    /// "KORVASchedule".
    virtual const char* className() const = 0;
    /// Stores a value as setChildObject does; `child` is one of the children, or an element behind
    /// the last.
    virtual void store(const KORVA_Child& child, void* value, ObjectType type) = 0;
    /// Unsets a child. False if it has no such state.
    virtual bool clear(const KORVA_Child& child) = 0;
    /// Whether a value can be stored in the place of `child`: the arrays that are part of an object
    /// stay.
    virtual bool isReplaceable(const KORVA_Child& child) const = 0;
};

/// An object as the root of a path.
class ObjectRoot final : public PathRoot {
public:
    explicit ObjectRoot(const KORVASchemaTypeI& object);

    KORVA_Children children() const override;
    std::optional<KORVA_Child> find(const KORVA_Path::Step& step) const override;
    std::optional<KORVA_Child> newElement() const override;
    KORVASchemaTypeI* object() const override { return m_object; }
    const char* className() const override;
    void store(const KORVA_Child& child, void* value, ObjectType type) override;
    bool clear(const KORVA_Child& child) override;
    bool isReplaceable(const KORVA_Child& child) const override;

private:
    KORVASchemaTypeI* m_object;
    bool m_isArray;
};

}  // namespace korva
