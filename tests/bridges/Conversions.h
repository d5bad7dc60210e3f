/// Short ways over the bridges.
#pragma once

#include "tests/support/TestStreams.h"

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVADOMObjectDeserializer.h>
#include <korva/KORVADOMObjectSerializer.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASAXObjectSerializer.h>
#include <korva/KORVASOAPSerializer.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <korva/KORVATARNObjectDeserializer.h>
#include <korva/KORVATARNObjectSerializer.h>
#include <korva/KORVAXMLDeserializer.h>
#include <tarn/TARNObjectRegistry.h>
#include <zel/I18NConverter.h>
#include <zel/ZELSmartPointer.h>
#include <zelidom/ZELIDOM_Document.h>

#include <string>

namespace korva::test {

/// The element "bus:value" of an object.
inline ZELIDOM_Element toElement(const KORVASchemaTypeI& object, const ZELIDOM_Document& document) {
    return KORVADOMObjectSerializer().serialize(&object, object.getObjectType(), "bus:value",
                                                document);
}

inline void replay(const KORVASchemaTypeI& object, xercesc::ContentHandler& handler) {
    KORVASAXObjectSerializer().serialize(&object, object.getObjectType(), "value", handler);
}

/// What the reader of documents builds of the events of an object.
inline KORVASchemaTypeI* readReplayed(const KORVASchemaTypeI& object,
                                      KORVAObjectRegistryI* registry) {
    KORVANamespaceMapping mapping;
    I18NConverter converter;
    void* result = nullptr;
    KORVASchemaTypeIContentHandler handler(&result, &mapping, registry, converter);
    handler.startDocument();
    replay(object, handler);
    handler.endDocument();
    return static_cast<KORVASchemaTypeI*>(result);
}

/// The document "bus:value" of an object.
inline std::string toText(const KORVASchemaTypeI& object) {
    CollectingStream stream;
    KORVASOAPSerializer().serialize(&object, object.getObjectType(), "bus:value", stream);
    return stream.text;
}

inline KORVASchemaTypeI* readText(const std::string& xml, KORVAObjectRegistryI* registry) {
    BRIMMemoryInputStream stream(xml.data(), xml.size());
    return KORVAXMLDeserializer().parse(stream, registry);
}

/// Registries of the second object model, as tests hold them.
using TarnRegistry = ZELSmartPointer<TARNObjectRegistry>;

inline TarnRegistry makeTarnRegistry() {
    return TARNObjectRegistry::create();
}

/// The object of the second model for an object.
inline TARNSchemaTypeI* toTarn(const KORVASchemaTypeI& object, const TarnRegistry& registry) {
    return KORVATARNObjectSerializer().serialize(&object, *registry);
}

inline KORVASchemaTypeI* fromTarn(const TARNSchemaTypeI& object, KORVAObjectRegistryI& registry) {
    return KORVATARNObjectDeserializer().deserialize(&object, registry);
}

/// A document in memory, written out by the parser's own library.
std::string writeOut(const ZELIDOM_Node& node);

}  // namespace korva::test
