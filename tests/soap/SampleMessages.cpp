#include "tests/soap/SampleMessages.h"

#include <korva/KORVAActivate_Request.h>
#include <korva/KORVAAsynchDetailArray.h>
#include <korva/KORVAAsynchDetailCount.h>
#include <korva/KORVAAsynchDetailMIMEAttachment.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAAsynchDetailReportStatus.h>
#include <korva/KORVAAsynchDetailReportStatusEnum.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABoundRangeParmValueItem.h>
#include <korva/KORVAConversationContext.h>
#include <korva/KORVACookieVar.h>
#include <korva/KORVACookieVarArray.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAHalyardHeaderExtension1.h>
#include <korva/KORVAHdrSession.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAOutput.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVAProviderArray.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionStringArray.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAVelmoraTabulonPortType.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVAXmlEncodedXML.h>

namespace korva::test {

namespace {

KORVAXSBase64Binary* makeBinary(KORVAObjectRegistryI* registry, const char* data,
                                std::size_t length) {
    return registry->make<KORVAXSBase64Binary>(data, length);
}

KORVASimpleParmValueItem* makeItem(KORVAObjectRegistryI* registry, const char* use,
                                   const char* display) {
    auto* const item = registry->make<KORVASimpleParmValueItem>();
    item->setUse(use);
    item->setDisplay(display);
    return item;
}

}  // namespace

Call makeActivateCall(const char* contentManagerURI) {
    ZELSmartPointer<KORVAActivate_Request> request(new KORVAActivate_Request);
    request->setContentManagerURI(contentManagerURI);
    return KORVAVelmoraTabulonPortType::getInstance().createPortTypeBinding(request.get());
}

Call makeRunCall() {
    return KORVAReportServicePortType::getInstance().createPortTypeBinding(
        KORVAMessageI::eKORVAAsynchRun_Request);
}

void fillHeader(KORVAMessageI& message) {
    KORVAObjectRegistryI* const registry = message.getObjectRegistry();
    KORVAHalyardHeader& header = *message.getHalyardHeader(registry);
    KORVAWarden& warden = *header.getWarden(registry);
    warden.setAction("logon");
    warden.setAuthenticityToken(makeBinary(registry, "\x00\x01\xFE\xFF", 4));
    KORVAWardenPassport& passport = *warden.getWardenPassport(registry);
    passport.setCanCallLogon(false);
    passport.setGeneration(3);
    passport.setId("MTsxMDE6Zm9vOmJhcg==");
    passport.setIsAnonymous(true);
    warden.getRoles().push_back("::Authors");
    warden.getRoles().push_back("R&D");
    header.getExtension(registry);
    auto* const cookie = registry->make<KORVACookieVar>();
    cookie->setName("session");
    cookie->setValue("a=1;b=\"2\"");
    header.getHdrSession(registry)->getCookieVars().push_back(cookie);
    auto* const provider = registry->make<KORVAProvider>();
    provider->setName("dispatcher");
    provider->setPatch(-1);
    header.getProviders().push_back(provider);
    KORVATracking& tracking = *header.getTracking(registry);
    KORVAConversationContext& conversation = *tracking.getConversationContext(registry);
    conversation.setNodeID("node-7");
    conversation.setProcessID(4711);
    tracking.setHopCount(2);
    tracking.setRequestContext("request-1");
}

void fillRunRequest(KORVAMessageI& message) {
    auto& request = static_cast<KORVAAsynchRun_Request&>(message);
    KORVAObjectRegistryI* const registry = request.getObjectRegistry();
    request.getObjectPath(registry)->setValue("/content/report[@name='Quarter']");
    auto* const plain = registry->make<KORVAParameterValue>();
    plain->setName("Year");
    plain->getValue().push_back(makeItem(registry, "2026", nullptr));
    auto* const range = registry->make<KORVAParameterValue>();
    range->setName("Month");
    auto* const bounds = registry->make<KORVABoundRangeParmValueItem>();
    bounds->setInclusive(true);
    bounds->setStart(makeItem(registry, "1", "January"));
    bounds->setEnd(makeItem(registry, "3", "March"));
    range->getValue().push_back(bounds);
    request.getParameterValues(registry)->push_back(plain);
    request.getParameterValues(registry)->push_back(range);
    auto* const prompt = registry->make<KORVARunOptionBoolean>();
    prompt->getName(registry)->setValue(KORVARunOptionEnum::eKORVAPrompt);
    prompt->setValue(false);
    auto* const format = registry->make<KORVARunOptionStringArray>();
    format->getName(registry)->setValue(KORVARunOptionEnum::eKORVAOutputFormat);
    format->getValue().push_back("PDF");
    request.getOptions(registry)->push_back(prompt);
    request.getOptions(registry)->push_back(format);
}

void fillRunReply(KORVAMessageI& message) {
    KORVAObjectRegistryI* const registry = message.getObjectRegistry();
    KORVAAsynchReply& result = *static_cast<KORVAAsynchRun_Reply&>(message).getResult(registry);
    auto* const status = registry->make<KORVAAsynchDetailReportStatus>();
    status->getStatus(registry)->setValue(KORVAAsynchDetailReportStatusEnum::eKORVAResponseReady);
    auto* const output = registry->make<KORVAAsynchDetailReportOutput>();
    auto* const object = registry->make<KORVAOutput>();
    object->getBurstKey(registry)->setValue("North");
    output->getOutputObjects().push_back(object);
    output->getOutputPages().push_back("<html>page 1</html>");
    auto* const count = registry->make<KORVAAsynchDetailCount>();
    count->setCount(42);
    auto* const attachment = registry->make<KORVAAsynchDetailMIMEAttachment>();
    attachment->setData(makeBinary(registry, "hello", 5));
    attachment->setDataType("text/plain");
    for (KORVAAsynchDetail* const detail :
         {static_cast<KORVAAsynchDetail*>(status), static_cast<KORVAAsynchDetail*>(output),
          static_cast<KORVAAsynchDetail*>(count), static_cast<KORVAAsynchDetail*>(attachment)})
        result.getDetails().push_back(detail);
    result.getPrimaryRequest(registry)->setName("run");
    result.getPrimaryRequest(registry)->getStateData(registry)->setValue("<state/>");
    result.getStatus(registry)->setValue(KORVAAsynchReplyStatusEnum::eKORVAComplete);
}

}  // namespace korva::test
