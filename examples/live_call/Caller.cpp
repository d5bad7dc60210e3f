#include "examples/live_call/Caller.h"

#include "examples/live_call/HttpCall.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMStreamError.h>
#include <halyard/HALYARDTKMultipartReader.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>
#include <zel/ZELThrow.h>

#include <iostream>
#include <utility>

namespace live_call {

namespace {

/// A media type without its parameters, among them the boundary, which is another each time.
std::string mediaType(const char* contentType) {
    const std::string type = contentType != nullptr ? contentType : "no type";
    return type.substr(0, type.find(';'));
}

/// Reads an answer, and all its parts.
void read(HttpCall& answer, KORVAPortTypeBinding& binding) {
    KORVAMessageI& reply = binding.getOutputMessage();
    HALYARDTKMultipartReader message(answer, answer.contentType());
    KORVA_AttachmentHandler attachments;
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setAttachmentHandler(&attachments);
    deserializer.parse(message.getRoot(), binding, &reply);
    if (!attachments.resolveReferences(message, *reply.getObjectRegistry(),
                                       KORVA_SpoolingAttachmentContainer::create))
        ZEL_THROW(BRIMStreamError("The reply refers to a part that did not come."));
}

}  // namespace

Caller::Caller(std::string url) : m_url(std::move(url)) {}

unsigned long long Caller::call(KORVAPortTypeBinding& binding) const {
    const std::string operation = binding.getOperationName();
    return send(operation + " of " + binding.getBoundPortType().getName(), envelopeOf(binding),
                binding);
}

unsigned long long Caller::send(const std::string& title, const std::string& envelope,
                                KORVAPortTypeBinding& binding) const {
    const char* const action = binding.getSOAPAction();
    std::cout << "  sends     " << title << ", " << envelope.size() << " bytes\n"
              << "            SOAPAction " << action << std::endl;
    HttpCall answer(m_url, action, envelope);
    std::cout << "  receives  HTTP " << answer.status() << ", " << mediaType(answer.contentType())
              << std::endl;
    read(answer, binding);
    return answer.receivedBytes();
}

std::size_t Caller::peakMemoryOfServer() const {
    HttpCall answer(m_url + "status");
    char text[32] = {};
    answer.read(text, sizeof text - 1);
    return std::stoul(text);
}

std::string envelopeOf(KORVAPortTypeBinding& binding) {
    BRIMMemoryOutputStream bytes;
    KORVASOAPMessageISerializer().serialize(binding, binding.getInputMessage(), bytes);
    return {bytes.str(), bytes.pcount()};
}

}  // namespace live_call
