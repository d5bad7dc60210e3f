#include "Peer.h"

#include <arpa/inet.h>
#include <functional>
#include <iostream>
#include <map>
#include <netinet/in.h>
#include <poll.h>
#include <unistd.h>

namespace {

// What the service functions, which gSOAP calls by their names, know of.
std::string servedCase;
std::string understood;
Maker* maker = nullptr;

bus__asynchReply* reply(const std::vector<bus__asynchDetail*>& details) {
    auto* const made = maker->make<bus__asynchReply>();
    made->status = maker->value(bus__asynchReplyStatusEnum::complete);
    made->details = maker->array<asynchDetailArray>(details);
    return made;
}

bus__asynchDetailReportStatus* status() {
    auto* const made = maker->make<bus__asynchDetailReportStatus>();
    made->status = maker->value(bus__asynchDetailReportStatusEnum::responseReady);
    return made;
}

bus__asynchDetailReportOutput* pages(const std::vector<std::string>& texts) {
    auto* const made = maker->make<bus__asynchDetailReportOutput>();
    made->outputPages = maker->texts(texts);
    return made;
}

bus__stringProp* property(const char* text) {
    auto* const made = maker->make<bus__stringProp>();
    made->value = maker->text(text);
    return made;
}

bus__asynchReply* tree(soap* context) {
    auto* const output = maker->make<bus__output>();
    output->dataType = property("text/html");
    auto* const page = maker->make<bus__page>();
    page->dataType = property("text/plain");
    auto* const detail = pages({"<p>1</p>", anyText});
    detail->outputObjects =
        maker->array<baseClassArray>(std::vector<bus__baseClass*>{output, page});
    auto* const attached = maker->make<bus__asynchDetailMIMEAttachment>();
    attached->data = maker->bytes(someBytes);
    attached->dataSize = maker->text("7");
    bus__asynchReply* const made = reply({status(), detail, attached});
    made->primaryRequest = maker->make<bus__asynchRequest>();
    made->primaryRequest->objectPath = maker->text("/content/report");
    made->primaryRequest->options =
        maker->array<optionArray>(std::vector<bus__option*>{maker->prompt(maker->value(true))});

    context->header = maker->make<SOAP_ENV__Header>();
    context->header->bus__halyardHeader_ = maker->make<bus__halyardHeader>();
    context->header->bus__halyardHeader_->tracking = maker->make<bus__tracking>();
    context->header->bus__halyardHeader_->tracking->hopCount = maker->text("3");
    return made;
}

bus__asynchReply* share() {
    auto* const detail = status();
    return reply({detail, detail});
}

using Reply = std::function<bus__asynchReply*(soap*)>;

const std::map<std::string, Reply> cases{
    {"tree", tree},
    {"texts", [](soap*) { return reply({}); }},
    {"empty-text",
     [](soap*) {
         return reply({pages({"", "two"})});
     }},
    {"nulls", [](soap*) -> bus__asynchReply* { return nullptr; }},
    {"empty", [](soap*) { return reply({}); }},
    // No text of an array can be null here.
    {"null-items",
     [](soap*) {
         return reply(
             {nullptr, pages({"one", "three"}), maker->make<bus__asynchDetailReportStatus>()});
     }},
    {"omitted", [](soap*) { return maker->make<bus__asynchReply>(); }},
    {"shared", [](soap*) { return share(); }},
    {"shared-by-reference",
     [](soap* context) {
         soap_clr_omode(context, SOAP_XML_TREE);
         return share();
     }},
};

constexpr const char* faultDetail =
    "<bus:exception><bus:severity>error</bus:severity><bus:errorCode>RPT-1</bus:errorCode>"
    "<bus:message><bus:messageString>no room</bus:messageString><bus:nestingLevel>1"
    "</bus:nestingLevel></bus:message></bus:exception>";

int tell(soap* context) {
    context->http_content = "text/plain; charset=utf-8";
    soap_response(context, SOAP_FILE);
    soap_send_raw(context, understood.data(), understood.size());
    return soap_end_send(context);
}

}  // namespace

int ems__run(soap* context, std::string objectPath, parameterValueArray* parameterValues,
             optionArray* options, ems__runResponse& response) {
    Description description(context);
    description.header(context->header);
    description.parameter("objectPath", objectPath);
    description.parameter("parameterValues", parameterValues);
    description.parameter("options", options);
    understood = description.text();
    context->header = nullptr;
    if (servedCase == "fault") return soap_receiver_fault(context, "not today", faultDetail);
    response.bus__result_ = cases.at(servedCase)(context);
    return SOAP_OK;
}

int ems__trigger(soap* context, std::string triggerName, int& result) {
    Description description(context);
    description.parameter("triggerName", triggerName);
    understood = description.text();
    result = 42;
    return SOAP_OK;
}

int answerCalls(const std::string& caseName) {
    servedCase = caseName;
    soap context;
    soap_init2(&context, inputMode, outputMode);
    context.recv_timeout = context.send_timeout = 20;
    context.fget = tell;
    if (!soap_valid_socket(soap_bind(&context, "127.0.0.1", 0, 10))) {
        soap_print_fault(&context, stderr);
        return 1;
    }
    sockaddr_in address{};
    socklen_t size = sizeof address;
    getsockname(context.master, reinterpret_cast<sockaddr*>(&address), &size);
    std::cout << "http://127.0.0.1:" << ntohs(address.sin_port) << "/" << std::endl;

    pollfd waiting[2] = {{context.master, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    while (poll(waiting, 2, -1) > 0 && waiting[1].revents == 0) {
        if (!soap_valid_socket(soap_accept(&context))) continue;
        Maker values;
        maker = &values;
        soap_serve(&context);
        soap_destroy(&context);
        soap_end(&context);
    }
    soap_done(&context);
    return 0;
}
