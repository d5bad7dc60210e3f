#include "fuzz/Wire.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAException.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASOAPSerializer.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVAXMLDeserializer.h>
#include <korva/KORVA_PortTypes.h>

namespace korva::fuzz {

Binding readRequest(std::string_view envelope, KORVA_AttachmentHandler* attachments) {
    BRIMMemoryInputStream stream(envelope.data(), envelope.size());
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setAttachmentHandler(attachments);
    Binding binding;
    deserializer.parse(stream, KORVA_PortTypes::all(), binding);
    return binding;
}

Binding callFor(std::string_view envelope) {
    // Bindings keep the names that they are made with.
    static thread_local std::string name;
    const std::size_t end = envelope.find("Response");
    if (end != std::string_view::npos) {
        const std::size_t begin = envelope.find_last_of("<:/ ", end);
        name = envelope.substr(begin + 1, end - begin - 1);
        for (const KORVAPortTypeI* const portType : KORVA_PortTypes::all()) {
            try {
                return portType->createPortTypeBinding(name.c_str(), {});
            } catch (const KORVAException&) {  // NOLINT(bugprone-empty-catch): another may have it
            }
        }
    }
    return KORVAReportServicePortType::getInstance().createPortTypeBinding("run", {});
}

void readReply(std::string_view envelope, KORVAPortTypeBinding& call,
               KORVA_AttachmentHandler* attachments) {
    BRIMMemoryInputStream stream(envelope.data(), envelope.size());
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setAttachmentHandler(attachments);
    deserializer.parse(stream, call, &call.getOutputMessage());
}

std::string written(KORVAPortTypeBinding& binding, KORVAMessageI& message) {
    BRIMMemoryOutputStream out;
    KORVASOAPMessageISerializer().serialize(binding, message, out);
    return {out.str(), out.pcount()};
}

KORVASchemaTypeI* readDocument(std::string_view document, const Registry& registry) {
    BRIMMemoryInputStream stream(document.data(), document.size());
    return KORVAXMLDeserializer().parse(stream, registry.get());
}

std::string written(const KORVASchemaTypeI& object) {
    BRIMMemoryOutputStream out;
    KORVASOAPSerializer().serialize(&object, object.getObjectType(), "bus:root", out);
    return {out.str(), out.pcount()};
}

}  // namespace korva::fuzz
