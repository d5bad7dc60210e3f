// Base64 in and out, against OpenSSL's EVP and a plain copy.
#include "bench/Ratios.h"

#include <brim/BRIMBase64InputStream.h>
#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMMemoryInputStream.h>

#include <benchmark/benchmark.h>

#include <openssl/evp.h>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t dataSize = 3 * 1000 * 1000;

/// Takes what comes and keeps the last piece, so that only the codec is measured.
class LastPiece : public BRIMOutputStream {
public:
    void write(const char* bytes, std::size_t length) override {
        benchmark::DoNotOptimize(bytes);
        m_total += length;
    }
    void close() override {}
    std::size_t total() const { return m_total; }

private:
    std::size_t m_total = 0;
};

const std::string& data() {
    static const std::string& bytes = *[] {
        auto* const made = new std::string(dataSize, '\0');
        std::mt19937 random(5);
        for (char& c : *made)
            c = static_cast<char>(random());
        return made;
    }();
    return bytes;
}

const std::string& encoded() {
    static const std::string& text = *[] {
        auto* const made = new std::string(dataSize / 3 * 4 + 1, '\0');
        const int length = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(made->data()),
                                           reinterpret_cast<const unsigned char*>(data().data()),
                                           static_cast<int>(dataSize));
        made->resize(static_cast<std::size_t>(length));
        return made;
    }();
    return text;
}

void encode(benchmark::State& state) {
    for (auto _ : state) {
        LastPiece sink;
        BRIMBase64OutputStream out(sink);
        out.write(data().data(), data().size());
        out.close();
        benchmark::DoNotOptimize(sink.total());
    }
}

void evpEncode(benchmark::State& state) {
    std::vector<unsigned char> out(encoded().size() + 1);
    for (auto _ : state) {
        EVP_EncodeBlock(out.data(), reinterpret_cast<const unsigned char*>(data().data()),
                        static_cast<int>(dataSize));
        benchmark::DoNotOptimize(out.data());
    }
}

void decode(benchmark::State& state) {
    std::vector<char> piece(16384);
    for (auto _ : state) {
        BRIMMemoryInputStream text(encoded().data(), encoded().size());
        BRIMBase64InputStream in(text);
        while (in.read(piece.data(), piece.size()) > 0)
            benchmark::DoNotOptimize(piece.data());
    }
}

void evpDecode(benchmark::State& state) {
    std::vector<unsigned char> out(dataSize + 3);
    for (auto _ : state) {
        EVP_DecodeBlock(out.data(), reinterpret_cast<const unsigned char*>(encoded().data()),
                        static_cast<int>(encoded().size()));
        benchmark::DoNotOptimize(out.data());
    }
}

void copy(benchmark::State& state) {
    std::vector<char> out(dataSize);
    for (auto _ : state) {
        std::copy(data().begin(), data().end(), out.begin());
        benchmark::DoNotOptimize(out.data());
    }
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::RegisterBenchmark("base64/encode", encode)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("evp/encode", evpEncode)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("base64/decode", decode)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("evp/decode", evpDecode)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("copy", copy)->Unit(benchmark::kMicrosecond);
    addRatio({"base64 out, against EVP", "base64/encode", "evp/encode", 1.0, 0.75});
    addRatio({"base64 in, against EVP", "base64/decode", "evp/decode", 1.0, 0.75});
    addRatio({"base64 out, against a copy", "base64/encode", "copy", 0, 0});
    addRatio({"base64 in, against a copy", "base64/decode", "copy", 0, 0});
    return runBenchmarks(argc, argv);
}
