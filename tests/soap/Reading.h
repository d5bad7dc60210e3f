/// Short ways to read documents and envelopes that a test has as text.
#pragma once

#include "tests/support/TestStreams.h"

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVAXMLDeserializer.h>
#include <zel/ZELSmartPointer.h>
#include <zel/ZELThrowable.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace korva::test {

inline const std::string busNamespace = KORVA_TEST_AUTHORITY "/schemas/halyardns/3/";
inline const std::string reportNamespace = KORVA_TEST_AUTHORITY "/schemas/reportService/1";
inline const std::string envelopeNamespace = "http://schemas.xmlsoap.org/soap/envelope/";

/// Declarations of all prefixes of a type attribute.
inline std::string declarations() {
    return " xmlns:bus=\"" + busNamespace +
           "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
           " xmlns:xs=\"http://www.w3.org/2001/XMLSchema\""
           " xmlns:SOAP-ENC=\"http://schemas.xmlsoap.org/soap/encoding/\"";
}

/// A document whose root has the type `type` ("bus:provider").
inline std::string document(const std::string& type, const std::string& content) {
    return "<root" + declarations() + " xsi:type=\"" + type + "\">" + content + "</root>";
}

/// An envelope with these children of the header and of the body.
inline std::string envelope(const std::string& body, const std::string& header = {}) {
    return "<e:Envelope xmlns:e=\"" + envelopeNamespace + "\"" + declarations() + ">" +
           (header.empty() ? std::string() : "<e:Header>" + header + "</e:Header>") + "<e:Body>" +
           body + "</e:Body></e:Envelope>";
}

/// An envelope with this operation of the report service.
inline std::string operation(const std::string& name, const std::string& parameters,
                             const std::string& header = {}) {
    return envelope(
        "<r:" + name + " xmlns:r=\"" + reportNamespace + "\">" + parameters + "</r:" + name + ">",
        header);
}

/// Reads documents; what they hold lives as long as this object.
class DocumentReader {
public:
    DocumentReader() : m_registry(KORVAObjectRegistryFactory::getInstance().create()) {}

    KORVASchemaTypeI* read(BRIMInputStream& stream) {
        return deserializer.parse(stream, m_registry.get());
    }

    KORVASchemaTypeI* read(const std::string& text) {
        BRIMMemoryInputStream stream(text.data(), text.size());
        return read(stream);
    }

    /// The root, which must be an X.
    template <class X>
    X& read(const std::string& text) {
        KORVASchemaTypeI* const object = read(text);
        if (object == nullptr || object->getObjectType() != X().getObjectType())
            throw std::runtime_error("the document holds another object");
        return static_cast<X&>(*object);
    }

    KORVAXMLDeserializer deserializer;

private:
    ZELSmartPointer<KORVAObjectRegistryI> m_registry;
};

using Binding = ZELSmartPointer<KORVAPortTypeBinding>;

/// Reads an envelope as a server that offers the report service.
inline Binding readRequest(KORVASOAPMessageIDeserializer& deserializer, const std::string& text) {
    // Kept, as tests count what reading allocates.
    static const auto& offered =
        *new std::vector<KORVAPortTypeI*>{&KORVAReportServicePortType::getInstance()};
    BRIMMemoryInputStream stream(text.data(), text.size());
    Binding result;
    deserializer.parse(stream, offered, result);
    return result;
}

inline Binding readRequest(const std::string& text) {
    KORVASOAPMessageIDeserializer deserializer;
    return readRequest(deserializer, text);
}

/// Reads an envelope as the reply of `binding`.
inline void readReply(KORVASOAPMessageIDeserializer& deserializer, KORVAPortTypeBinding& binding,
                      const std::string& text) {
    BRIMMemoryInputStream stream(text.data(), text.size());
    deserializer.parse(stream, binding, &binding.getOutputMessage());
}

inline void readReply(KORVAPortTypeBinding& binding, const std::string& text) {
    KORVASOAPMessageIDeserializer deserializer;
    readReply(deserializer, binding, text);
}

/// A call of the report service's operation with this request.
inline Binding makeCall(KORVAMessageI::MessageType request) {
    return KORVAReportServicePortType::getInstance().createPortTypeBinding(request);
}

/// The trace of what `action` throws: one line for each place.
template <class Action>
std::vector<std::string> traceOf(Action action) {
    std::vector<std::string> lines;
    try {
        action();
    } catch (const ZELThrowable& throwable) {
        for (const char* const line : throwable.getBackTrace())
            lines.emplace_back(line);
    }
    return lines;
}

/// What a line of a trace tells of the place in the document, or the empty text.
inline std::string placeIn(const std::string& line) {
    const std::size_t at = line.rfind(": ");
    return at != std::string::npos ? line.substr(at + 2) : std::string();
}

}  // namespace korva::test
