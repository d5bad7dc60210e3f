// Reading envelopes, against Xerces-C's SAX2 parse of the same bytes with a handler that does
// nothing.
#include "bench/Corpus.h"
#include "bench/Ratios.h"

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVASOAPMessageIDeserializer.h>

#include <benchmark/benchmark.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <memory>
#include <string>
#include <vector>

namespace {

constexpr std::size_t megabyte = 1000 * 1000;

/// An envelope with the binding that its reader needs, made once and kept.
struct Input {
    Call call;
    std::string bytes;
};

const Input& contentReply(std::size_t megabytes) {
    static std::vector<std::pair<std::size_t, std::unique_ptr<Input>>> made;
    for (const auto& [size, input] : made)
        if (size == megabytes) return *input;
    auto input = std::make_unique<Input>();
    input->call = makeContentReply(megabytes * megabyte);
    input->bytes = outputEnvelope(*input->call);
    made.emplace_back(megabytes, std::move(input));
    return *made.back().second;
}

const Input& runRequest() {
    static const Input& input = *[] {
        auto* const made = new Input;
        made->call = makeRunRequest();
        made->bytes = inputEnvelope(*made->call);
        return made;
    }();
    return input;
}

const Input& textRequest() {
    static const Input& input = *[] {
        auto* const made = new Input;
        made->call = makeTextRequest(20 * megabyte);
        made->bytes = inputEnvelope(*made->call);
        return made;
    }();
    return input;
}

const Input& binaryReply() {
    static const Input& input = *[] {
        auto* const made = new Input;
        made->call = makeBinaryReply(20 * megabyte);
        made->bytes = outputEnvelope(*made->call);
        return made;
    }();
    return input;
}

void setBytes(benchmark::State& state, const std::string& bytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes.size()) * state.iterations());
}

void readReply(benchmark::State& state, const Input& input) {
    KORVASOAPMessageIDeserializer deserializer;
    for (auto _ : state) {
        // A message of its own for each turn, so that its registry's sweep counts too.
        const Call call = input.call->getBoundPortType().createPortTypeBinding(
            input.call->getInputMessage().getMessageType());
        BRIMMemoryInputStream stream(input.bytes.data(), input.bytes.size());
        deserializer.parse(stream, *call, &call->getOutputMessage());
    }
    setBytes(state, input.bytes);
}

void readRequest(benchmark::State& state, const Input& input, bool keepReader) {
    const std::vector<KORVAPortTypeI*> offered = {&KORVAReportServicePortType::getInstance()};
    KORVASOAPMessageIDeserializer kept;
    for (auto _ : state) {
        BRIMMemoryInputStream stream(input.bytes.data(), input.bytes.size());
        Call call;
        if (keepReader) {
            kept.parse(stream, offered, call);
        } else {
            KORVASOAPMessageIDeserializer deserializer;
            deserializer.parse(stream, offered, call);
        }
        benchmark::DoNotOptimize(call.get());
    }
    setBytes(state, input.bytes);
}

std::unique_ptr<xercesc::SAX2XMLReader> makeXercesReader(xercesc::DefaultHandler& handler) {
    using xercesc::XMLUni;
    std::unique_ptr<xercesc::SAX2XMLReader> reader(
        xercesc::XMLReaderFactory::createXMLReader(xercesc::XMLPlatformUtils::fgMemoryManager));
    reader->setContentHandler(&handler);
    reader->setErrorHandler(&handler);
    reader->setFeature(XMLUni::fgXercesSchema, false);
    reader->setFeature(XMLUni::fgSAX2CoreValidation, false);
    reader->setFeature(XMLUni::fgSAX2CoreNameSpaces, true);
    reader->setFeature(XMLUni::fgSAX2CoreNameSpacePrefixes, true);
    return reader;
}

void parseOnly(benchmark::State& state, const Input& input, bool keepReader) {
    xercesc::DefaultHandler handler;
    std::unique_ptr<xercesc::SAX2XMLReader> reader;
    for (auto _ : state) {
        if (!keepReader || reader == nullptr) reader = makeXercesReader(handler);
        const xercesc::MemBufInputSource source(
            reinterpret_cast<const XMLByte*>(input.bytes.data()), input.bytes.size(), "bench");
        reader->parse(source);
    }
    setBytes(state, input.bytes);
}

void registerAll() {
    using benchmark::RegisterBenchmark;
    for (const std::size_t megabytes : {1, 10, 100}) {
        const std::string size = std::to_string(megabytes) + "MB";
        RegisterBenchmark(("read_reply/" + size).c_str(), [megabytes](benchmark::State& state) {
            readReply(state, contentReply(megabytes));
        })->Unit(benchmark::kMillisecond);
        RegisterBenchmark(("xerces_reply/" + size).c_str(), [megabytes](benchmark::State& state) {
            parseOnly(state, contentReply(megabytes), true);
        })->Unit(benchmark::kMillisecond);
        addRatio({"read a reply of " + size + ", reader kept", "read_reply/" + size,
                  "xerces_reply/" + size, megabytes == 10 ? 1.5 : 0, 1.2});
    }
    addRatio({"time per element, 100 MB against 1 MB", "read_reply/100MB", "read_reply/1MB", 1.3,
              1.15, 0.01});

    for (const bool keep : {false, true}) {
        const std::string reader = keep ? "kept" : "new";
        RegisterBenchmark(("read_request/" + reader).c_str(), [keep](benchmark::State& state) {
            readRequest(state, runRequest(), keep);
        })->Unit(benchmark::kMicrosecond);
        RegisterBenchmark(("xerces_request/" + reader).c_str(), [keep](benchmark::State& state) {
            parseOnly(state, runRequest(), keep);
        })->Unit(benchmark::kMicrosecond);
    }
    addRatio({"read a small request, all set-up, new readers", "read_request/new",
              "xerces_request/new", 1.3, 0.9});
    addRatio(
        {"read a small request, readers kept", "read_request/kept", "xerces_request/kept", 0, 0});

    RegisterBenchmark("read_text/20MB", [](benchmark::State& state) {
        readRequest(state, textRequest(), true);
    })->Unit(benchmark::kMillisecond);
    RegisterBenchmark("xerces_text/20MB", [](benchmark::State& state) {
        parseOnly(state, textRequest(), true);
    })->Unit(benchmark::kMillisecond);
    addRatio({"read a text of 20 MB", "read_text/20MB", "xerces_text/20MB", 1.6, 1.3});

    RegisterBenchmark("read_binary/20MB", [](benchmark::State& state) {
        readReply(state, binaryReply());
    })->Unit(benchmark::kMillisecond);
    RegisterBenchmark("xerces_binary/20MB", [](benchmark::State& state) {
        parseOnly(state, binaryReply(), true);
    })->Unit(benchmark::kMillisecond);
    addRatio({"read a binary value of 20 MB", "read_binary/20MB", "xerces_binary/20MB", 0, 0});
}

}  // namespace

int main(int argc, char** argv) {
    xercesc::XMLPlatformUtils::Initialize();
    registerAll();
    return runBenchmarks(argc, argv);
}
