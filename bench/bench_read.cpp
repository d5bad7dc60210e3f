// Reading envelopes, against two parses of the same bytes with a handler that does nothing:
// Xerces-C's SAX2, with its default scanner, and libxml2's.
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

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlIO.h>
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

/// A handler that is called for what a reader needs, and does nothing.
xmlSAXHandler idleHandler() {
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = [](void*, const xmlChar*, const xmlChar*, const xmlChar*, int,
                                const xmlChar**, int, int, const xmlChar**) {};
    handler.endElementNs = [](void*, const xmlChar*, const xmlChar*, const xmlChar*) {};
    handler.characters = [](void*, const xmlChar*, int) {};
    handler.ignorableWhitespace = handler.characters;
    handler.cdataBlock = handler.characters;
    return handler;
}

struct ParserEnd {
    void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};

/// Parses bytes that are pulled from a stream, as the library's are.
void parseByLibxml(benchmark::State& state, const Input& input, bool keepReader) {
    xmlSAXHandler handler = idleHandler();
    std::unique_ptr<xmlParserCtxt, ParserEnd> kept;
    for (auto _ : state) {
        BRIMMemoryInputStream stream(input.bytes.data(), input.bytes.size());
        if (!keepReader || kept == nullptr) {
            kept.reset(xmlNewParserCtxt());
            *kept->sax = handler;
        }
        xmlCtxtUseOptions(kept.get(), XML_PARSE_HUGE | XML_PARSE_NONET);
        xmlParserInputBufferPtr buffer = xmlParserInputBufferCreateIO(
            [](void* source, char* bytes, int size) {
                const long long count = static_cast<BRIMMemoryInputStream*>(source)->read(
                    bytes, static_cast<std::size_t>(size));
                return static_cast<int>(count > 0 ? count : 0);
            },
            nullptr, &stream, XML_CHAR_ENCODING_NONE);
        inputPush(kept.get(), xmlNewIOInputStream(kept.get(), buffer, XML_CHAR_ENCODING_NONE));
        if (xmlParseDocument(kept.get()) != 0) state.SkipWithError("not well-formed");
        xmlCtxtReset(kept.get());
    }
    setBytes(state, input.bytes);
}

template <class Run>
void add(const std::string& name, Run run) {
    benchmark::RegisterBenchmark(name.c_str(), run);
}

/// The parses of two parsers, and the ratios of ours to them.
void addFloors(const std::string& title, const std::string& subject, const Input& (*input)(),
               bool keep, double must, double aim) {
    add("xerces_" + subject, [=](benchmark::State& state) { parseOnly(state, input(), keep); });
    add("libxml_" + subject, [=](benchmark::State& state) { parseByLibxml(state, input(), keep); });
    addRatio({title, "read_" + subject, "xerces_" + subject, must, aim});
    addRatio({title + ", against libxml2 alone", "read_" + subject, "libxml_" + subject, 0, 2});
}

void registerAll() {
    for (const std::size_t megabytes : {1, 10, 100})
        add("read_reply/" + std::to_string(megabytes) + "MB",
            [megabytes](benchmark::State& state) { readReply(state, contentReply(megabytes)); });
    addFloors(
        "read a reply of 10 MB", "reply/10MB", []() -> const Input& { return contentReply(10); },
        true, 0.75, 0.5);
    addRatio({"time per element, 100 MB against 1 MB", "read_reply/100MB", "read_reply/1MB", 1.15,
              1.05, 0.01});

    add("read_request/new",
        [](benchmark::State& state) { readRequest(state, runRequest(), false); });
    addFloors("read a small request, all set-up", "request/new", runRequest, false, 0.5, 0.35);
    add("read_request/kept",
        [](benchmark::State& state) { readRequest(state, runRequest(), true); });
    addFloors("read a small request, reader kept", "request/kept", runRequest, true, 0.6, 0.4);

    add("read_text/20MB", [](benchmark::State& state) { readRequest(state, textRequest(), true); });
    addFloors("read a text of 20 MB", "text/20MB", textRequest, true, 1.1, 0.95);

    add("read_binary/20MB", [](benchmark::State& state) { readReply(state, binaryReply()); });
    addFloors("read a binary value of 20 MB", "binary/20MB", binaryReply, true, 1.3, 1);
}

}  // namespace

int main(int argc, char** argv) {
    xercesc::XMLPlatformUtils::Initialize();
    registerAll();
    return runBenchmarks(argc, argv);
}
