// Writing envelopes, against the same tokens each handed to the same stream by one virtual write.
#include "bench/Corpus.h"
#include "bench/Ratios.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVASOAPMessageISerializer.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

namespace {

constexpr std::size_t megabyte = 1000 * 1000;

/// Notes how the serializer cuts an envelope into tokens.
class TokenRecorder : public BRIMOutputStream {
public:
    void write(const char* bytes, std::size_t length) override {
        text.append(bytes, length);
        lengths.push_back(length);
    }
    void close() override {}

    std::string text;
    std::vector<std::size_t> lengths;
};

struct Subject {
    Call call;
    KORVAMessageI* message = nullptr;
    TokenRecorder tokens;
};

std::unique_ptr<Subject> makeSubject(const Call& call, KORVAMessageI& message) {
    auto subject = std::make_unique<Subject>();
    subject->call = call;
    subject->message = &message;
    KORVASOAPMessageISerializer().serialize(*call, message, subject->tokens);
    return subject;
}

const Subject& contentReply() {
    static const std::unique_ptr<Subject> subject = [] {
        const Call call = makeContentReply(10 * megabyte);
        return makeSubject(call, call->getOutputMessage());
    }();
    return *subject;
}

const Subject& runRequest() {
    static const std::unique_ptr<Subject> subject = [] {
        const Call call = makeRunRequest();
        return makeSubject(call, call->getInputMessage());
    }();
    return *subject;
}

const Subject& textRequest() {
    static const std::unique_ptr<Subject> subject = [] {
        const Call call = makeTextRequest(20 * megabyte);
        return makeSubject(call, call->getInputMessage());
    }();
    return *subject;
}

void setBytes(benchmark::State& state, const Subject& subject) {
    state.SetBytesProcessed(static_cast<std::int64_t>(subject.tokens.text.size()) *
                            state.iterations());
}

void write(benchmark::State& state, const Subject& subject) {
    for (auto _ : state) {
        BRIMMemoryOutputStream out;
        KORVASOAPMessageISerializer().serialize(*subject.call, *subject.message, out);
        benchmark::DoNotOptimize(out.str());
    }
    setBytes(state, subject);
}

void copyTokens(benchmark::State& state, const Subject& subject) {
    for (auto _ : state) {
        BRIMMemoryOutputStream memory;
        BRIMOutputStream* out = &memory;
        benchmark::DoNotOptimize(out);
        const char* token = subject.tokens.text.data();
        for (const std::size_t length : subject.tokens.lengths) {
            out->write(token, length);
            token += length;
        }
        benchmark::DoNotOptimize(memory.str());
    }
    setBytes(state, subject);
}

void copyBytes(benchmark::State& state, const Subject& subject) {
    for (auto _ : state) {
        BRIMMemoryOutputStream memory;
        memory.write(subject.tokens.text.data(), subject.tokens.text.size());
        benchmark::DoNotOptimize(memory.str());
    }
    setBytes(state, subject);
}

void registerAll(const std::string& name, const Subject& (*subject)(), double must, double aim) {
    using benchmark::RegisterBenchmark;
    RegisterBenchmark(("write/" + name).c_str(), [subject](benchmark::State& state) {
        write(state, subject());
    })->Unit(benchmark::kMicrosecond);
    RegisterBenchmark(("tokens/" + name).c_str(), [subject](benchmark::State& state) {
        copyTokens(state, subject());
    })->Unit(benchmark::kMicrosecond);
    RegisterBenchmark(("bytes/" + name).c_str(), [subject](benchmark::State& state) {
        copyBytes(state, subject());
    })->Unit(benchmark::kMicrosecond);
    addRatio(
        {"write " + name + ", against its tokens", "write/" + name, "tokens/" + name, must, aim});
    addRatio({"write " + name + ", against one copy", "write/" + name, "bytes/" + name, 0, 0});
}

}  // namespace

int main(int argc, char** argv) {
    registerAll("reply_10MB", contentReply, 1.3, 1.1);
    registerAll("request", runRequest, 0, 0);
    registerAll("text_20MB", textRequest, 0, 0);
    return runBenchmarks(argc, argv);
}
