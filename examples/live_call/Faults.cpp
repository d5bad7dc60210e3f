#include "examples/live_call/Faults.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <i18n/KORVAMessageCatalogue.h>
#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFaultDetailMessage.h>
#include <korva/KORVAFaultDetailMessageArray.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPFaultSerializer.h>
#include <korva/KORVASeverityEnum.h>
#include <zel/ZELThrow.h>

#include <cstdio>

namespace live_call {

KORVASOAPFault& makeFault(KORVAObjectRegistryI& registry, Blame blame, const char* text,
                          const Error& error) {
    auto* const detail = registry.make<KORVAFaultDetail>();
    detail->setErrorCode(registry.keep(error.code));
    detail->getSeverity(&registry)->setValue(KORVASeverityEnum::eKORVAError);
    for (const std::string& message : error.messages) {
        auto* const line = registry.make<KORVAFaultDetailMessage>();
        line->setMessage(registry.keep(message));
        detail->getMessage().push_back(line);
    }
    auto* const details = registry.make<KORVAFaultDetailArray>();
    details->push_back(detail);

    auto* const fault = registry.make<KORVASOAPFault>();
    fault->setFaultCode(blame == Blame::eCaller ? "SOAP-ENV:Client" : "SOAP-ENV:Server");
    fault->setFaultString(text);
    fault->setDetail(details);
    return *fault;
}

void raiseFault(KORVAObjectRegistryI& registry, const char* text, const Error& error) {
    KORVASOAPFault& fault = makeFault(registry, Blame::eCaller, text, error);
    ZEL_THROW(KORVASOAPFaultException(nullptr, fault, &registry));
}

Error errorOf(const ZELMessageSet& failure) {
    Error error;
    for (const ZELMessage& message : failure.getMessages()) {
        if (error.code.empty()) {
            char number[16];
            std::snprintf(number, sizeof number, "0x%08X", message.getId());
            error.code = number;
        }
        message.fill(KORVAMessageCatalogue::find(message.getId()), error.messages.emplace_back());
    }
    return error;
}

std::string faultEnvelope(const KORVASOAPFault& fault) {
    BRIMMemoryOutputStream bytes;
    KORVASOAPFaultSerializer serializer;
    // A caller's words may stand in the texts, and the fault has to go out whatever they are.
    serializer.setEscapeTexts(true);
    serializer.setReplaceInvalidText(true);
    serializer.serialize(nullptr, fault, bytes, true, true);
    return {bytes.str(), bytes.pcount()};
}

}  // namespace live_call
