#include "brim/BRIMXmlEncodeOutputStream.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace {

constexpr std::string_view entityOf(unsigned char byte) noexcept {
    switch (byte) {
        case '&': return "&amp;";
        case '<': return "&lt;";
        case '>': return "&gt;";
        case '"': return "&quot;";
        case '\'': return "&apos;";
        case '\r': return "&#xD;";
        default: return {};
    }
}

/// What a byte becomes, itself or its entity, in a form that is moved as one word.
struct Replacement {
    char text[7];
    std::uint8_t length;
};

using ReplacementWord = std::uint64_t;
static_assert(sizeof(Replacement) == sizeof(ReplacementWord));

constexpr std::array<ReplacementWord, 256> makeReplacements() noexcept {
    std::array<ReplacementWord, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const std::string_view entity = entityOf(static_cast<unsigned char>(byte));
        Replacement replacement{{static_cast<char>(byte)}, 1};
        if (!entity.empty()) {
            replacement.length = static_cast<std::uint8_t>(entity.size());
            for (std::size_t i = 0; i < entity.size(); ++i)
                replacement.text[i] = entity[i];
        }
        table[byte] = std::bit_cast<ReplacementWord>(replacement);
    }
    return table;
}

alignas(64) constexpr std::array<ReplacementWord, 256> replacements = makeReplacements();

constexpr std::size_t longestEntity = 6;

constexpr std::uint64_t everyByte(std::uint8_t byte) noexcept {
    return byte * 0x0101010101010101u;
}

/// Not 0 if a byte of `word` is 0.
constexpr std::uint64_t zeroBytes(std::uint64_t word) noexcept {
    return (word - everyByte(0x01)) & ~word & everyByte(0x80);
}

/// Whether none of eight bytes is replaced. Four comparisons find the six characters: `&` and `'`
/// differ in their lowest bit alone, `<` and `>` in the one above it.
constexpr bool isCleanWord(std::uint64_t word) noexcept {
    return (zeroBytes((word | everyByte(1)) ^ everyByte('\'')) |
            zeroBytes((word | everyByte(2)) ^ everyByte('>')) | zeroBytes(word ^ everyByte('"')) |
            zeroBytes(word ^ everyByte('\r'))) == 0;
}

template <class Word>
Word load(const char* bytes) noexcept {
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

constexpr std::size_t block = 16;

bool isCleanBlock(const char* bytes) noexcept {
#if defined(__SSE2__) || defined(_M_X64)
    const __m128i text = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    const auto among = [&](char bit, char character) {
        return _mm_cmpeq_epi8(_mm_or_si128(text, _mm_set1_epi8(bit)), _mm_set1_epi8(character));
    };
    const __m128i hits = _mm_or_si128(_mm_or_si128(among(1, '\''), among(2, '>')),
                                      _mm_or_si128(among(0, '"'), among(0, '\r')));
    return _mm_movemask_epi8(hits) == 0;
#else
    return isCleanWord(load<std::uint64_t>(bytes)) && isCleanWord(load<std::uint64_t>(bytes + 8));
#endif
}

/// How many bytes at the front pass unchanged, in whole blocks.
std::size_t cleanBlocks(const char* bytes, std::size_t length) noexcept {
    std::size_t clean = 0;
    while (length - clean >= block && isCleanBlock(bytes + clean))
        clean += block;
    return clean;
}

/// Whether fewer bytes than a block all pass unchanged. Words that overlap cover them.
bool isCleanRest(const char* bytes, std::size_t length) noexcept {
    if (length >= 8) {
        return isCleanWord(load<std::uint64_t>(bytes)) &&
               isCleanWord(load<std::uint64_t>(bytes + length - 8));
    }
    if (length >= 4) {
        return isCleanWord(std::uint64_t{load<std::uint32_t>(bytes)} << 32 |
                           load<std::uint32_t>(bytes + length - 4));
    }
    if (length == 0) return true;
    const auto at = [bytes](std::size_t i) {
        return std::uint64_t{static_cast<unsigned char>(bytes[i])};
    };
    return isCleanWord(at(0) << 16 | at(length / 2) << 8 | at(length - 1));
}

/// Joins short pieces, so that a text full of markup doesn't become a call for every character.
class Joiner {
public:
    explicit Joiner(BRIMOutputStream& stream) noexcept : m_stream(stream) {}

    /// Bytes that pass unchanged.
    void addClean(const char* bytes, std::size_t length) {
        if (length > sizeof m_buffer - m_length) drain();
        if (length > sizeof m_buffer / 4) {
            drain();
            m_stream.write(bytes, length);
        } else {
            std::memcpy(m_buffer + m_length, bytes, length);
            m_length += length;
        }
    }

    /// At most a block of any bytes.
    void addEncoded(const char* bytes, std::size_t length) {
        // Each step stores a whole replacement and keeps its length, which needs no branch.
        if (sizeof m_buffer - m_length < block * longestEntity + sizeof(Replacement)) drain();
        char* out = m_buffer + m_length;
        for (std::size_t i = 0; i < length; ++i) {
            const ReplacementWord word = replacements[static_cast<unsigned char>(bytes[i])];
            std::memcpy(out, &word, sizeof word);
            out += std::bit_cast<Replacement>(word).length;
        }
        m_length = static_cast<std::size_t>(out - m_buffer);
    }

    void drain() {
        if (m_length != 0) m_stream.write(m_buffer, m_length);
        m_length = 0;
    }

private:
    BRIMOutputStream& m_stream;
    std::size_t m_length = 0;
    char m_buffer[2048];
};

}  // namespace

BRIMXmlEncodeOutputStream::~BRIMXmlEncodeOutputStream() = default;

void BRIMXmlEncodeOutputStream::write(const char* bytes, std::size_t length) {
    std::size_t clean = cleanBlocks(bytes, length);
    if (length - clean < block && isCleanRest(bytes + clean, length - clean)) {
        if (length != 0) m_stream.write(bytes, length);
        return;
    }
    Joiner joiner(m_stream);
    for (;;) {
        joiner.addClean(bytes, clean);
        bytes += clean;
        length -= clean;
        if (length == 0) break;
        const std::size_t step = std::min(length, block);
        joiner.addEncoded(bytes, step);
        bytes += step;
        length -= step;
        clean = cleanBlocks(bytes, length);
    }
    joiner.drain();
}

void BRIMXmlEncodeOutputStream::flush() {
    m_stream.flush();
}
