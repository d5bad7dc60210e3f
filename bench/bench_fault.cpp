// A fault written, read and caught, against an ordinary reply of about its size that is written and
// read.
#include "bench/Corpus.h"
#include "bench/Ratios.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchRequest.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAFaultDetailMessage.h>
#include <korva/KORVAFaultDetailMessageArray.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPFaultSerializer.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASeverityEnum.h>

#include <benchmark/benchmark.h>
#include <xercesc/util/PlatformUtils.hpp>

#include <cstdint>
#include <stdexcept>

namespace {

Call makeCall() {
    return KORVAReportServicePortType::getInstance().createPortTypeBinding(
        KORVAMessageI::eKORVAAsynchRun_Request);
}

/// One detail with three messages, as a service that fails in the depth tells them.
KORVASOAPFault& makeFault(KORVAObjectRegistryI& registry) {
    auto& fault = *registry.make<KORVASOAPFault>();
    fault.setFaultCode("SOAP-ENV:Server");
    fault.setFaultString("The report can't be run.");
    auto& details = *registry.make<KORVAFaultDetailArray>();
    fault.setDetail(&details);
    auto& detail = *registry.make<KORVAFaultDetail>();
    details.push_back(&detail);
    detail.setErrorCode("RPT-0042");
    detail.getSeverity(&registry)->setValue(KORVASeverityEnum::eKORVAError);
    int level = 0;
    for (const char* const text : {"The report can't be run.", "The data source can't be reached.",
                                   "The connection to the host was refused."}) {
        auto& message = *registry.make<KORVAFaultDetailMessage>();
        message.setMessage(text);
        message.setNestingLevel(level++);
        detail.getMessage().push_back(&message);
    }
    return fault;
}

void setBytes(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
    state.counters["bytes"] = static_cast<double>(bytes);
}

void reply(benchmark::State& state) {
    const Call sent = makeCall();
    auto& message = static_cast<KORVAAsynchRun_Reply&>(sent->getOutputMessage());
    KORVAObjectRegistryI* const registry = message.getObjectRegistry();
    KORVAAsynchReply& result = *message.getResult(registry);
    result.getStatus(registry)->setValue(KORVAAsynchReplyStatusEnum::eKORVAWorking);
    KORVAAsynchRequest& primary = *result.getPrimaryRequest(registry);
    primary.setName("run");
    primary.getObjectPath(registry)->setValue("/content/package[@name='Sales']/report[@name='Q4']");

    KORVASOAPMessageIDeserializer deserializer;
    std::size_t bytes = 0;
    for (auto _ : state) {
        BRIMMemoryOutputStream out;
        KORVASOAPMessageISerializer().serialize(*sent, message, out);
        bytes = out.pcount();
        BRIMMemoryInputStream in(out.str(), out.pcount());
        const Call received = makeCall();
        deserializer.parse(in, *received, &received->getOutputMessage());
        benchmark::DoNotOptimize(received.get());
    }
    setBytes(state, bytes);
}

void roundTrip(benchmark::State& state, bool documented) {
    const Call sent = makeCall();
    KORVAObjectRegistryI& registry = *sent->getOutputMessage().getObjectRegistry();
    KORVASOAPFault& fault = makeFault(registry);
    if (!documented) fault.convertFaultDetail(registry);

    KORVASOAPMessageIDeserializer deserializer;
    std::size_t bytes = 0;
    for (auto _ : state) {
        BRIMMemoryOutputStream out;
        KORVASOAPFaultSerializer().serialize(nullptr, fault, out, true, true);
        bytes = out.pcount();
        BRIMMemoryInputStream in(out.str(), out.pcount());
        const Call received = makeCall();
        try {
            deserializer.parse(in, *received, &received->getOutputMessage());
            throw std::logic_error("the fault was not raised");
        } catch (const KORVASOAPFaultException& caught) {
            benchmark::DoNotOptimize(&caught.getSOAPFault());
        }
    }
    setBytes(state, bytes);
}

}  // namespace

int main(int argc, char** argv) {
    xercesc::XMLPlatformUtils::Initialize();
    benchmark::RegisterBenchmark("fault/reply", reply)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("fault/documented", roundTrip, true)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("fault/undocumented", roundTrip, false)
        ->Unit(benchmark::kMicrosecond);
    addRatio(
        {"documented fault, against a small reply", "fault/documented", "fault/reply", 2, 1.5});
    addRatio(
        {"undocumented fault, against a small reply", "fault/undocumented", "fault/reply", 2, 1.5});
    return runBenchmarks(argc, argv);
}
