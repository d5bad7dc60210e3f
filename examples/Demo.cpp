// Plays both ends of one call over two pipes: a client sends a run request, a server reads it and
// replies, and each prints what went over the wire and what it understood. With arguments, prints
// the envelope in each of these files as a typed tree instead.
#include "examples/TypedTree.h"

#include <brim/BRIMCopy.h>
#include <brim/BRIMDescriptorInputStream.h>
#include <brim/BRIMDescriptorOutputStream.h>
#include <brim/BRIMFileInputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAAsynchDetailArray.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAAsynchDetailReportStatus.h>
#include <korva/KORVAAsynchDetailReportStatusEnum.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAOutput.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATokenProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXmlEncodedXML.h>
#include <korva/KORVA_EnvelopeReader.h>
#include <korva/KORVA_XmlPlatform.h>
#include <zel/ZELThrowable.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Binding = ZELSmartPointer<KORVAPortTypeBinding>;

std::string envelopeOf(KORVAPortTypeBinding& call, KORVAMessageI& message) {
    BRIMMemoryOutputStream bytes;
    KORVASOAPMessageISerializer().serialize(call, message, bytes);
    return {bytes.str(), bytes.pcount()};
}

void show(const char* title) {
    std::cout << "\n--- " << title << '\n';
}

Binding makeRequest() {
    const ZELSmartPointer<KORVAAsynchRun_Request> request(new KORVAAsynchRun_Request);
    KORVAObjectRegistryI* const registry = request->getObjectRegistry();

    KORVAHalyardHeader* const header = request->getHalyardHeader(registry);
    KORVAWardenPassport* const passport = header->getWarden(registry)->getWardenPassport(registry);
    passport->setId("MTsxMDE6NjQ2");
    passport->setIsAnonymous(false);
    header->getTracking(registry)->setHopCount(1);
    header->getTracking(registry)->setRequestContext("q4-0001");

    request->getObjectPath(registry)->setValue("/content/folder[@name='Sales']/report[@name='Q4']");

    auto* const item = registry->make<KORVASimpleParmValueItem>();
    item->setUse("EMEA");
    item->setDisplay("Europe & more");
    item->setInclusive(true);
    auto* const region = registry->make<KORVAParameterValue>();
    region->setName("region");
    region->getValue().push_back(item);
    request->getParameterValues(registry)->push_back(region);

    auto* const prompt = registry->make<KORVARunOptionBoolean>();
    prompt->getName(registry)->setValue(KORVARunOptionEnum::eKORVAPrompt);
    prompt->setValue(false);
    request->getOptions(registry)->push_back(prompt);

    return KORVAReportServicePortType::getInstance().createPortTypeBinding(request.get());
}

void fillReply(KORVAPortTypeBinding& call) {
    auto& reply = static_cast<KORVAAsynchRun_Reply&>(call.getOutputMessage());
    KORVAObjectRegistryI* const registry = reply.getObjectRegistry();
    KORVAAsynchReply* const result = reply.getResult(registry);
    result->getStatus(registry)->setValue(KORVAAsynchReplyStatusEnum::eKORVAConversationComplete);
    result->getPrimaryRequest(registry)->setName("run");
    result->getPrimaryRequest(registry)->getStateData(registry)->setValue("<state step=\"2\"/>");

    auto* const status = registry->make<KORVAAsynchDetailReportStatus>();
    status->getStatus(registry)->setValue("responseReady");
    result->getDetails().push_back(status);

    auto* const output = registry->make<KORVAOutput>();
    output->getDefaultName(registry)->setValue("Q4.html");
    output->getDataType(registry)->setValue("text/html");
    auto* const detail = registry->make<KORVAAsynchDetailReportOutput>();
    detail->getOutputObjects().push_back(output);
    detail->getOutputPages().push_back("<p>Sales rose by 4 %.</p>");
    result->getDetails().push_back(detail);
}

/// The server's end: one request in, one reply out.
void serve(int requests, int replies) {
    BRIMDescriptorInputStream in(requests);
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    Binding call;
    KORVASOAPMessageIDeserializer().parse(in, offered, call);

    show("what the server understood");
    std::cout << "operation " << call->getOperationName() << " of "
              << call->getBoundPortType().getName() << '\n';
    printTree(std::cout, call->getInputMessage());

    fillReply(*call);
    BRIMDescriptorOutputStream out(replies);
    KORVASOAPMessageISerializer().serialize(*call, call->getOutputMessage(), out);
    std::cout.flush();
}

std::string readAll(int descriptor) {
    BRIMDescriptorInputStream in(descriptor);
    BRIMMemoryOutputStream bytes;
    brim::copy(in, bytes);
    return {bytes.str(), bytes.pcount()};
}

struct Pipe {
    Pipe() {
        int ends[2];
        if (pipe(ends) != 0) {
            std::perror("pipe");
            std::exit(EXIT_FAILURE);
        }
        in = ends[0];
        out = ends[1];
    }
    int in;
    int out;
};

int playCall() {
    const Pipe requests;
    const Pipe replies;
    const Binding call = makeRequest();

    const std::string request = envelopeOf(*call, call->getInputMessage());
    show("the request, as it goes over the wire");
    std::cout << "SOAPAction: " << call->getSOAPAction() << "\n\n" << request;
    std::cout.flush();

    const pid_t server = fork();
    if (server < 0) {
        std::perror("fork");
        return EXIT_FAILURE;
    }
    if (server == 0) {
        close(requests.out);
        close(replies.in);
        serve(requests.in, replies.out);
        return EXIT_SUCCESS;
    }

    close(requests.in);
    close(replies.out);
    BRIMDescriptorOutputStream(requests.out).write(request.data(), request.size());
    close(requests.out);
    const std::string reply = readAll(replies.in);
    int status = 0;
    waitpid(server, &status, 0);
    if (status != 0) return EXIT_FAILURE;

    show("the reply, as it came back");
    std::cout << reply;

    BRIMMemoryInputStream in(reply.data(), reply.size());
    KORVASOAPMessageIDeserializer().parse(in, *call, &call->getOutputMessage());
    show("what the client understood");
    printTree(std::cout, call->getOutputMessage());

    const auto& typed = static_cast<const KORVAAsynchRun_Reply&>(call->getOutputMessage());
    KORVAAsynchReply* const result = typed.getResult();
    std::cout << "\nThe run is " << result->getStatus()->toString() << ", with "
              << result->getDetails().size() << " details.\n";
    return EXIT_SUCCESS;
}

/// Prints an envelope of any operation, whichever end of a call wrote it.
void printEnvelope(const char* path) {
    BRIMFileInputStream file(path);
    const KORVA_Envelope envelope = KORVA_EnvelopeReader().read(file);
    if (const KORVASOAPFault* const fault = envelope.getFault())
        std::cout << "fault: "
                  << (fault->getFaultString() != nullptr ? fault->getFaultString() : "") << '\n';
    else
        printTree(std::cout, *envelope.getMessage());
    for (const KORVA_SkippedElement& skipped : envelope.getSkipped())
        std::cout << "line " << skipped.line << ": " << skipped.path
                  << " is passed over: " << skipped.reason << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const KORVA_XmlPlatform platform;
        if (argc < 2) return playCall();
        for (int i = 1; i < argc; ++i) {
            std::cout << argv[i] << ": ";
            printEnvelope(argv[i]);
        }
        return EXIT_SUCCESS;
    } catch (const ZELThrowable& error) {
        std::cerr << error.toString() << '\n';
        return EXIT_FAILURE;
    }
}
