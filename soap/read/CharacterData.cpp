#include "soap/read/CharacterData.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace korva {

namespace {

/// What a byte may be in a text.
enum class Byte : unsigned char {
    Plain,
    LineEnd,
    Ampersand,
    Bracket,       ///< may start "]]>", which may not stand in a text
    Noncharacter,  ///< may start U+FFFE or U+FFFF, which XML lacks
    Other
};

constexpr std::array<Byte, 256> kinds = [] {
    std::array<Byte, 256> all{};
    for (std::size_t i = 0; i != ' '; ++i)
        all[i] = Byte::Other;
    all['\t'] = Byte::Plain;
    all['\n'] = Byte::LineEnd;
    all['<'] = Byte::Other;
    all['&'] = Byte::Ampersand;
    all[']'] = Byte::Bracket;
    all[0xEF] = Byte::Noncharacter;
    return all;
}();

struct Reference {
    std::string_view text;
    std::string_view character;
};

constexpr std::array<Reference, 5> references{
    {{"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}}};

/// Where the plain text at `from` ends. Line ends are counted.
std::size_t endOfPlain(std::string_view text, std::size_t from, DocumentPosition& position) {
    std::size_t lineStart = from;
    std::size_t i = from;
    for (; i != text.size(); ++i) {
        const auto next = [&](std::size_t k) {
            return i + k < text.size() ? static_cast<unsigned char>(text[i + k]) : 0;
        };
        const Byte kind = kinds[next(0)];
        if (kind == Byte::Plain) continue;
        if (kind == Byte::LineEnd) {
            ++position.line;
            position.column = 1;
            lineStart = i + 1;
            continue;
        }
        if (kind == Byte::Bracket && next(1) != ']' && next(1) != 0) continue;
        if (kind == Byte::Noncharacter && !(next(1) == 0xBF && next(2) >= 0xBE)) continue;
        break;
    }
    position.column += i - lineStart;
    return i;
}

}  // namespace

std::size_t tellCharacterData(std::string_view bytes, ReadGuard& guard,
                              DocumentPosition& position) {
    std::size_t end = 0;
    for (;;) {
        const std::size_t start = end;
        end = endOfPlain(bytes, start, position);
        if (end != start) guard.text(bytes.substr(start, end - start));
        const std::string_view rest = bytes.substr(end);
        const auto* const reference =
            std::find_if(references.begin(), references.end(),
                         [rest](const Reference& one) { return rest.starts_with(one.text); });
        if (reference == references.end()) return end;
        guard.text(reference->character);
        end += reference->text.size();
        position.column += reference->text.size();
    }
}

}  // namespace korva
