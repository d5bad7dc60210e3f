/// How text becomes XML character data: the one scan behind all streams that write it.
#pragma once

#include <brim/BRIMOutputStream.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace brim::xml {

/// What becomes of `&`, `<`, `>`, `"`, `'` and CR.
enum class Markup {
    Encoded,  ///< an entity, a character reference
    Kept
};

/// What an inspector says of a text that begins with no plain character.
struct Passage {
    std::size_t passes;        ///< so many bytes may go out,
    std::size_t dropped;       ///< and so many behind them have
    std::string_view instead;  ///< this in their place
};

/// The inspector of texts that are taken as they are.
///
/// Others have `inspects` set, and two operations. They are called where a byte is no plain
/// character, that is beyond ASCII or below the blank and no tab, LF or CR.
///
///     std::size_t characterAt(const char* bytes, std::size_t length)
///         the length of the character at the front if it may go out, otherwise 0
///     Passage look(const char* bytes, std::size_t length)
///         what becomes of the front; the answer covers the first byte at least
struct NoInspector {
    static constexpr bool inspects = false;
};

constexpr std::size_t block = 16;
constexpr std::size_t longestEntity = 6;

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

alignas(64) inline constexpr std::array<ReplacementWord, 256> replacements = makeReplacements();

constexpr std::uint64_t everyByte(std::uint8_t byte) noexcept {
    return byte * 0x0101010101010101u;
}

/// Not 0 if a byte of `word` is 0.
constexpr std::uint64_t zeroBytes(std::uint64_t word) noexcept {
    return (word - everyByte(0x01)) & ~word & everyByte(0x80);
}

template <class Word>
Word load(const char* bytes) noexcept {
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

constexpr bool isPlain(char character) noexcept {
    const auto byte = static_cast<unsigned char>(character);
    return (byte >= ' ' && byte < 0x80) || byte == '\t' || byte == '\n' || byte == '\r';
}

/// A block, with a bit for each byte.
struct BlockMasks {
    unsigned replaced;
    unsigned odd;  ///< what is not plain
};

inline BlockMasks masksOf(const char* bytes) noexcept {
#if defined(__SSE2__) || defined(_M_X64)
    const __m128i text = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    // Some characters differ in one bit alone.
    const auto among = [&](char bit, char character) {
        return _mm_cmpeq_epi8(_mm_or_si128(text, _mm_set1_epi8(bit)), _mm_set1_epi8(character));
    };
    const auto bits = [](__m128i mask) { return static_cast<unsigned>(_mm_movemask_epi8(mask)); };
    const __m128i cr = among(0, '\r');
    const __m128i white = _mm_or_si128(_mm_or_si128(among(0, '\t'), among(0, '\n')), cr);
    const __m128i quotes = _mm_or_si128(among(1, '\''), among(0, '"'));
    // As signed numbers, bytes beyond ASCII are below the blank, too.
    const __m128i low = _mm_cmplt_epi8(text, _mm_set1_epi8(' '));
    return {bits(_mm_or_si128(_mm_or_si128(quotes, among(2, '>')), cr)),
            bits(_mm_andnot_si128(white, low))};
#else
    BlockMasks masks{0, 0};
    for (std::size_t i = 0; i < block; ++i) {
        if (!isPlain(bytes[i])) masks.odd |= 1U << i;
        if (!entityOf(static_cast<unsigned char>(bytes[i])).empty()) masks.replaced |= 1U << i;
    }
    return masks;
#endif
}

/// Finds bytes that pass unchanged. Of those that an inspector sees, all below the blank are told
/// from them here, for that is one comparison, and CR is among them.
template <Markup markup, bool inspects>
struct Sieve {
    /// Whether all of eight bytes pass. Four comparisons find the characters that are replaced:
    /// `&` and `'` differ in their lowest bit alone, `<` and `>` in the one above it.
    static constexpr bool isCleanWord(std::uint64_t word) noexcept {
        std::uint64_t hits = 0;
        if (markup == Markup::Encoded)
            hits = zeroBytes((word | everyByte(1)) ^ everyByte('\'')) |
                   zeroBytes((word | everyByte(2)) ^ everyByte('>')) |
                   zeroBytes(word ^ everyByte('"'));
        if (inspects)
            hits |= (word | (word - everyByte(' '))) & everyByte(0x80);
        else
            hits |= zeroBytes(word ^ everyByte('\r'));
        return hits == 0;
    }

    /// False if the block has nothing but bytes that pass. Otherwise `masks` tells of it.
    static bool hasHits(const char* bytes, BlockMasks& masks) noexcept {
#if defined(__SSE2__) || defined(_M_X64)
        const __m128i text = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
        const auto among = [&](char bit, char character) {
            return _mm_cmpeq_epi8(_mm_or_si128(text, _mm_set1_epi8(bit)), _mm_set1_epi8(character));
        };
        const __m128i low = inspects ? _mm_cmplt_epi8(text, _mm_set1_epi8(' ')) : among(0, '\r');
        __m128i hits = low;
        if (markup == Markup::Encoded)
            hits = _mm_or_si128(_mm_or_si128(hits, among(0, '"')),
                                _mm_or_si128(among(1, '\''), among(2, '>')));
        masks.replaced = static_cast<unsigned>(_mm_movemask_epi8(hits));
        masks.odd = 0;
        if (masks.replaced == 0) return false;
        if (inspects && _mm_movemask_epi8(low) != 0) masks = masksOf(bytes);
        return true;
#else
        if (isCleanWord(load<std::uint64_t>(bytes)) && isCleanWord(load<std::uint64_t>(bytes + 8)))
            return false;
        masks = masksOf(bytes);
        return true;
#endif
    }

    /// Whether fewer bytes than a block all pass. Words that overlap cover them.
    static bool isCleanRest(const char* bytes, std::size_t length) noexcept {
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
        constexpr std::uint64_t filled = everyByte(' ') << 24;
        return isCleanWord(filled | at(0) << 16 | at(length / 2) << 8 | at(length - 1));
    }
};

/// How many bytes the characters have that begin in a block, a block at least; 0 if something among
/// them is not to go out as it is.
template <class Inspector>
std::size_t wholeCharacters(unsigned odd, const char* bytes, std::size_t length,
                            Inspector& inspector) {
    std::size_t end = 0;
    while (odd != 0) {
        const auto position = static_cast<std::size_t>(std::countr_zero(odd));
        const std::size_t character = inspector.characterAt(bytes + position, length - position);
        if (character == 0) return 0;
        end = position + character;
        odd &= ~0U << end;
    }
    return std::max(end, block);
}

/// The front of a text.
struct Run {
    std::size_t clean;  ///< so many bytes pass, so far as whole blocks do,
    std::size_t step;   ///< and so many behind them are to be encoded. 0: they are to be inspected
    unsigned replaced;  ///< a bit for each of the first block of those that is replaced
};

template <Markup markup, class Inspector>
inline Run scan(const char* bytes, std::size_t length, Inspector& inspector) {
    std::size_t clean = 0;
    while (length - clean >= block) {
        BlockMasks masks;
        std::size_t step = block;
        if (Sieve<markup, Inspector::inspects>::hasHits(bytes + clean, masks)) {
            if constexpr (Inspector::inspects) {
                if (masks.odd != 0)
                    step = wholeCharacters(masks.odd, bytes + clean, length - clean, inspector);
            }
            if (step == 0 || (markup == Markup::Encoded && masks.replaced != 0))
                return {clean, step, masks.replaced};
        }
        clean += step;
    }
    return {clean, 0, 0};
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
        makeRoom(block * longestEntity);
        char* out = m_buffer + m_length;
        for (std::size_t i = 0; i < length; ++i) {
            const ReplacementWord word = replacements[static_cast<unsigned char>(bytes[i])];
            std::memcpy(out, &word, sizeof word);
            out += std::bit_cast<Replacement>(word).length;
        }
        m_length = static_cast<std::size_t>(out - m_buffer);
    }

    /// A block of which the bytes with a bit in `replaced` are. Behind it stands another.
    void addEncodedBlock(const char* bytes, unsigned replaced) {
        // What follows a replacement is stored in the size of a block again.
        makeRoom(block * longestEntity + block);
        char* out = m_buffer + m_length;
        std::memcpy(out, bytes, block);
        for (; replaced != 0; replaced &= replaced - 1) {
            const auto at = static_cast<std::size_t>(std::countr_zero(replaced));
            const ReplacementWord word = replacements[static_cast<unsigned char>(bytes[at])];
            const std::size_t length = std::bit_cast<Replacement>(word).length;
            std::memcpy(out + at, &word, sizeof word);
            std::memcpy(out + at + length, bytes + at + 1, block);
            out += length - 1;
        }
        m_length = static_cast<std::size_t>(out + block - m_buffer);
    }

    void drain() {
        if (m_length != 0) m_stream.write(m_buffer, m_length);
        m_length = 0;
    }

private:
    void makeRoom(std::size_t length) {
        if (sizeof m_buffer - m_length < length + sizeof(Replacement)) drain();
    }

    BRIMOutputStream& m_stream;
    std::size_t m_length = 0;
    char m_buffer[2048];
};

/// Writes a text as character data. What needs no change isn't even copied. When the inspector
/// throws, what stands before the place may be missing from the stream.
template <Markup markup, class Inspector>
void transfer(BRIMOutputStream& stream, const char* bytes, std::size_t length,
              Inspector& inspector) {
    Joiner joiner(stream);
    const auto advance = [&](std::size_t count) {
        bytes += count;
        length -= count;
    };
    for (bool isFirst = true;; isFirst = false) {
        const Run run = scan<markup>(bytes, length, inspector);
        if (isFirst && length - run.clean < block &&
            Sieve<markup, Inspector::inspects>::isCleanRest(bytes + run.clean,
                                                            length - run.clean)) {
            if (length != 0) stream.write(bytes, length);
            return;
        }
        joiner.addClean(bytes, run.clean);
        advance(run.clean);
        if (length == 0) break;
        if (run.step != 0 && length >= 2 * block) {
            joiner.addEncodedBlock(bytes, run.replaced);
            // The end of a character.
            if (run.step != block) joiner.addClean(bytes + block, run.step - block);
            advance(run.step);
            continue;
        }
        const char* const end = bytes + std::min(length, block);
        const char* plain = end;
        if constexpr (Inspector::inspects) plain = std::find_if_not(bytes, end, isPlain);
        const auto count = static_cast<std::size_t>(plain - bytes);
        if (markup == Markup::Encoded)
            joiner.addEncoded(bytes, count);
        else
            joiner.addClean(bytes, count);
        advance(count);
        if constexpr (Inspector::inspects) {
            if (plain == end) continue;
            const Passage passage = inspector.look(bytes, length);
            joiner.addClean(bytes, passage.passes);
            if (!passage.instead.empty())
                joiner.addClean(passage.instead.data(), passage.instead.size());
            advance(passage.passes + passage.dropped);
        }
    }
    joiner.drain();
}

}  // namespace brim::xml
