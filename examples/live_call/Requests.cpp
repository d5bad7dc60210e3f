#include "examples/live_call/Requests.h"

#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVAAsynchRunSpecification_Request.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAReportGetOutput_Request.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVAReportServiceReportSpecification.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionStringArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVASpecification.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>

namespace live_call {

namespace {

/// What every request of ours carries: who asks, and for what it is logged.
void fillHeader(KORVAMessageI& request, const char* context) {
    KORVAObjectRegistryI* const registry = request.getObjectRegistry();
    KORVAHalyardHeader* const header = request.getHalyardHeader(registry);
    header->getWarden(registry)->getWardenPassport(registry)->setId("MTsxMDE6NjQ2");
    header->getTracking(registry)->setRequestContext(context);
}

KORVAParameterValue* makeRegion(KORVAObjectRegistryI& registry) {
    auto* const item = registry.make<KORVASimpleParmValueItem>();
    item->setUse("EMEA");
    item->setDisplay("Europe & more");
    auto* const region = registry.make<KORVAParameterValue>();
    region->setName("region");
    region->getValue().push_back(item);
    return region;
}

Binding bind(KORVAMessageI* request) {
    return KORVAReportServicePortType::getInstance().createPortTypeBinding(request);
}

}  // namespace

Binding makeRun(const char* path) {
    const ZELSmartPointer<KORVAAsynchRun_Request> request(new KORVAAsynchRun_Request);
    KORVAObjectRegistryI* const registry = request->getObjectRegistry();
    fillHeader(*request, "live-call-run");
    request->getObjectPath(registry)->setValue(path);
    request->getParameterValues(registry)->push_back(makeRegion(*registry));
    return bind(request.get());
}

Binding makeRunSpecification() {
    const ZELSmartPointer<KORVAAsynchRunSpecification_Request> request(
        new KORVAAsynchRunSpecification_Request);
    KORVAObjectRegistryI* const registry = request->getObjectRegistry();
    fillHeader(*request, "live-call-run-specification");
    auto* const specification = registry->make<KORVAReportServiceReportSpecification>();
    specification->getValue(registry)->setValue(
        "<report><list rows=\"[Sales].[Region]\"/><chart type=\"bar\"/></report>");
    request->setSpecification(specification);
    request->getParameterValues(registry)->push_back(makeRegion(*registry));
    return bind(request.get());
}

Binding makeGetOutput(KORVAAsynchRequest& conversation, const char* format) {
    const ZELSmartPointer<KORVAReportGetOutput_Request> request(new KORVAReportGetOutput_Request);
    KORVAObjectRegistryI* const registry = request->getObjectRegistry();
    fillHeader(*request, "live-call-get-output");
    request->setConversation(static_cast<KORVAAsynchRequest*>(
        &KORVASchemaTypesFactory::getInstance().createCopy(conversation, *registry)));
    auto* const option = registry->make<KORVARunOptionStringArray>();
    option->getName(registry)->setValue(KORVARunOptionEnum::eKORVAOutputFormat);
    option->getValue().push_back(format);
    request->getOptions(registry)->push_back(option);
    return bind(request.get());
}

}  // namespace live_call
