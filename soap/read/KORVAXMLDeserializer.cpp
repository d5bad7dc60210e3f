#include "korva/KORVAXMLDeserializer.h"

#include "soap/read/RootReader.h"
#include "soap/read/XmlReader.h"

#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELFrame.h>

using korva::XmlReader;

KORVAXMLDeserializer::KORVAXMLDeserializer() {
    try {
        m_reader.reset(new XmlReader);
        m_reader->limits().refuseDocumentType = true;
    }
    ZEL_CATCH("KORVAXMLDeserializer::KORVAXMLDeserializer");
}

KORVAXMLDeserializer::~KORVAXMLDeserializer() = default;

KORVASchemaTypeI* KORVAXMLDeserializer::parse(BRIMInputStream& stream,
                                              KORVAObjectRegistryI* registry) {
    KORVANamespaceMapping namespaceMapping;
    korva::RootReader reader(&namespaceMapping, registry);
    reader.setRules(m_policy, m_observer, m_reader->limits());
    m_reader->parse(stream, reader, reader.context().findings,
                    {"KORVAXMLDeserializer::parse", "KORVAXMLDeserializer::parse()"});
    return reader.result();
}

void KORVAXMLDeserializer::setMaximumDepth(std::size_t elements) {
    m_reader->limits().depth = elements;
}

void KORVAXMLDeserializer::setMaximumText(std::size_t units) {
    m_reader->limits().text = units;
}

void KORVAXMLDeserializer::setMaximumStartTag(std::size_t bytes) {
    m_reader->limits().startTag = bytes;
}

void KORVAXMLDeserializer::setMaximumAttributes(std::size_t attributes) {
    m_reader->limits().attributes = attributes;
}

void KORVAXMLDeserializer::setMaximumDeclarations(std::size_t declarations) {
    m_reader->limits().declarations = declarations;
}

void KORVAXMLDeserializer::setMaximumNames(std::size_t names) {
    m_reader->limits().names = names;
}

void KORVAXMLDeserializer::setMaximumReferences(std::size_t references) {
    m_reader->limits().references = references;
}

void KORVAXMLDeserializer::setMaximumExpandedText(std::size_t units) {
    m_reader->limits().expandedText = units;
}

void KORVAXMLDeserializer::setPolicy(const KORVA_ReadingPolicy& policy) {
    m_policy = policy;
}

void KORVAXMLDeserializer::setObserver(KORVA_ReadingObserver* observer) {
    m_observer = observer;
}
