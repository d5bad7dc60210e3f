#include "examples/live_call/Endpoint.h"

#include "examples/live_call/Faults.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMStreamError.h>
#include <korva/KORVAException.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELSmartPointer.h>

#include <exception>
#include <iostream>
#include <utility>

namespace live_call {

namespace {

constexpr const char* unreadable = "The request cannot be read.";

// No request of ours comes near; the library's own limits are made for larger messages.
constexpr std::size_t deepestElement = 500;

Answer fault(Blame blame, const char* text, const Error& error) {
    const ZELSmartPointer<KORVAObjectRegistryI> registry(
        KORVAObjectRegistryFactory::getInstance().create());
    return {500, faultEnvelope(makeFault(*registry, blame, text, error)), {}};
}

/// What failed is ours to know: the log gets it, the caller learns that it wasn't them.
Answer failure(const char* description) {
    std::cerr << description << std::endl;
    return fault(Blame::eService, "The service failed.",
                 {"internal", {"The service failed. Its log tells more."}});
}

/// Whether a SOAPAction header, usually in quotes, has this value.
bool isAction(const std::string& header, const std::string& action) {
    return header == action || header == '"' + action + '"';
}

}  // namespace

Endpoint::Endpoint(std::vector<KORVAPortTypeI*> services, Operations operations)
    : m_services(std::move(services)), m_operations(std::move(operations)) {}

Answer Endpoint::answer(const std::string& envelope, const std::string& action) const {
    try {
        ZELSmartPointer<KORVAPortTypeBinding> call;
        try {
            BRIMMemoryInputStream stream(envelope.data(), envelope.size());
            KORVASOAPMessageIDeserializer deserializer;
            deserializer.setMaximumDepth(deepestElement);
            deserializer.setRefuseDocumentType(true);
            deserializer.parse(stream, m_services, call);
        } catch (const KORVAException& error) {
            return fault(Blame::eCaller, unreadable, errorOf(error));
        } catch (const KORVASOAPFaultException&) {
            return refuse("A fault is no request.");
        } catch (const BRIMStreamError& error) {
            return refuse(error.getText());
        } catch (const ZELAssertError& error) {
            std::cerr << error.toString() << std::endl;
            return refuse("The body has no operation, or refers to an attachment.");
        }
        if (!isAction(action, call->getSOAPAction()))
            return refuse(std::string("The operation has the SOAP action ") +
                          call->getSOAPAction() + '.');
        return perform(*call);
    } catch (const KORVASOAPFaultException& error) {
        return {500, faultEnvelope(error.getSOAPFault()), {}};
    } catch (const ZELThrowable& error) {
        return failure(error.toString());
    } catch (const std::exception& error) {
        return failure(error.what());
    }
}

Answer Endpoint::refuse(const std::string& reason) const {
    return fault(Blame::eCaller, unreadable, {"refused", {reason}});
}

Answer Endpoint::perform(KORVAPortTypeBinding& call) const {
    const auto operation = m_operations.find(call.getInputMessage().getMessageType());
    if (operation == m_operations.end())
        raiseFault(*call.getOutputMessage().getObjectRegistry(), "The operation is not offered.",
                   {"notOffered",
                    {std::string("This service has no operation ") + call.getOperationName() +
                     " for such a request."}});
    Answer answer{200, {}, {}};
    operation->second(call, answer.attachments);

    BRIMMemoryOutputStream bytes;
    KORVASOAPMessageISerializer().serialize(call, call.getOutputMessage(), bytes);
    answer.envelope.assign(bytes.str(), bytes.pcount());
    return answer;
}

}  // namespace live_call
