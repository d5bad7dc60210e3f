/// The rows of the word table, as the generated code defines them.
#pragma once

#include "types/Lookup.h"
#include "words/TableVersion.h"

#include <cstddef>
#include <cstdint>

namespace tarn {

/// How many of a CRC's top bits `symbolIndex` is indexed by.
inline constexpr unsigned symbolIndexBits = types::wordIndexBits;

/// What stands before each text. No text of the schema contains this byte, so a pointer behind it
/// is the start of a text.
inline constexpr unsigned char symbolMark = 0xFF;

extern const char symbolTexts[];  ///< CRC (little endian), mark, text, NUL; repeated
extern const std::size_t symbolTextsSize;
extern const std::uint32_t symbolCrcs[];     ///< ascending
extern const std::uint32_t symbolOffsets[];  ///< of the texts in `symbolTexts`
extern const std::size_t symbolCount;
/// The first position for each value of the CRC's top bits, and the end.
extern const std::uint16_t symbolIndex[types::indexSize(symbolIndexBits)];

}  // namespace tarn
