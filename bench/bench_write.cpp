// Writing envelopes, against the same bytes handed to the same stream: cut into the tokens of the
// wire form, each by one virtual write; in the writer's own pieces; and in one copy.
#include "bench/Corpus.h"
#include "bench/Ratios.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVASOAPMessageISerializer.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::size_t megabyte = 1000 * 1000;

/// Notes in which pieces the serializer writes an envelope.
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

/// The lengths of an envelope's tokens, in order: each mark, each tab and line feed, each name,
/// attribute value and text.
std::vector<std::size_t> wireTokens(const std::string& text) {
    std::vector<std::size_t> lengths;
    bool inTag = false;
    std::size_t at = 0;
    const auto token = [&](std::size_t end) {
        end = std::min(end, text.size());
        if (end > at) lengths.push_back(end - at);
        at = end;
    };
    while (at < text.size()) {
        const char c = text[at];
        if (!inTag && c != '<' && c != '\t' && c != '\n') {
            token(text.find('<', at));
        } else if (inTag && c == '"') {
            token(at + 1);
            token(text.find('"', at));
            token(at + 1);
        } else if (inTag && std::string_view("/ =>").find(c) == std::string_view::npos) {
            token(text.find_first_of("/ =\">", at));
        } else {
            if (c == '<' || c == '>') inTag = c == '<';
            token(at + 1);
        }
    }
    return lengths;
}

struct Subject {
    Call call;
    KORVAMessageI* message = nullptr;
    TokenRecorder pieces;
    std::vector<std::size_t> tokens;
};

std::unique_ptr<Subject> makeSubject(const Call& call, KORVAMessageI& message) {
    auto subject = std::make_unique<Subject>();
    subject->call = call;
    subject->message = &message;
    KORVASOAPMessageISerializer().serialize(*call, message, subject->pieces);
    subject->tokens = wireTokens(subject->pieces.text);
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
    state.SetBytesProcessed(static_cast<std::int64_t>(subject.pieces.text.size()) *
                            state.iterations());
}

void write(benchmark::State& state, const Subject& subject) {
    BRIMMemoryOutputStream out;
    for (auto _ : state) {
        out.reset();
        KORVASOAPMessageISerializer().serialize(*subject.call, *subject.message, out);
        benchmark::DoNotOptimize(out.str());
    }
    setBytes(state, subject);
}

void copyPieces(benchmark::State& state, const Subject& subject,
                const std::vector<std::size_t>& lengths) {
    BRIMMemoryOutputStream memory;
    BRIMOutputStream* out = &memory;
    for (auto _ : state) {
        memory.reset();
        benchmark::DoNotOptimize(out);
        const char* piece = subject.pieces.text.data();
        for (const std::size_t length : lengths) {
            out->write(piece, length);
            piece += length;
        }
        benchmark::DoNotOptimize(memory.str());
    }
    setBytes(state, subject);
}

void registerAll(const std::string& name, const Subject& (*subject)(), double must, double aim) {
    const auto add = [&name](const std::string& kind, auto run) {
        benchmark::RegisterBenchmark((kind + '/' + name).c_str(), run)
            ->Unit(benchmark::kMicrosecond);
    };
    add("write", [subject](benchmark::State& state) { write(state, subject()); });
    add("tokens",
        [subject](benchmark::State& state) { copyPieces(state, subject(), subject().tokens); });
    add("pieces", [subject](benchmark::State& state) {
        copyPieces(state, subject(), subject().pieces.lengths);
    });
    add("bytes", [subject](benchmark::State& state) {
        copyPieces(state, subject(), {subject().pieces.text.size()});
    });
    addRatio(
        {"write " + name + ", against its tokens", "write/" + name, "tokens/" + name, must, aim});
    addRatio({"write " + name + ", against the writer's pieces", "write/" + name, "pieces/" + name,
              0, 0});
    addRatio({"write " + name + ", against one copy", "write/" + name, "bytes/" + name, 0, 0});
}

}  // namespace

int main(int argc, char** argv) {
    registerAll("reply_10MB", contentReply, 0.85, 0.6);
    registerAll("request", runRequest, 0, 0);
    registerAll("text_20MB", textRequest, 0, 0);
    return runBenchmarks(argc, argv);
}
