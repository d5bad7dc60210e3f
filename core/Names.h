/// From child names to the numbers that the tables are keyed by.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <cstdint>
#include <string>

namespace korva {

/// The CRC-32 of a name. A pointer that came from the word table is not read.
std::uint32_t nameCrc(const char* name);

/// The text of the word with this CRC, or an empty text.
const char* word(std::uint32_t crc);

/// The bare XML name of a generated or hand-written type, or an empty text.
const char* xmlName(KORVASchemaTypeI::ObjectType type);

/// The class name of a generated or hand-written type, "KORVASchedule". For messages of failures.
std::string className(KORVASchemaTypeI::ObjectType type);

}  // namespace korva
