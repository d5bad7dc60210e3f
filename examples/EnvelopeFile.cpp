#include "examples/EnvelopeFile.h"

#include <brim/BRIMCopy.h>
#include <brim/BRIMFileInputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVABatchReportServicePortType.h>
#include <korva/KORVAContentManagerCacheServicePortType.h>
#include <korva/KORVAContentManagerServicePortType.h>
#include <korva/KORVADeliveryServicePortType.h>
#include <korva/KORVADispatcherPortType.h>
#include <korva/KORVAEventManagementServicePortType.h>
#include <korva/KORVAException.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVAMobileServicePortType.h>
#include <korva/KORVAMonitorServicePortType.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <zel/ZELThrow.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

std::vector<KORVAPortTypeI*> allPortTypes() {
    return {&KORVAReportServicePortType::getInstance(),
            &KORVABatchReportServicePortType::getInstance(),
            &KORVAVelmoraTabulonPortType::getInstance(),
            &KORVADeliveryServicePortType::getInstance(),
            &KORVADispatcherPortType::getInstance(),
            &KORVAMonitorServicePortType::getInstance(),
            &KORVAContentManagerServicePortType::getInstance(),
            &KORVAContentManagerCacheServicePortType::getInstance(),
            &KORVAEventManagementServicePortType::getInstance(),
            &KORVAMobileServicePortType::getInstance()};
}

std::string readFile(const char* path) {
    BRIMFileInputStream file(path);
    BRIMMemoryOutputStream bytes;
    brim::copy(file, bytes);
    return {bytes.str(), bytes.pcount()};
}

/// A client knows which operation a reply answers; a reader of files has to look: the element
/// inside the body, with its namespace, tells.
struct Operation {
    std::string name;
    std::string namespaceUri;
};

Operation findOperation(std::string_view envelope) {
    Operation operation;
    std::size_t at = envelope.find(":Body");
    at = at == std::string_view::npos ? at : envelope.find('<', at);
    if (at == std::string_view::npos) return operation;
    const std::string_view tag = envelope.substr(at + 1, envelope.find('>', at) - at - 1);
    const std::size_t nameEnd = tag.find_first_of(" \t\r\n/");
    const std::string_view qName = tag.substr(0, nameEnd);
    const std::size_t colon = qName.find(':');
    if (colon == std::string_view::npos) return operation;
    operation.name = qName.substr(colon + 1);

    const std::string declaration = "xmlns:" + std::string(qName.substr(0, colon)) + "=";
    const std::size_t value = tag.find(declaration);
    if (value == std::string_view::npos) return operation;
    const char quote = tag[value + declaration.size()];
    const std::size_t start = value + declaration.size() + 1;
    operation.namespaceUri = tag.substr(start, tag.find(quote, start) - start);
    return operation;
}

constexpr std::string_view replySuffix = "Response";

}  // namespace

ZELSmartPointer<KORVAMessageI> readEnvelopeFile(const char* path) {
    const std::string envelope = readFile(path);
    BRIMMemoryInputStream stream(envelope.data(), envelope.size());
    KORVASOAPMessageIDeserializer deserializer;

    const Operation operation = findOperation(envelope);
    if (!operation.name.ends_with(replySuffix)) {
        ZELSmartPointer<KORVAPortTypeBinding> call;
        deserializer.parse(stream, allPortTypes(), call);
        return ZELSmartPointer<KORVAMessageI>(&call->getInputMessage());
    }

    const std::string request =
        operation.name.substr(0, operation.name.size() - replySuffix.size());
    for (const KORVAPortTypeI* portType : allPortTypes()) {
        if (operation.namespaceUri != portType->getBoundNamespace()) continue;
        const ZELSmartPointer<KORVAPortTypeBinding> call =
            portType->createPortTypeBinding(request.c_str(), {});
        deserializer.parse(stream, *call, &call->getOutputMessage());
        return ZELSmartPointer<KORVAMessageI>(&call->getOutputMessage());
    }
    ZEL_THROW(KORVAException("No service has the namespace of this reply's operation."),
              "readEnvelopeFile");
}
