/// Short ways to write one value and to look at the bytes.
#pragma once

#include "tests/support/TestStreams.h"

#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPSerializer.h>
#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELSmartPointer.h>

#include <string>

namespace korva::test {

/// Makes objects that live as long as it does.
class Maker {
public:
    Maker() : m_registry(KORVAObjectRegistryFactory::getInstance().create()) {}

    KORVAObjectRegistryI* registry() const { return m_registry.get(); }

    template <class X, class... Arguments>
    X* make(Arguments... arguments) const {
        return m_registry->make<X>(arguments...);
    }

private:
    ZELSmartPointer<KORVAObjectRegistryI> m_registry;
};

/// The element of a value, without namespace declarations.
inline std::string element(const void* object, KORVASchemaTypeI::ObjectType type,
                           const char* qName = "bus:value", bool writeNullElements = false) {
    KORVASOAPSerializer serializer;
    serializer.setWriteNamespaceDeclarations(false);
    serializer.setWriteNullElements(writeNullElements);
    CollectingStream stream;
    serializer.serialize(object, type, qName, stream);
    return stream.text;
}

/// The element of an object, by its own type.
inline std::string element(const KORVASchemaTypeI& object, const char* qName = "bus:value",
                           bool writeNullElements = false) {
    return element(&object, object.getObjectType(), qName, writeNullElements);
}

}  // namespace korva::test
