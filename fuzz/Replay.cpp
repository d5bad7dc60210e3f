// A main function for targets without a fuzzer: attacks with files, and with changed copies of
// them.
#include "fuzz/Cost.h"
#include "fuzz/EnvelopeMutator.h"
#include "fuzz/Target.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr const char* usage =
    "usage: %s [--mutations <n>] [--costs] <file or folder>...\n\n"
    "  --mutations <n>  attack with n changed copies of each file, too, always the same\n"
    "  --costs          tell what each file costs: bytes, milliseconds, most bytes held\n";

using Path = std::filesystem::path;

/// The files, and those in the folders, in the order of their names.
std::vector<Path> filesOf(const std::vector<Path>& places) {
    std::vector<Path> files;
    for (const Path& place : places) {
        if (!std::filesystem::exists(place)) continue;  // nothing has been found yet
        if (!std::filesystem::is_directory(place)) {
            files.push_back(place);
            continue;
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(place))
            if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// What the process is being attacked with.
const std::vector<char>* attackedWith = nullptr;

/// Keeps the input that ends the process, as a file to be replayed.
void keepFinding(int signal) {
    const std::string path = "finding-" + std::to_string(::getpid());
    if (std::FILE* const file = attackedWith ? std::fopen(path.c_str(), "wb") : nullptr) {
        std::fwrite(attackedWith->data(), 1, attackedWith->size(), file);
        std::fclose(file);
        std::fprintf(stderr, "The input is kept as %s.\n", path.c_str());
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void attack(const std::string& input) {
    // In memory of its own, so that reading beyond the end is seen.
    const std::vector<char> copy(input.begin(), input.end());
    attackedWith = &copy;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(copy.data()), copy.size());
    attackedWith = nullptr;
}

}  // namespace

int main(int count, char** arguments) {
    std::size_t mutations = 0;
    bool tellsCosts = false;
    std::vector<Path> places;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--mutations" && i + 1 < count) {
            const std::string_view value = arguments[++i];
            std::from_chars(value.data(), value.data() + value.size(), mutations);
        } else if (argument == "--costs") {
            tellsCosts = true;
        } else {
            places.emplace_back(argument);
        }
    }
    const std::vector<Path> files = filesOf(places);
    if (files.empty()) {
        std::fprintf(stderr, usage, arguments[0]);
        return 2;
    }
    for (const int signal : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(signal, keepFinding);
    LLVMFuzzerInitialize(&count, &arguments);
    attack({});
    std::uint64_t seed = 0;
    for (const Path& file : files) {
        std::ifstream stream(file, std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(stream), {}};
        // What ends the process is told last.
        std::fprintf(stderr, "%s\n", file.c_str());
        const korva::fuzz::Cost cost(input.size());
        attack(input);
        if (tellsCosts)
            std::printf("%s: %zu bytes, %.1f ms, %zu bytes held\n", file.c_str(), input.size(),
                        cost.seconds() * 1000, korva::fuzz::Cost::peak());
        for (std::size_t i = 0; i < mutations; ++i) {
            const std::string changed = korva::fuzz::EnvelopeMutator(++seed).mutate(input);
            attack(changed);
        }
    }
    std::printf("%zu inputs and %llu changed ones, of which %zu were refused\n", files.size(),
                static_cast<unsigned long long>(seed), korva::fuzz::refusedSoFar());
    return 0;
}
