#include "tarn/tarnsymbols1.h"

#include "words/SymbolTable.h"

#include <functional>

const char* tarnsymbols1::getChar(std::uint32_t crc) {
    const std::size_t position = types::findIndexed<tarn::symbolIndexBits>(
        tarn::symbolIndex, crc, [](std::size_t i) { return tarn::symbolCrcs[i]; });
    return position != types::notFound ? tarn::symbolTexts + tarn::symbolOffsets[position]
                                       : nullptr;
}

bool tarnsymbols1::findCrc(const char* text, std::uint32_t& crc) {
    const std::less<const char*> before;
    // The first text stands behind its CRC and its mark.
    if (before(text, tarn::symbolTexts + 5) ||
        !before(text, tarn::symbolTexts + tarn::symbolTextsSize))
        return false;
    const auto byte = [text](int i) { return static_cast<unsigned char>(text[i]); };
    if (byte(-1) != tarn::symbolMark) return false;
    crc = static_cast<std::uint32_t>(byte(-5)) | static_cast<std::uint32_t>(byte(-4)) << 8U |
          static_cast<std::uint32_t>(byte(-3)) << 16U | static_cast<std::uint32_t>(byte(-2)) << 24U;
    return true;
}
