#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

#include <vector>

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr std::size_t kRowIndent = 4;
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

void printTexts(Printer& printer, const Schema& schema) {
    printer.print(R"(
// The CRC of a text, the mark, the text and its end.
constinit const char symbolTexts[] =
)");
    for (const TableWord& word : schema.words) {
        printer.print("    \"$crc$\\xff\" $text$\n",
                      {{"crc", crcBytes(word.identity)}, {"text", withEnd(word.text)}});
    }
    printer.print(
        "    ;\n\nconstinit const std::size_t symbolTextsSize = sizeof symbolTexts - 1;\n\n");
}

void printCrcs(Printer& printer, const Schema& schema) {
    std::vector<std::string> crcs;
    for (const TableWord& word : schema.words)
        crcs.push_back(hex(word.identity) + ",");
    const TableScope table(printer, "constinit const std::uint32_t symbolCrcs");
    printer.print("    $crcs$\n", {{"crcs", filled(crcs, kRowIndent)}});
}

void printOffsets(Printer& printer, const Schema& schema) {
    std::vector<std::size_t> offsets;
    std::size_t size = 0;
    for (const TableWord& word : schema.words) {
        offsets.push_back(size + kBeforeText);
        size += kBeforeText + word.text.size() + 1;
    }
    const TableScope table(printer, "constinit const std::uint32_t symbolOffsets");
    printer.print("    $offsets$\n", {{"offsets", numbers(offsets, kRowIndent)}});
}

}  // namespace

void emitWords(const Schema& schema, Files& files) {
    UnitFrame unit(files, "words/tarnsymbols1_gen_.cpp", schema.files.front(),
                   {"words/SymbolTable.h"}, tarnCheck);
    Printer& printer = unit.content();
    printer.print(R"(

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Woverlength-strings"
#endif

)");
    const NamespaceScope scope(printer, "tarn");
    printer.print(R"(

static_assert(symbolIndexBits == $bits$ && symbolMark == 0xFF, "run korva-schemac again");

)",
                  {{"bits", std::to_string(schema.wordIndex.bits)}});
    printTexts(printer, schema);
    printCrcs(printer, schema);
    printer.blankLine();
    printOffsets(printer, schema);
    printer.print("\n\nconstinit const std::size_t symbolCount = $count$;\n\n",
                  {{"count", std::to_string(schema.words.size())}});
    {
        const TableScope table(printer, "constinit const std::uint16_t symbolIndex");
        printer.print("    $index$\n", {{"index", numbers(schema.wordIndex.starts, kRowIndent)}});
    }
    printer.blankLine();
}

}  // namespace korva::schemac::emit
