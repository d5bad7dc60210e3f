/// What both writers of the bridges make, as the same short text.
#pragma once

#include <korva/KORVASchemaTypeI.h>
#include <zelidom/ZELIDOM_Node.h>

#include <string>

namespace korva::test {

/// An element as "<name a="v">content</name>", with its attributes sorted by name, without the
/// declarations of namespaces, and with nothing escaped. All that is in it must be in the
/// namespaces that their prefixes stand for; array entries are taken as they are.
std::string outline(const ZELIDOM_Node& element);

using ObjectType = KORVASchemaTypeI::ObjectType;

/// Writes documents in memory.
struct ToDocument {
    /// The outline of the element "bus:`name`".
    static std::string write(const void* object, ObjectType type, const char* name = "value",
                             bool replaceInvalidText = false);
};

/// Tells of events.
struct ToEvents {
    static std::string write(const void* object, ObjectType type, const char* name = "value",
                             bool replaceInvalidText = false);
};

template <class Bridge>
std::string write(const KORVASchemaTypeI& object) {
    return Bridge::write(&object, object.getObjectType());
}

}  // namespace korva::test
