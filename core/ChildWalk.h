/// How serializers walk the children of any object.
#pragma once

#include "core/Descriptor.h"

#include <cstddef>
#include <vector>

namespace korva {

/// One child, as the reflective contract tells it.
struct Child {
    const char* name;  ///< as getChildObjectNames gives it: a number in an array
    ObjectType type;   ///< the declared type
    void* value;       ///< as getChildObject(name, false) gives it
};

/// Whether the object asserts when its children are asked for: an undocumented detail of a fault,
/// or an array of these. They hold messages only.
inline bool refusesToBeWalked(const KORVASchemaTypeI& object) {
    const ObjectType type = object.getObjectType();
    return type == KORVASchemaTypeI::eKORVAUndocumentedFaultDetail ||
           type == KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray;
}

/// Visits the declared children of an object in their order. The result is that of
/// getChildObjectNames with getChildType and getChildObject for each name; objects of generated
/// classes are read by their tables, without asking for each child that is not set.
class ChildWalk {
public:
    /// @param skipUnset pass over children whose value is null, but for arrays
    ChildWalk(const KORVASchemaTypeI& object, bool skipUnset);
    /// The same for a caller who knows the row of the object's type, which may be null.
    ChildWalk(const KORVASchemaTypeI& object, const TypeDescriptor* type, bool skipUnset);

    /// Whether the object has no child names at all.
    bool empty() const { return m_childCount == 0; }
    /// Whether the one child is the object's own text, under the empty name.
    bool isContent() const { return m_isContent; }
    /// Whether the object is an array, so that its children's names are numbers.
    bool isArray() const { return m_isArray; }
    /// Whether the names are words of the schema, and not what the object says.
    bool isDescribed() const { return m_class != nullptr; }
    /// The number of the child that was visited last, from 1; not for classes.
    std::size_t position() const { return m_position; }

    /// The next child; false behind the last.
    bool next(Child& child);

private:
    bool nextField(Child& child);
    void enterLevel();

    KORVASchemaTypeI* m_object;
    const ClassDescriptor* m_class;  ///< null when the object is asked by name
    bool m_isArray;
    bool m_isContent;
    bool m_skipUnset;
    std::size_t m_childCount;
    std::size_t m_position;  ///< of the next child; not used for fields

    // The fields still to come of the level that is being visited.
    const FieldDescriptor* m_field;
    const FieldDescriptor* m_levelEnd;
    const ClassDescriptor* m_level;

    std::vector<const char*> m_names;
};

}  // namespace korva
