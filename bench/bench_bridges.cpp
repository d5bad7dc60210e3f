// The bridges, against the writer and the reader of the wire form with the same object, and against
// what Xerces-C takes for the same bytes.
#include "bench/Corpus.h"
#include "bench/Ratios.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVAContentQuery_Reply.h>
#include <korva/KORVADOMObjectDeserializer.h>
#include <korva/KORVADOMObjectSerializer.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVASAXObjectSerializer.h>
#include <korva/KORVASOAPSerializer.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVATARNObjectDeserializer.h>
#include <korva/KORVATARNObjectSerializer.h>
#include <korva/KORVAXMLDeserializer.h>
#include <tarn/TARNObjectRegistry.h>
#include <zel/I18NConverter.h>
#include <zel/ZELSmartPointer.h>
#include <zelidom/ZELIDOM_Document.h>

#include <benchmark/benchmark.h>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace {

constexpr std::size_t megabyte = 1000 * 1000;

using Registry = ZELSmartPointer<KORVAObjectRegistry>;
using TarnRegistry = ZELSmartPointer<TARNObjectRegistry>;

/// A query's result of a megabyte, with its written form.
struct Subject {
    Call call = makeContentReply(megabyte);
    const KORVASchemaTypeI* object = nullptr;
    std::string bytes;
    std::string document;  ///< a whole one that holds it
};

void write(const KORVASchemaTypeI& object, BRIMOutputStream& stream) {
    KORVASOAPSerializer().serialize(&object, object.getObjectType(), "bus:result", stream);
}

const Subject& subject() {
    static const Subject& made = *[] {
        auto* const result = new Subject;
        result->object =
            static_cast<KORVAContentQuery_Reply&>(result->call->getOutputMessage()).getResult();
        BRIMMemoryOutputStream stream;
        write(*result->object, stream);
        result->bytes.assign(stream.str(), stream.pcount());
        result->document = outputEnvelope(*result->call);
        return result;
    }();
    return made;
}

xercesc::MemBufInputSource source() {
    const std::string& document = subject().document;
    return {reinterpret_cast<const XMLByte*>(document.data()), document.size(), "bench"};
}

void setBytes(benchmark::State& state) {
    state.SetBytesProcessed(static_cast<std::int64_t>(subject().bytes.size()) * state.iterations());
}

ZELIDOM_Element toDocument(ZELIDOM_Document document) {
    return KORVADOMObjectSerializer().serialize(subject().object, subject().object->getObjectType(),
                                                "bus:result", document);
}

void replay(xercesc::ContentHandler& handler) {
    KORVASAXObjectSerializer().serialize(subject().object, subject().object->getObjectType(),
                                         "result", handler);
}

void writeWire(benchmark::State& state) {
    BRIMMemoryOutputStream out;
    for (auto _ : state) {
        out.reset();
        write(*subject().object, out);
        benchmark::DoNotOptimize(out.str());
    }
    setBytes(state);
}

void writeDocument(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(toDocument(ZELIDOM_Document::create()).xercesNode());
    setBytes(state);
}

void writeEvents(benchmark::State& state) {
    xercesc::DefaultHandler handler;
    for (auto _ : state)
        replay(handler);
    setBytes(state);
}

void readWire(benchmark::State& state) {
    KORVAXMLDeserializer deserializer;
    for (auto _ : state) {
        const Registry registry = KORVAObjectRegistry::create();
        BRIMMemoryInputStream stream(subject().bytes.data(), subject().bytes.size());
        benchmark::DoNotOptimize(deserializer.parse(stream, registry.get()));
    }
    setBytes(state);
}

void readDocument(benchmark::State& state) {
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    const ZELIDOM_Element element = toDocument(document);
    KORVADOMObjectDeserializer deserializer;
    for (auto _ : state)
        benchmark::DoNotOptimize(deserializer.deserialize(element));
    setBytes(state);
}

/// The element that holds the object: Envelope, Body, reply, result.
ZELIDOM_Element resultOf(const xercesc::DOMDocument& document) {
    xercesc::DOMElement* const body = document.getDocumentElement()->getLastElementChild();
    return ZELIDOM_Element(body->getFirstElementChild()->getFirstElementChild());
}

void readParsed(benchmark::State& state) {
    xercesc::XercesDOMParser parser;
    parser.setDoNamespaces(true);
    parser.parse(source());
    const ZELIDOM_Element element = resultOf(*parser.getDocument());
    KORVADOMObjectDeserializer deserializer;
    for (auto _ : state) {
        const KORVASchemaTypeI* const object = deserializer.deserialize(element);
        if (object->getObjectType() != subject().object->getObjectType())
            state.SkipWithError("another object was read");
    }
    setBytes(state);
}

void readEvents(benchmark::State& state) {
    for (auto _ : state) {
        const Registry registry = KORVAObjectRegistry::create();
        KORVANamespaceMapping mapping;
        I18NConverter converter;
        void* result = nullptr;
        KORVASchemaTypeIContentHandler handler(&result, &mapping, registry.get(), converter);
        replay(handler);
        benchmark::DoNotOptimize(result);
    }
    setBytes(state);
}

void writeTarn(benchmark::State& state) {
    for (auto _ : state) {
        const TarnRegistry registry = TARNObjectRegistry::create();
        benchmark::DoNotOptimize(
            KORVATARNObjectSerializer().serialize(subject().object, *registry));
    }
    setBytes(state);
}

void readTarn(benchmark::State& state) {
    const TarnRegistry source = TARNObjectRegistry::create();
    const TARNSchemaTypeI* const object =
        KORVATARNObjectSerializer().serialize(subject().object, *source);
    for (auto _ : state) {
        const Registry registry = KORVAObjectRegistry::create();
        benchmark::DoNotOptimize(KORVATARNObjectDeserializer().deserialize(object, *registry));
    }
    setBytes(state);
}

void copyObject(benchmark::State& state) {
    for (auto _ : state) {
        const Registry registry = KORVAObjectRegistry::create();
        benchmark::DoNotOptimize(
            &KORVASchemaTypesFactory::getInstance().createCopy(*subject().object, *registry));
    }
    setBytes(state);
}

void parseToDocument(benchmark::State& state) {
    for (auto _ : state) {
        xercesc::XercesDOMParser parser;
        parser.setDoNamespaces(true);
        parser.parse(source());
        benchmark::DoNotOptimize(parser.getDocument());
    }
    setBytes(state);
}

void parseToEvents(benchmark::State& state) {
    using xercesc::XMLUni;
    const std::unique_ptr<xercesc::SAX2XMLReader> reader(
        xercesc::XMLReaderFactory::createXMLReader());
    xercesc::DefaultHandler handler;
    reader->setContentHandler(&handler);
    reader->setErrorHandler(&handler);
    reader->setFeature(XMLUni::fgXercesSchema, false);
    reader->setFeature(XMLUni::fgSAX2CoreValidation, false);
    reader->setFeature(XMLUni::fgSAX2CoreNameSpacePrefixes, true);
    for (auto _ : state)
        reader->parse(source());
    setBytes(state);
}

void registerAll() {
    const auto add = [](const char* name, void (*run)(benchmark::State&)) {
        benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMicrosecond);
    };
    add("write/wire", writeWire);
    add("write/document", writeDocument);
    add("write/events", writeEvents);
    add("read/wire", readWire);
    add("read/document", readDocument);
    add("read/parsed", readParsed);
    add("read/events", readEvents);
    add("write/tarn", writeTarn);
    add("read/tarn", readTarn);
    add("copy", copyObject);
    add("parse/document", parseToDocument);
    add("parse/events", parseToEvents);
    addRatio({"object to document, against writing it", "write/document", "write/wire", 0, 0});
    addRatio({"object to document, against parsing one", "write/document", "parse/document", 0, 0});
    addRatio({"document to object, against parsing one", "read/parsed", "parse/document", 1, 0.5});
    addRatio({"object to events, against writing it", "write/events", "write/wire", 0, 0});
    addRatio({"object to events, against a parse", "write/events", "parse/events", 0, 0});
    addRatio({"document to object, against reading it", "read/document", "read/wire", 0, 0});
    addRatio({"object to events to object, against reading", "read/events", "read/wire", 0, 0});
    addRatio({"object to second model, against writing it", "write/tarn", "write/wire", 0, 0});
    addRatio({"second model to object, against reading it", "read/tarn", "read/wire", 0, 0});
    addRatio({"object to second model, against copying it", "write/tarn", "copy", 0, 0});
    addRatio({"second model to object, against copying it", "read/tarn", "copy", 0, 0});
}

}  // namespace

int main(int argc, char** argv) {
    xercesc::XMLPlatformUtils::Initialize();
    registerAll();
    return runBenchmarks(argc, argv);
}
