#include "examples/live_call/ReportOperations.h"

#include "examples/live_call/Faults.h"
#include "examples/live_call/ReportOutput.h"

#include <korva/KORVAAsynchDetailArray.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVAAsynchRunSpecification_Reply.h>
#include <korva/KORVAAsynchRunSpecification_Request.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAAsynchSpecificationArray.h>
#include <korva/KORVABase64BinaryMIMEProp.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVANmtokenProp.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAOutput.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAReportGetOutput_Reply.h>
#include <korva/KORVAReportGetOutput_Request.h>
#include <korva/KORVAReportServiceReportSpecification.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionStringArray.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVASpecification.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVAXmlEncodedXML.h>

#include <string>
#include <string_view>
#include <utility>

namespace live_call {

namespace {

constexpr std::string_view storedReport = "/content/folder[@name='Sales']/report[@name='Q4']";
constexpr std::string_view stateOfReport = "<state report=\"Q4\"/>";
constexpr std::string_view attachmentId = "output";

/// What is not set reads as the empty text.
std::string text(const char* value) {
    return value != nullptr ? value : "";
}

/// The text of an object that holds nothing else; empty without one.
template <class X>
std::string valueOf(const X* object) {
    return object != nullptr ? text(object->getValue()) : "";
}

/// How the value of the parameter `name` is shown to people.
std::string shownValue(KORVAParameterValueArray* parameters, const std::string& name) {
    if (parameters == nullptr) return "";
    for (const KORVAParameterValue* const parameter : *parameters) {
        if (text(parameter->getName()) != name) continue;
        for (const KORVAParmValueItem* const item : parameter->getValue())
            if (const auto* const simple = dynamic_cast<const KORVASimpleParmValueItem*>(item))
                return text(simple->getDisplay());
    }
    return "";
}

/// The first output format that the options ask for.
std::string formatIn(KORVAOptionArray* options) {
    if (options == nullptr) return "";
    for (KORVAOption* const option : *options) {
        auto* const formats = dynamic_cast<KORVARunOptionStringArray*>(option);
        if (formats == nullptr || formats->getName() == nullptr) continue;
        if (formats->getName()->getValue() == KORVARunOptionEnum::eKORVAOutputFormat &&
            !formats->getValue().empty())
            return text(formats->getValue().at(0));
    }
    return "";
}

/// Fills the reply that opens a conversation: its handle, and the first page.
void openConversation(KORVAAsynchReply& reply, KORVAObjectRegistryI& registry,
                      const char* operation, KORVAParameterValueArray* parameters,
                      const std::string& subject) {
    reply.getStatus(&registry)->setValue(KORVAAsynchReplyStatusEnum::eKORVAConversationComplete);
    KORVAAsynchRequest* const handle = reply.getPrimaryRequest(&registry);
    handle->setName(operation);
    handle->getStateData(&registry)->setValue(stateOfReport.data());
    // The values belong to the request, which lives until the reply has been written.
    if (parameters != nullptr)
        for (KORVAParameterValue* const parameter : *parameters)
            handle->getParameters().push_back(parameter);

    auto* const output = registry.make<KORVAAsynchDetailReportOutput>();
    output->getOutputPages().push_back(
        registry.keep("Sales of " + shownValue(parameters, "region") + ", " + subject));
    reply.getDetails().push_back(output);
}

void run(KORVAPortTypeBinding& call, std::vector<Attachment>&) {
    const auto& request = static_cast<KORVAAsynchRun_Request&>(call.getInputMessage());
    auto& reply = static_cast<KORVAAsynchRun_Reply&>(call.getOutputMessage());
    KORVAObjectRegistryI& registry = *reply.getObjectRegistry();

    const std::string path = valueOf(request.getObjectPath());
    if (path != storedReport)
        raiseFault(registry, "There is no such report.",
                   {"noSuchReport", {"No report has the path \"" + path + "\"."}});

    KORVAAsynchReply* const result = reply.getResult(&registry);
    openConversation(*result, registry, call.getOperationName(), request.getParameterValues(),
                     "by the stored report");
    result->getPrimaryRequest(&registry)->setObjectPath(request.getObjectPath());
}

void runSpecification(KORVAPortTypeBinding& call, std::vector<Attachment>&) {
    const auto& request = static_cast<KORVAAsynchRunSpecification_Request&>(call.getInputMessage());
    auto& reply = static_cast<KORVAAsynchRunSpecification_Reply&>(call.getOutputMessage());
    KORVAObjectRegistryI& registry = *reply.getObjectRegistry();

    auto* const specification =
        dynamic_cast<KORVAReportServiceReportSpecification*>(request.getSpecification());
    if (specification == nullptr)
        raiseFault(registry, "There is no report to run.",
                   {"noSpecification", {"The request has no specification of a report."}});

    openConversation(*reply.getResult(&registry), registry, call.getOperationName(),
                     request.getParameterValues(),
                     "by a report of " + std::to_string(valueOf(specification->getValue()).size()) +
                         " characters");
    reply.getResult()->getPrimaryRequest()->getSpecification().push_back(specification);
}

/// Says in the reply what the attachment is, and where.
void describe(KORVAAsynchReply& reply, KORVAObjectRegistryI& registry, const std::string& format,
              const Attachment& attachment) {
    auto* const id = registry.make<KORVAXSBase64Binary>(attachment.id.data(), attachment.id.size());
    id->setIsContentId(true);

    auto* const output = registry.make<KORVAOutput>();
    output->getFormat(&registry)->setValue(registry.keep(format));
    output->getDataType(&registry)->setValue(registry.keep(attachment.type));
    output->getData(&registry)->setValue(id);
    auto* const detail = registry.make<KORVAAsynchDetailReportOutput>();
    detail->getOutputObjects().push_back(output);
    reply.getDetails().push_back(detail);
    reply.getStatus(&registry)->setValue(KORVAAsynchReplyStatusEnum::eKORVAConversationComplete);
}

void getOutput(KORVAPortTypeBinding& call, std::vector<Attachment>& attachments) {
    const auto& request = static_cast<KORVAReportGetOutput_Request&>(call.getInputMessage());
    auto& reply = static_cast<KORVAReportGetOutput_Reply&>(call.getOutputMessage());
    KORVAObjectRegistryI& registry = *reply.getObjectRegistry();

    const KORVAAsynchRequest* const conversation = request.getConversation();
    if (conversation == nullptr || valueOf(conversation->getStateData()) != stateOfReport)
        raiseFault(registry, "There is no such conversation.",
                   {"noSuchConversation", {"No conversation of this service has this state."}});

    Attachment output{std::string(attachmentId), {}, HALYARDTKMultipartWriter::ePlain, {}};
    const std::string format = formatIn(request.getOptions());
    if (format == "PDF") {
        output.type = "application/pdf";
        output.content = std::make_unique<DocumentOutput>(documentSize);
    } else if (format == "CSV") {
        output.type = "text/csv";
        output.compression = HALYARDTKMultipartWriter::eGzip;
        output.content = std::make_unique<TableOutput>(tableRows);
    } else {
        raiseFault(registry, "There is no such output.",
                   {"noSuchFormat",
                    {"The format \"" + format + "\" is not offered.", " Ask for PDF or CSV."}});
    }
    describe(*reply.getResult(&registry), registry, format, output);
    attachments.push_back(std::move(output));
}

}  // namespace

Operations reportOperations() {
    return {{KORVAMessageI::eKORVAAsynchRun_Request, run},
            {KORVAMessageI::eKORVAAsynchRunSpecification_Request, runSpecification},
            {KORVAMessageI::eKORVAReportGetOutput_Request, getOutput}};
}

}  // namespace live_call
