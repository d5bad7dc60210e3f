#include "korva/KORVAXMLDeserializer.h"

#include "soap/read/NoDOCTYPEHandler.h"
#include "soap/read/XmlReader.h"

#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <zel/ZELFrame.h>

using korva::XmlReader;

KORVAXMLDeserializerI::~KORVAXMLDeserializerI() = default;

KORVAXMLDeserializer::KORVAXMLDeserializer() {
    try {
        m_reader.reset(new XmlReader);
    }
    ZEL_CATCH("KORVAXMLDeserializer::KORVAXMLDeserializer");
}

KORVAXMLDeserializer::~KORVAXMLDeserializer() = default;

KORVASchemaTypeI* KORVAXMLDeserializer::parse(BRIMInputStream& stream,
                                              KORVAObjectRegistryI* registry) {
    KORVANamespaceMapping namespaceMapping;
    void* result = nullptr;
    m_converter.reset();
    KORVASchemaTypeIContentHandler handler(&result, &namespaceMapping, registry, m_converter);
    korva::NoDOCTYPEHandler noDOCTYPEHandler;
    m_reader->parse(stream, handler, &noDOCTYPEHandler,
                    {"KORVAXMLDeserializer::parse", "KORVAXMLDeserializer::parse()"});
    return static_cast<KORVASchemaTypeI*>(result);
}

void KORVAXMLDeserializer::setMaximumDepth(std::size_t elements) {
    m_reader->limits().depth = elements;
}

void KORVAXMLDeserializer::setMaximumText(std::size_t units) {
    m_reader->limits().text = units;
}
