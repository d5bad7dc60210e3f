// Attachments: 200 MB in parts of several sizes, against a copy of the same bytes from memory into
// the same containers; and the division of a message into its parts, against a copy of it.
#include "bench/Ratios.h"

#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <halyard/HALYARDTKMessagePart.h>
#include <halyard/HALYARDTKMultipartReader.h>
#include <halyard/HALYARDTKMultipartWriter.h>
#include <korva/DefaultAttachmentContainer.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>
#include <zel/ZELOwner.h>
#include <zel/ZELSmartPointer.h>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t megabyte = 1000 * 1000;
constexpr std::size_t total = 200 * megabyte;

/// The bytes that all parts are cut from: random ones, so that line breaks are among them.
const std::string& content() {
    static const std::string& bytes = *[] {
        auto* const made = new std::string(total, '\0');
        std::mt19937 random(3);
        for (char& byte : *made)
            byte = static_cast<char>(random());
        return made;
    }();
    return bytes;
}

struct Message {
    std::string type;
    std::string bytes;
};

/// A message whose parts have `size` bytes each, made once and kept.
const Message& message(std::size_t size) {
    static std::map<std::size_t, Message>& all = *new std::map<std::size_t, Message>;
    Message& made = all[size];
    if (!made.bytes.empty()) return made;
    BRIMMemoryOutputStream out(total / size * (size + 200) + 1000);
    HALYARDTKMultipartWriter writer(out);
    writer.beginRoot().write("<e/>", 4);
    for (std::size_t i = 0; i < total / size; ++i)
        writer.beginPart(std::to_string(i).c_str(), "application/octet-stream")
            .write(content().data() + i * size, size);
    writer.close();
    made.type = writer.getContentType();
    made.bytes.assign(out.str(), out.pcount());
    return made;
}

using Factory = KORVA_AttachmentHandler::ContainerFactory;

KORVA_AttachmentContainerI* makeDefault() {
    return new DefaultAttachmentContainer;
}

void resolve(benchmark::State& state, std::size_t size, Factory factory) {
    const Message& source = message(size);
    std::vector<KORVAStringProp> objects(total / size);
    for (auto _ : state) {
        KORVA_AttachmentHandler handler;
        for (std::size_t i = 0; i < objects.size(); ++i)
            handler.registerHref(std::to_string(i).c_str(), objects[i], "value",
                                 KORVASchemaTypeI::eString, 0);
        const ZELSmartPointer<KORVAObjectRegistry> registry(KORVAObjectRegistry::create());
        BRIMMemoryInputStream stream(source.bytes.data(), source.bytes.size());
        HALYARDTKMultipartReader reader(stream, source.type.c_str());
        reader.setMaximumParts(objects.size());
        if (!handler.resolveReferences(reader, *registry, factory))
            state.SkipWithError("a part is missing");
    }
}

void copyToContainers(benchmark::State& state, std::size_t size, Factory factory) {
    const std::string& bytes = content();
    for (auto _ : state) {
        const ZELSmartPointer<KORVAObjectRegistry> registry(KORVAObjectRegistry::create());
        for (std::size_t i = 0; i < total / size; ++i) {
            auto* const container = registry->own(ZELOwner(factory()));
            BRIMMemoryInputStream part(bytes.data() + i * size, size);
            char piece[2048];
            for (;;) {
                const long long count = part.read(piece, sizeof piece);
                if (count <= 0) break;
                container->append(piece, static_cast<std::size_t>(count));
            }
        }
    }
}

void divide(benchmark::State& state, std::size_t size) {
    const Message& source = message(size);
    std::vector<char> piece(16384);
    for (auto _ : state) {
        BRIMMemoryInputStream stream(source.bytes.data(), source.bytes.size());
        HALYARDTKMultipartReader reader(stream, source.type.c_str());
        reader.setMaximumParts(total);
        while (reader.hasNextPart()) {
            HALYARDTKMessagePart* const part = reader.getNextPart();
            while (part->getStream().read(piece.data(), piece.size()) > 0)
                benchmark::DoNotOptimize(piece.data());
            reader.releasePart(part);
        }
    }
}

void copyMessage(benchmark::State& state, std::size_t size) {
    const Message& source = message(size);
    std::vector<char> piece(16384);
    for (auto _ : state) {
        BRIMMemoryInputStream stream(source.bytes.data(), source.bytes.size());
        while (stream.read(piece.data(), piece.size()) > 0)
            benchmark::DoNotOptimize(piece.data());
    }
}

struct Size {
    std::size_t bytes;
    const char* name;
};

constexpr Size sizes[] = {{1000, "1 KB"}, {megabyte, "1 MB"}, {total, "200 MB"}};

}  // namespace

int main(int argc, char** argv) {
    for (const auto& [bytes, name] : sizes) {
        std::string suffix = "/";
        suffix += std::to_string(bytes);
        const auto add = [&suffix](const char* program, auto function, auto... arguments) {
            benchmark::RegisterBenchmark((program + suffix).c_str(), function, arguments...);
        };
        add("resolve/memory", resolve, bytes, makeDefault);
        add("copy/memory", copyToContainers, bytes, makeDefault);
        add("resolve/spooled", resolve, bytes, KORVA_SpoolingAttachmentContainer::create);
        add("copy/spooled", copyToContainers, bytes, KORVA_SpoolingAttachmentContainer::create);
        add("divide", divide, bytes);
        add("copy/message", copyMessage, bytes);
        const std::string parts = std::string("200 MB in parts of ") + name;
        addRatio({"resolve " + parts, "resolve/memory" + suffix, "copy/memory" + suffix, 0, 0});
        addRatio({"spool " + parts, "resolve/spooled" + suffix, "copy/spooled" + suffix, 0, 0});
        addRatio({"divide " + parts, "divide" + suffix, "copy/message" + suffix, 0, 0});
    }
    return runBenchmarks(argc, argv);
}
