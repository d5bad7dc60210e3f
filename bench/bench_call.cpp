// One small message end to end: filled, bound, written and read on the other end, with all set-up.
#include "bench/Corpus.h"
#include "bench/Ratios.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>

#include <benchmark/benchmark.h>
#include <xercesc/util/PlatformUtils.hpp>

#include <vector>

namespace {

void fill(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(makeRunRequest().get());
}

void endToEnd(benchmark::State& state) {
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    for (auto _ : state) {
        const Call sent = makeRunRequest();
        BRIMMemoryOutputStream out;
        KORVASOAPMessageISerializer().serialize(*sent, sent->getInputMessage(), out);
        BRIMMemoryInputStream in(out.str(), out.pcount());
        Call received;
        KORVASOAPMessageIDeserializer().parse(in, offered, received);
        benchmark::DoNotOptimize(received.get());
    }
}

}  // namespace

int main(int argc, char** argv) {
    xercesc::XMLPlatformUtils::Initialize();
    benchmark::RegisterBenchmark("call/fill", fill)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("call/end_to_end", endToEnd)->Unit(benchmark::kMicrosecond);
    addRatio(
        {"one small call end to end, against filling it", "call/end_to_end", "call/fill", 0, 0});
    return runBenchmarks(argc, argv);
}
