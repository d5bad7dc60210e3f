// Lets the fuzzer change documents by their structure, in turn with its own changes of bytes.
#include "fuzz/EnvelopeMutator.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t largest);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t largest, unsigned seed) {
    if (seed % 4 == 0) return LLVMFuzzerMutate(data, size, largest);
    const std::string_view document(reinterpret_cast<const char*>(data), size);
    const std::string changed = korva::fuzz::EnvelopeMutator(seed).mutate(document, largest);
    std::memcpy(data, changed.data(), changed.size());
    return changed.size();
}
