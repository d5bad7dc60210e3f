/// Changes envelopes the way an attacker would: their structure first, their bytes last.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace korva::fuzz {

/// Changes documents at random, and always in the same way for the same seed, whatever the compiler
/// and the machine. Most results are still well-formed, and hold the words of the schema.
class EnvelopeMutator {
public:
    explicit EnvelopeMutator(std::uint64_t seed) noexcept : m_state(seed) {}

    /// A changed copy of `document`, which may be anything; without an element, a small request
    /// takes its place. A few changes are made at once: to elements, attributes, types, prefixes,
    /// counts, references, texts, the markup around them, and now and then to single bytes. Each
    /// call goes on where the last one ended. The result has no more than `longest` bytes; a longer
    /// one is cut.
    std::string mutate(std::string_view document, std::size_t longest = std::size_t{1} << 16U);

private:
    class Document;

    std::uint64_t next() noexcept;

    std::uint64_t m_state;
};

}  // namespace korva::fuzz
