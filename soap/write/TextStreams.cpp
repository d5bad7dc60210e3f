#include "soap/write/TextStreams.h"

#include "soap/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace korva {

namespace {

using brim::xml::Passage;

struct Sequence {
    enum Kind : std::uint8_t {
        Character,
        NoCharacter,  ///< well-formed, but XML has no such character
        Malformed,
        Cut  ///< may become a character with what follows
    };

    Kind kind;
    std::size_t length;
};

/// What stands at the front of a text that is not empty.
Sequence sequenceAt(const unsigned char* at, const unsigned char* end) {
    const unsigned lead = *at;
    if (lead < 0x80) return {lead < 0x20 ? Sequence::NoCharacter : Sequence::Character, 1};
    const auto [length, low, high] = utf8FormOf(*at);
    if (length == 0) return {Sequence::Malformed, 1};
    const std::size_t present = std::min(length, static_cast<std::size_t>(end - at));
    if (present > 1) {
        if (at[1] < low || at[1] > high) return {Sequence::Malformed, 1};
        for (std::size_t i = 2; i < present; ++i)
            if ((at[i] & 0xC0U) != 0x80U) return {Sequence::Malformed, 1};
    }
    if (present < length) return {Sequence::Cut, present};
    const bool isLastOfPlane = lead == 0xEF && at[1] == 0xBF && at[2] >= 0xBE;
    return {isLastOfPlane ? Sequence::NoCharacter : Sequence::Character, length};
}

/// The code of a NoCharacter.
unsigned codeOf(const unsigned char* at, std::size_t length) {
    return length == 1 ? *at : 0xFFC0U + (at[2] & 0x3FU);
}

const unsigned char* asBytes(const char* text) {
    return reinterpret_cast<const unsigned char*>(text);
}

}  // namespace

std::size_t TextInspector::characterAt(const char* bytes, std::size_t length) const {
    const unsigned char* const at = asBytes(bytes);
    // Most are of two bytes in one half of the world, of three in the other.
    if (length > 1 && at[0] >= 0xC2 && at[0] < 0xE0) return (at[1] & 0xC0U) == 0x80U ? 2 : 0;
    if (length > 2 && at[0] > 0xE0 && at[0] < 0xED)
        return (at[1] & 0xC0U) == 0x80U && (at[2] & 0xC0U) == 0x80U ? 3 : 0;
    const Sequence sequence = sequenceAt(at, at + length);
    return sequence.kind == Sequence::Character ? sequence.length : 0;
}

Passage TextInspector::look(const char* bytes, std::size_t length) {
    const unsigned char* at = asBytes(bytes);
    const unsigned char* const end = at + length;
    Passage passage{0, 0, {}};
    while (at != end && *at >= 0x80) {
        const Sequence sequence = sequenceAt(at, end);
        if (sequence.kind == Sequence::Character) {
            at += sequence.length;
            passage.passes += sequence.length;
            continue;
        }
        passage.dropped = sequence.length;
        if (sequence.kind == Sequence::NoCharacter) {
            passage.instead = m_invalid.replaceCharacter(codeOf(at, sequence.length));
        } else if (sequence.kind == Sequence::Malformed) {
            passage.instead = m_invalid.replaceByte(*at);
        } else {
            std::memcpy(m_cut, at, sequence.length);
            m_cutLength = sequence.length;
        }
        return passage;
    }
    if (passage.passes == 0) {
        passage.dropped = 1;
        passage.instead = m_invalid.replaceCharacter(*at);
    }
    return passage;
}

std::size_t TextInspector::completeCut(BRIMOutputStream& stream, const char* bytes,
                                       std::size_t length) {
    std::size_t taken = 0;
    while (taken != length) {
        m_cut[m_cutLength] = bytes[taken];
        const unsigned char* const cut = asBytes(m_cut);
        const Sequence sequence = sequenceAt(cut, cut + m_cutLength + 1);
        if (sequence.kind == Sequence::Malformed) {
            endCut(stream);
            return taken;
        }
        ++m_cutLength;
        ++taken;
        if (sequence.kind == Sequence::Cut) continue;
        std::string_view text(m_cut, m_cutLength);
        if (sequence.kind == Sequence::NoCharacter)
            text = m_invalid.replaceCharacter(codeOf(cut, m_cutLength));
        m_cutLength = 0;
        stream.write(text.data(), text.size());
        break;
    }
    return taken;
}

void TextInspector::endCut(BRIMOutputStream& stream) {
    const std::size_t length = m_cutLength;
    m_cutLength = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const std::string_view text = m_invalid.replaceByte(*asBytes(m_cut + i));
        stream.write(text.data(), text.size());
    }
}

}  // namespace korva
