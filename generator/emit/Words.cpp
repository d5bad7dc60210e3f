#include "generator/emit/Emit.h"
#include "generator/emit/Printer.h"
#include "generator/emit/Text.h"

#include <vector>

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr unsigned kIndexBits = 12;
constexpr std::size_t kBeforeText = 5;  // the CRC and the mark

std::string crcBytes(std::int32_t identity) {
    constexpr std::string_view digits = "0123456789abcdef";
    auto rest = static_cast<std::uint32_t>(identity);
    std::string out;
    for (int i = 0; i < 4; ++i, rest >>= 8) {
        out.append("\\x");
        out.push_back(digits[(rest >> 4) & 0xF]);
        out.push_back(digits[rest & 0xF]);
    }
    return out;
}

std::string withEnd(std::string_view text) {
    std::string out = literal(text);
    out.insert(out.size() - 1, "\\0");
    return out;
}

}  // namespace

void emitWords(const Schema& schema, Files& files) {
    std::vector<std::string> crcs;
    std::vector<std::string> offsets;
    std::vector<std::int32_t> identities;
    std::size_t size = 0;
    Printer texts;
    for (const TableWord& word : schema.words) {
        crcs.push_back(hex(word.identity) + ",");
        offsets.push_back(decimal(static_cast<std::int64_t>(size + kBeforeText)) + ",");
        identities.push_back(word.identity);
        size += kBeforeText + word.text.size() + 1;
        texts.print("\"$crc$\\xff\" $text$\n",
                    {{"crc", crcBytes(word.identity)}, {"text", withEnd(word.text)}});
    }

    Printer printer;
    printer.print(R"(
$made$
$internal$

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Woverlength-strings"
#endif

namespace tarn {

static_assert(symbolIndexBits == $bits$ && symbolMark == 0xFF, "run korva-schemac again");

// The CRC of a text, the mark, the text and its end.
constinit const char symbolTexts[] =
    $texts$
    ;

constinit const std::size_t symbolTextsSize = sizeof symbolTexts - 1;

constinit const std::uint32_t symbolCrcs[] = {
    $crcs$
};

constinit const std::uint32_t symbolOffsets[] = {
    $offsets$
};

constinit const std::size_t symbolCount = $count$;

constinit const std::uint16_t symbolIndex[] = {
    $index$
};

} // namespace tarn
)",
                  {{"made", madeFrom(schema.files.front())},
                   {"internal", internalIncludes({"tarn/SymbolTable.h"})},
                   {"bits", decimal(kIndexBits)},
                   {"texts", texts.text()},
                   {"crcs", filled(crcs, 4)},
                   {"offsets", filled(offsets, 4)},
                   {"count", decimal(static_cast<std::int64_t>(schema.words.size()))},
                   {"index", topBitsIndex(identities, kIndexBits)}});
    files.add("tarn/tarnsymbols1_gen_.cpp", printer.take());
}

}  // namespace korva::schemac::emit
