#include "tests/roundtrip/Wire.h"

#include "tests/roundtrip/Operations.h"
#include "tests/support/TestStreams.h"

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVAContentHandler.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASOAPSerializer.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <korva/KORVA_PortTypes.h>
#include <zel/I18NConverter.h>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>

namespace korva::test {

namespace {

/// Hands the root of a document to the reader of values, as that of envelopes does with parameters.
class ElementReader : public KORVAContentHandler {
public:
    ElementReader(KORVASchemaTypeI::ObjectType type, Registry registry)
        : KORVAContentHandler(m_converter), m_type(type), m_registry(std::move(registry)) {}

    void startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) override {
        addPrefix(m_mapping, prefix, uri);
    }
    void endPrefixMapping(const XMLCh* prefix) override { removePrefix(m_mapping, prefix); }

    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                      const xercesc::Attributes& attributes) override {
        if (m_depth++ == 0)
            m_reader.emplace(localName, attributes, &m_mapping, m_registry.get(), m_converter,
                             m_type);
        else
            m_reader->startElement(uri, localName, qName, attributes);
    }
    void characters(const XMLCh* text, XMLSize_t length) override {
        m_reader->characters(text, length);
    }
    void endElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName) override {
        if (--m_depth == 0)
            value = static_cast<KORVASchemaTypeI*>(m_reader->getParamValue());
        else
            m_reader->endElement(uri, localName, qName);
    }

    KORVASchemaTypeI* value = nullptr;

private:
    I18NConverter m_converter;
    KORVASchemaTypeI::ObjectType m_type;
    Registry m_registry;
    KORVANamespaceMapping m_mapping;
    std::optional<KORVASchemaTypeIContentHandler> m_reader;
    int m_depth = 0;
};

}  // namespace

std::string writeDocument(const KORVASchemaTypeI& object, const char* name,
                          bool writeNullElements) {
    KORVASOAPSerializer serializer;
    serializer.setWriteNullElements(writeNullElements);
    CollectingStream stream;
    const std::string qName = std::string("bus:") + name;
    serializer.serialize(&object, object.getObjectType(), qName.c_str(), stream);
    return stream.text;
}

KORVASchemaTypeI* readDocument(KORVAXMLDeserializer& deserializer, const std::string& xml,
                               const Registry& registry) {
    BRIMMemoryInputStream stream(xml.data(), xml.size());
    return deserializer.parse(stream, registry.get());
}

KORVASchemaTypeI* readElement(const std::string& xml, KORVASchemaTypeI::ObjectType type,
                              const Registry& registry) {
    const std::unique_ptr<xercesc::SAX2XMLReader> parser(
        xercesc::XMLReaderFactory::createXMLReader());
    ElementReader reader(type, registry);
    parser->setContentHandler(&reader);
    parser->setErrorHandler(&reader);
    parser->parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(xml.data()),
                                             xml.size(), "a document"));
    return reader.value;
}

std::string writeEnvelope(KORVAPortTypeBinding& binding, KORVAMessageI& message) {
    KORVASOAPMessageISerializer serializer;
    CollectingStream stream;
    serializer.serialize(binding, message, stream);
    return stream.text;
}

Binding readRequest(KORVASOAPMessageIDeserializer& deserializer, const std::string& xml) {
    BRIMMemoryInputStream stream(xml.data(), xml.size());
    Binding result;
    deserializer.parse(stream, KORVA_PortTypes::all(), result);
    return result;
}

void readReply(KORVASOAPMessageIDeserializer& deserializer, KORVAPortTypeBinding& binding,
               const std::string& xml) {
    BRIMMemoryInputStream stream(xml.data(), xml.size());
    deserializer.parse(stream, binding, &binding.getOutputMessage());
}

testing::AssertionResult areSameBytes(const std::string& left, const std::string& right) {
    if (left == right) return testing::AssertionSuccess();
    constexpr std::size_t context = 60;
    const auto at = static_cast<std::size_t>(
        std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first - left.begin());
    const std::size_t from = at - std::min(at, context);
    return testing::AssertionFailure()
           << "they part at byte " << at << ": \"" << left.substr(from, 2 * context) << "\" and \""
           << right.substr(from, 2 * context) << '"';
}

}  // namespace korva::test
