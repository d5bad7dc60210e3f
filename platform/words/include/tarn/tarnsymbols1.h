/// The schema's word table: from the CRC-32 of a word to its text.
#pragma once

#include <tarn/TARNSymbolsExport.h>

#include <cstdint>

/// Every name and word of the bus's schema, by its CRC-32 (zlib's polynomial, seed 0). The table is
/// constant; any number of threads may use it at once.
class TARNSYMBOLS_EXPORT tarnsymbols1 {
public:
    /// The text of the word with this CRC; null when the schema has none. The same pointer comes
    /// back for the life of the process.
    static const char* getChar(std::uint32_t crc);

    /// Reads the CRC of a pointer that getChar gave, without looking at the text.
    /// @return false when `text` is not such a pointer; `crc` is then left alone
    static bool findCrc(const char* text, std::uint32_t& crc);
};
