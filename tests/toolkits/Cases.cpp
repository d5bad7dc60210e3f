#include "tests/toolkits/Cases.h"

#include "tests/interop/Objects.h"

#include <korva/KORVAAsynchDetailArray.h>
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
#include <korva/KORVAEventManagementServicePortType.h>
#include <korva/KORVAEventTrigger_Reply.h>
#include <korva/KORVAEventTrigger_Request.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAOutput.h>
#include <korva/KORVAPage.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVARunOptionInt.h>
#include <korva/KORVARunOptionString.h>
#include <korva/KORVARunOptionStringArray.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXSBase64Binary.h>

#include <map>

namespace korva::test {

namespace {

using Registry = KORVAObjectRegistryI*;
using Enum = KORVARunOptionEnum;

KORVAAsynchRun_Request& runRequest(KORVAPortTypeBinding& call) {
    return dynamic_cast<KORVAAsynchRun_Request&>(call.getInputMessage());
}

/// The parameters of a run call, none of them null.
KORVAAsynchRun_Request& emptyRun(KORVAPortTypeBinding& call) {
    KORVAAsynchRun_Request& request = runRequest(call);
    const Registry registry = request.getObjectRegistry();
    request.getObjectPath(registry)->setValue("/content/report");
    request.getParameterValues(registry);
    request.getOptions(registry);
    return request;
}

KORVASimpleParmValueItem* makeItem(Registry registry, const char* use, const char* display) {
    auto* const item = registry->make<KORVASimpleParmValueItem>();
    item->setUse(use);
    item->setDisplay(display);
    item->setInclusive(true);
    return item;
}

KORVARunOptionBoolean* makePrompt(Registry registry, bool value) {
    auto* const option = registry->make<KORVARunOptionBoolean>();
    option->getName(registry)->setValue(Enum::eKORVAPrompt);
    option->setValue(value);
    return option;
}

void fillTreeRequest(KORVAPortTypeBinding& call) {
    KORVAAsynchRun_Request& request = emptyRun(call);
    const Registry registry = request.getObjectRegistry();
    KORVAHalyardHeader& header = *request.getHalyardHeader(registry);
    header.getTracking(registry)->setHopCount(2);
    KORVAWarden& warden = *header.getWarden(registry);
    warden.setAuthenticityToken(makeBinary(registry, someBytes));
    warden.getWardenPassport(registry)->setId("MTsx");
    warden.getWardenPassport(registry)->setIsAnonymous(false);
    warden.getRoles().push_back("Authors");
    warden.getRoles().push_back("R&D");

    auto* const region = registry->make<KORVAParameterValue>();
    region->setName("region");
    region->getValue().push_back(makeItem(registry, "EMEA", "Europe"));
    auto* const range = registry->make<KORVABoundRangeParmValueItem>();
    range->setStart(makeItem(registry, "1", "one"));
    range->setEnd(makeItem(registry, "9", "nine"));
    region->getValue().push_back(range);
    request.getParameterValues()->push_back(region);

    request.getOptions()->push_back(makePrompt(registry, false));
    auto* const formats = registry->make<KORVARunOptionStringArray>();
    formats->getName(registry)->setValue(Enum::eKORVAOutputFormat);
    formats->getValue().push_back("PDF");
    formats->getValue().push_back("HTML");
    request.getOptions()->push_back(formats);
    auto* const rows = registry->make<KORVARunOptionInt>();
    rows->getName(registry)->setValue(Enum::eKORVAVerticalElements);
    rows->setValue(-5);
    request.getOptions()->push_back(rows);
}

void addText(KORVAAsynchRun_Request& request, const char* text) {
    const Registry registry = request.getObjectRegistry();
    auto* const option = registry->make<KORVARunOptionString>();
    option->getName(registry)->setValue(Enum::eKORVABurstKeyLimit);
    option->setValue(text);
    request.getOptions()->push_back(option);
}

void fillTextsRequest(KORVAPortTypeBinding& call) {
    KORVAAsynchRun_Request& request = emptyRun(call);
    request.getObjectPath()->setValue(anyText);
    addText(request, "  two\nlines  ");
}

void fillEmptyTextRequest(KORVAPortTypeBinding& call) {
    KORVAAsynchRun_Request& request = emptyRun(call);
    request.getObjectPath()->setValue("");
    addText(request, "");
}

void fillOmittedRequest(KORVAPortTypeBinding& call) {
    KORVAAsynchRun_Request& request = emptyRun(call);
    const Registry registry = request.getObjectRegistry();
    auto* const region = registry->make<KORVAParameterValue>();
    region->setName("region");
    request.getParameterValues()->push_back(region);
    auto* const option = registry->make<KORVARunOptionBoolean>();
    option->getName(registry)->setValue(Enum::eKORVAPrompt);
    request.getOptions()->push_back(option);
}

/// A null item stands in the arrays, too.
void fillNullItemsRequest(KORVAPortTypeBinding& call) {
    fillOmittedRequest(call);
    KORVAAsynchRun_Request& request = runRequest(call);
    request.getOptions()->push_back(nullptr);
    request.getParameterValues()->push_back(nullptr);
}

void fillSharedRequest(KORVAPortTypeBinding& call) {
    KORVAAsynchRun_Request& request = emptyRun(call);
    KORVARunOptionBoolean* const option = makePrompt(request.getObjectRegistry(), true);
    request.getOptions()->push_back(option);
    request.getOptions()->push_back(option);
}

void fillTriggerRequest(KORVAPortTypeBinding& call) {
    dynamic_cast<KORVAEventTrigger_Request&>(call.getInputMessage()).setTriggerName("nightly");
}

KORVAAsynchRun_Reply& runReply(KORVAPortTypeBinding& call) {
    return dynamic_cast<KORVAAsynchRun_Reply&>(call.getOutputMessage());
}

KORVAAsynchReply& emptyReply(KORVAPortTypeBinding& call) {
    const Registry registry = runReply(call).getObjectRegistry();
    KORVAAsynchReply& result = *runReply(call).getResult(registry);
    result.getStatus(registry)->setValue("complete");
    return result;
}

KORVAAsynchDetailReportStatus* makeStatus(Registry registry) {
    auto* const status = registry->make<KORVAAsynchDetailReportStatus>();
    status->getStatus(registry)->setValue("responseReady");
    return status;
}

void fillTreeReply(KORVAPortTypeBinding& call) {
    KORVAAsynchReply& result = emptyReply(call);
    const Registry registry = runReply(call).getObjectRegistry();
    runReply(call).getHalyardHeader(registry)->getTracking(registry)->setHopCount(3);
    result.getDetails().push_back(makeStatus(registry));

    auto* const output = registry->make<KORVAOutput>();
    output->getDataType(registry)->setValue("text/html");
    auto* const page = registry->make<KORVAPage>();
    page->getDataType(registry)->setValue("text/plain");
    auto* const pages = registry->make<KORVAAsynchDetailReportOutput>();
    pages->getOutputObjects().push_back(output);
    pages->getOutputObjects().push_back(page);
    pages->getOutputPages().push_back("<p>1</p>");
    pages->getOutputPages().push_back(anyText);
    result.getDetails().push_back(pages);

    auto* const attached = registry->make<KORVAAsynchDetailMIMEAttachment>();
    attached->setData(makeBinary(registry, someBytes));
    attached->setDataSize(7);
    result.getDetails().push_back(attached);

    KORVAAsynchRequest& primary = *result.getPrimaryRequest(registry);
    primary.getObjectPath(registry)->setValue("/content/report");
    primary.getOptions().push_back(makePrompt(registry, true));
}

void fillNullItemsReply(KORVAPortTypeBinding& call) {
    KORVAAsynchReply& result = emptyReply(call);
    const Registry registry = runReply(call).getObjectRegistry();
    result.getDetails().push_back(nullptr);
    auto* const pages = registry->make<KORVAAsynchDetailReportOutput>();
    for (const char* const page : {"one", static_cast<const char*>(nullptr), "three"})
        pages->getOutputPages().push_back(page);
    result.getDetails().push_back(pages);
    result.getDetails().push_back(registry->make<KORVAAsynchDetailReportStatus>());
}

void fillSharedReply(KORVAPortTypeBinding& call) {
    KORVAAsynchReply& result = emptyReply(call);
    KORVAAsynchDetailReportStatus* const status = makeStatus(runReply(call).getObjectRegistry());
    result.getDetails().push_back(status);
    result.getDetails().push_back(status);
}

/// Its binary refers to a part of the message.
void fillAttachmentReply(KORVAPortTypeBinding& call) {
    KORVAAsynchReply& result = emptyReply(call);
    const Registry registry = runReply(call).getObjectRegistry();
    auto* const attached = registry->make<KORVAAsynchDetailMIMEAttachment>();
    attached->setData(makeBinary(registry, "picture"));
    attached->getData()->setIsContentId(true);
    attached->setDataSize(7);
    result.getDetails().push_back(attached);
}

void fillTriggerReply(KORVAPortTypeBinding& call) {
    dynamic_cast<KORVAEventTrigger_Reply&>(call.getOutputMessage()).setResult(42);
}

void fillEmptyRequest(KORVAPortTypeBinding& call) {
    emptyRun(call);
}

void fillEmptyReply(KORVAPortTypeBinding& call) {
    emptyReply(call);
}

void fillEmptyTextReply(KORVAPortTypeBinding& call) {
    KORVAAsynchReply& result = emptyReply(call);
    auto* const pages = runReply(call).getObjectRegistry()->make<KORVAAsynchDetailReportOutput>();
    pages->getOutputPages().push_back("");
    pages->getOutputPages().push_back("two");
    result.getDetails().push_back(pages);
}

void leaveNull(KORVAPortTypeBinding&) {}

/// What all requests tell that hold nothing but a path.
const char* const emptyRunText =
    "objectPath: \"/content/report\"\n"
    "parameterValues: array of 0\n"
    "options: array of 0\n";

/// What all replies tell that hold nothing but a status.
const char* const emptyReplyText =
    "result: asynchReply\n"
    "  status: \"complete\"\n";

/// anyText as it is told.
const std::string shownText =
    "a<b> & \\\"c\\\" 'd' ]]> \u00e9 \u00df \u6f22\u5b57 \U0001F600\\ttab";

/// One side of a case: what it fills in, and how that is told.
struct Side {
    void (*fill)(KORVAPortTypeBinding&);
    std::string text;
};

struct Case {
    Side request;
    Side reply;
};

const std::map<std::string, Case>& cases() {
    static const auto& rows = *new std::map<std::string, Case>{
        {"tree",
         {{fillTreeRequest,
           "header: halyardHeader\n"
           "  Warden: Warden\n"
           "    authenticityToken: hex 0001feff616263\n"
           "    WardenPassport: WardenPassport\n"
           "      id: \"MTsx\"\n"
           "      isAnonymous: false\n"
           "    roles: array of 2\n"
           "      [1]: \"Authors\"\n"
           "      [2]: \"R&D\"\n"
           "  tracking: tracking\n"
           "    hopCount: 2\n"
           "objectPath: \"/content/report\"\n"
           "parameterValues: array of 1\n"
           "  [1]: parameterValue\n"
           "    name: \"region\"\n"
           "    value: array of 2\n"
           "      [1]: simpleParmValueItem\n"
           "        inclusive: true\n"
           "        display: \"Europe\"\n"
           "        use: \"EMEA\"\n"
           "      [2]: boundRangeParmValueItem\n"
           "        end: simpleParmValueItem\n"
           "          inclusive: true\n"
           "          display: \"nine\"\n"
           "          use: \"9\"\n"
           "        start: simpleParmValueItem\n"
           "          inclusive: true\n"
           "          display: \"one\"\n"
           "          use: \"1\"\n"
           "options: array of 3\n"
           "  [1]: runOptionBoolean\n"
           "    name: \"prompt\"\n"
           "    value: false\n"
           "  [2]: runOptionStringArray\n"
           "    name: \"outputFormat\"\n"
           "    value: array of 2\n"
           "      [1]: \"PDF\"\n"
           "      [2]: \"HTML\"\n"
           "  [3]: runOptionInt\n"
           "    name: \"verticalElements\"\n"
           "    value: -5\n"},
          {fillTreeReply,
           "header: halyardHeader\n"
           "  tracking: tracking\n"
           "    hopCount: 3\n"
           "result: asynchReply\n"
           "  details: array of 3\n"
           "    [1]: asynchDetailReportStatus\n"
           "      status: \"responseReady\"\n"
           "    [2]: asynchDetailReportOutput\n"
           "      outputObjects: array of 2\n"
           "        [1]: output\n"
           "          dataType: stringProp\n"
           "            value: \"text/html\"\n"
           "        [2]: page\n"
           "          dataType: stringProp\n"
           "            value: \"text/plain\"\n"
           "      outputPages: array of 2\n"
           "        [1]: \"<p>1</p>\"\n"
           "        [2]: \"" +
               shownText +
               "\"\n"
               "    [3]: asynchDetailMIMEAttachment\n"
               "      data: hex 0001feff616263\n"
               "      dataSize: 7\n"
               "  primaryRequest: asynchRequest\n"
               "    objectPath: \"/content/report\"\n"
               "    options: array of 1\n"
               "      [1]: runOptionBoolean\n"
               "        name: \"prompt\"\n"
               "        value: true\n"
               "  status: \"complete\"\n"}}},
        {"texts",
         {{fillTextsRequest, "objectPath: \"" + shownText +
                                 "\"\n"
                                 "parameterValues: array of 0\n"
                                 "options: array of 1\n"
                                 "  [1]: runOptionString\n"
                                 "    name: \"burstKeyLimit\"\n"
                                 "    value: \"  two\\nlines  \"\n"},
          {fillEmptyReply, emptyReplyText}}},
        {"empty-text",
         {{fillEmptyTextRequest,
           "objectPath: \"\"\n"
           "parameterValues: array of 0\n"
           "options: array of 1\n"
           "  [1]: runOptionString\n"
           "    name: \"burstKeyLimit\"\n"
           "    value: \"\"\n"},
          {fillEmptyTextReply,
           "result: asynchReply\n"
           "  details: array of 1\n"
           "    [1]: asynchDetailReportOutput\n"
           "      outputPages: array of 2\n"
           "        [1]: \"\"\n"
           "        [2]: \"two\"\n"
           "  status: \"complete\"\n"}}},
        {"nulls",
         {{leaveNull, "objectPath: null\nparameterValues: null\noptions: null\n"},
          {leaveNull, "result: null\n"}}},
        {"empty", {{fillEmptyRequest, emptyRunText}, {fillEmptyReply, emptyReplyText}}},
        {"null-items",
         {{fillNullItemsRequest,
           "objectPath: \"/content/report\"\n"
           "parameterValues: array of 1\n"
           "  [1]: parameterValue\n"
           "    name: \"region\"\n"
           "options: array of 1\n"
           "  [1]: runOptionBoolean\n"
           "    name: \"prompt\"\n"},
          {fillNullItemsReply,
           "result: asynchReply\n"
           "  details: array of 2\n"
           "    [1]: asynchDetailReportOutput\n"
           "      outputPages: array of 2\n"
           "        [1]: \"one\"\n"
           "        [2]: \"three\"\n"
           "    [2]: asynchDetailReportStatus\n"
           "  status: \"complete\"\n"}}},
        {"omitted",
         {{fillOmittedRequest,
           "objectPath: \"/content/report\"\n"
           "parameterValues: array of 1\n"
           "  [1]: parameterValue\n"
           "    name: \"region\"\n"
           "options: array of 1\n"
           "  [1]: runOptionBoolean\n"
           "    name: \"prompt\"\n"},
          {[](KORVAPortTypeBinding& call) {
               runReply(call).getResult(runReply(call).getObjectRegistry());
           },
           "result: asynchReply\n"}}},
        {"shared",
         {{fillSharedRequest,
           "objectPath: \"/content/report\"\n"
           "parameterValues: array of 0\n"
           "options: array of 2\n"
           "  [1]: runOptionBoolean\n"
           "    name: \"prompt\"\n"
           "    value: true\n"
           "  [2]: runOptionBoolean\n"
           "    name: \"prompt\"\n"
           "    value: true\n"},
          {fillSharedReply,
           "result: asynchReply\n"
           "  details: array of 2\n"
           "    [1]: asynchDetailReportStatus\n"
           "      status: \"responseReady\"\n"
           "    [2]: asynchDetailReportStatus\n"
           "      status: \"responseReady\"\n"
           "  status: \"complete\"\n"}}},
        {"trigger",
         {{fillTriggerRequest, "triggerName: \"nightly\"\n"}, {fillTriggerReply, "result: 42\n"}}},
        {"attachment",
         {{fillEmptyRequest, emptyRunText},
          {fillAttachmentReply,
           "result: asynchReply\n"
           "  details: array of 1\n"
           "    [1]: asynchDetailMIMEAttachment\n"
           "      data: hex 0001feff616263\n"
           "      dataSize: 7\n"
           "  status: \"complete\"\n"}}},
        // These are answered with a fault.
        {"refused", {{fillEmptyRequest, emptyRunText}, {leaveNull, ""}}},
        {"fault", {{fillEmptyRequest, emptyRunText}, {leaveNull, ""}}},
    };
    return rows;
}

}  // namespace

Call makeCall(const std::string& name) {
    const Case& row = cases().at(name);
    Call call = KORVAEventManagementServicePortType::getInstance().createPortTypeBinding(
        name == "trigger" ? KORVAMessageI::eKORVAEventTrigger_Request
                          : KORVAMessageI::eKORVAAsynchRun_Request);
    row.request.fill(*call);
    return call;
}

std::string requestOf(const std::string& name) {
    return cases().at(name).request.text;
}

void fillReply(const std::string& name, KORVAPortTypeBinding& call) {
    cases().at(name).reply.fill(call);
}

std::string replyOf(const std::string& name) {
    return cases().at(name).reply.text;
}

}  // namespace korva::test
