// Calls the service whose address is the argument, step by step, and says what went over the wire.
// What is not as it must be ends it with an error.
#include "examples/TypedTree.h"
#include "examples/live_call/Caller.h"
#include "examples/live_call/HostileRequests.h"
#include "examples/live_call/PeakMemory.h"
#include "examples/live_call/ReportOutput.h"
#include "examples/live_call/Requests.h"

#include <brim/BRIMCopy.h>
#include <brim/BRIMInputStream.h>
#include <brim/BRIMOutputStream.h>
#include <korva/KORVAAsynchDetailArray.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVAAsynchRunSpecification_Reply.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVABase64BinaryMIMEProp.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVANmtokenProp.h>
#include <korva/KORVAOutput.h>
#include <korva/KORVAReportGetOutput_Reply.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_Streamable.h>
#include <zel/ZELThrowable.h>
#include <zel/ZELUtCrc32.h>

#include <xercesc/util/PlatformUtils.hpp>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <curl/curl.h>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

using namespace live_call;

namespace {

constexpr const char* storedReport = "/content/folder[@name='Sales']/report[@name='Q4']";
constexpr const char* missingReport = "/content/folder[@name='Sales']/report[@name='Q5']";

#ifdef LIVE_CALL_SANITIZED
constexpr bool memoryIsBounded = false;  // a sanitizer keeps what was freed
#else
constexpr bool memoryIsBounded = true;
#endif
// In KB: far less than the output, and enough if others call the same server.
constexpr std::size_t memoryBound = 65'536;

void step(const char* title) {
    static int number = 0;
    std::cout << '\n' << ++number << ". " << title << '\n';
}

/// A text that the other end may have left out.
const char* shown(const char* text) {
    return text != nullptr ? text : "(none)";
}

void require(bool condition, const std::string& what) {
    if (!condition) throw std::runtime_error("It should be that " + what + '.');
}

/// Keeps the size and the CRC of what is written to it.
class Checksum final : public BRIMOutputStream {
public:
    void write(const char* bytes, std::size_t length) override {
        m_crc = ZELUtCrc32::crc32(bytes, length, m_crc);
        m_size += length;
    }

    bool operator==(const Checksum& other) const {
        return m_crc == other.m_crc && m_size == other.m_size;
    }

    unsigned long long size() const { return m_size; }

    std::string text() const {
        char text[64];
        std::snprintf(text, sizeof text, "%llu bytes with the CRC-32 %08X", m_size, m_crc);
        return text;
    }

private:
    unsigned m_crc = 0;
    unsigned long long m_size = 0;
};

/// Runs the stored report and gives the reply, which belongs to the call.
KORVAAsynchReply& runStoredReport(const Caller& caller, KORVAPortTypeBinding& call) {
    caller.call(call);
    auto* const reply = static_cast<KORVAAsynchRun_Reply&>(call.getOutputMessage()).getResult();
    require(reply != nullptr && reply->getPrimaryRequest() != nullptr, "a conversation is open");
    return *reply;
}

void runSpecification(const Caller& caller) {
    const Binding call = makeRunSpecification();
    caller.call(*call);
    auto& message = static_cast<KORVAAsynchRunSpecification_Reply&>(call->getOutputMessage());
    require(message.getResult() != nullptr, "there is a result");
    printTree(std::cout, message);
}

/// Fetches an output and compares what came with what `expected` gives. The result is how many
/// bytes came over the wire for each hundred of the content.
unsigned long long fetchOutput(const Caller& caller, KORVAAsynchRequest& conversation,
                               const char* format, BRIMInputStream& expected) {
    const Binding call = makeGetOutput(conversation, format);
    const unsigned long long transferred = caller.call(*call);
    auto* const reply =
        static_cast<KORVAReportGetOutput_Reply&>(call->getOutputMessage()).getResult();
    require(reply != nullptr && !reply->getDetails().empty(), "there is a result");
    auto& detail = dynamic_cast<KORVAAsynchDetailReportOutput&>(*reply->getDetails().at(0));
    auto& output = dynamic_cast<KORVAOutput&>(*detail.getOutputObjects().at(0));
    require(output.getFormat() != nullptr && output.getDataType() != nullptr,
            "the output is described");
    require(output.getData() != nullptr && output.getData()->getValue() != nullptr &&
                output.getData()->getValue()->streamable() != nullptr,
            "the output can be streamed");

    Checksum received;
    *output.getData()->getValue()->streamable() >> received;
    std::cout << "  output    " << shown(output.getFormat()->getValue()) << " ("
              << shown(output.getDataType()->getValue()) << "), " << received.text();
    Checksum sent;
    brim::copy(expected, sent);
    require(received == sent, "the output is what was sent");
    std::cout << ", as expected\n            from " << transferred << " bytes over the wire\n";
    return transferred * 100 / received.size();
}

/// Shows the highest memory of one end, in KB, before and after something large went through it.
void requireBoundedMemory(const char* end, std::size_t before, std::size_t after) {
    std::cout << "  memory    " << end << " " << after << " KB at most, " << after - before
              << " KB more than before\n";
    if (memoryIsBounded)
        require(after - before < memoryBound,
                std::string("the ") + end + " does not hold in memory what goes through it");
}

void fetchDocument(const Caller& caller, KORVAAsynchRequest& conversation) {
    const std::size_t clientBefore = peakMemory();
    const std::size_t serverBefore = caller.peakMemoryOfServer();
    DocumentOutput expected(documentSize);
    fetchOutput(caller, conversation, "PDF", expected);
    requireBoundedMemory("client", clientBefore, peakMemory());
    requireBoundedMemory("server", serverBefore, caller.peakMemoryOfServer());
}

/// Expects that `send` ends in a fault, shows it and gives its messages.
template <class Send>
std::string expectFault(Send send) {
    try {
        send();
    } catch (const KORVASOAPFaultException& failure) {
        std::string messages;
        failure.getSOAPFaultMessages(messages);
        std::cout << "  raises    " << shown(failure.getSOAPFault().getFaultCode()) << ": "
                  << shown(failure.getSOAPFault().getFaultString()) << "\n            " << messages
                  << '\n';
        require(!messages.empty(), "a fault says what happened");
        return messages;
    }
    throw std::runtime_error("It should have been refused.");
}

std::string firstLineOf(const char* file) {
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    return line;
}

void attack(const Caller& caller) {
    const std::string marker = "a path";
    const Binding call = makeRun(marker.c_str());
    const std::string secret = firstLineOf(foreignFile);
    const std::size_t memoryBefore = caller.peakMemoryOfServer();
    for (const HostileRequest& request : hostileRequests(envelopeOf(*call), marker)) {
        const auto start = std::chrono::steady_clock::now();
        const std::string messages =
            expectFault([&] { caller.send(request.title, request.envelope, *call); });
        require(std::chrono::steady_clock::now() - start < std::chrono::seconds(10),
                "the refusal takes no time");
        require(secret.empty() || messages.find(secret) == std::string::npos,
                "no file is read for a caller");
    }
    requireBoundedMemory("server", memoryBefore, caller.peakMemoryOfServer());
}

void play(const Caller& caller) {
    step("Run a stored report");
    const Binding first = makeRun(storedReport);
    KORVAAsynchReply& reply = runStoredReport(caller, *first);
    printTree(std::cout, first->getOutputMessage());

    step("Run a report from its specification");
    runSpecification(caller);

    step("Fetch a large output as an attachment");
    fetchDocument(caller, *reply.getPrimaryRequest());

    step("Fetch an output that travels compressed");
    TableOutput table(tableRows);
    const unsigned long long percent =
        fetchOutput(caller, *reply.getPrimaryRequest(), "CSV", table);
    require(percent < 50, "the part is compressed");

    step("Ask for what is not there");
    const Binding missing = makeRun(missingReport);
    expectFault([&] { caller.call(*missing); });
    const Binding unknown = makeGetOutput(*reply.getPrimaryRequest(), "ODT");
    expectFault([&] { caller.call(*unknown); });

    step("Send what nobody should send");
    attack(caller);

    step("Run the stored report again");
    const Binding last = makeRun(storedReport);
    KORVAAsynchReply& again = runStoredReport(caller, *last);
    require(again.getStatus() != nullptr, "the service still works");
    std::cout << "  status    " << again.getStatus()->toString() << '\n';
}

int failed(const char* text) {
    std::cout.flush();
    std::cerr << text << '\n';
    return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return failed("usage: live_call_client <address that the server prints>");
    xercesc::XMLPlatformUtils::Initialize();
    curl_global_init(CURL_GLOBAL_DEFAULT);
    int result = EXIT_SUCCESS;
    try {
        play(Caller(argv[1]));
    } catch (const ZELThrowable& error) {
        result = failed(error.toString());
    } catch (const std::exception& error) {
        result = failed(error.what());
    }
    curl_global_cleanup();
    xercesc::XMLPlatformUtils::Terminate();
    return result;
}
