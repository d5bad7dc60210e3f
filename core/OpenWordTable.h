/// The words that programs added to open enumerations.
#pragma once

#include "core/Descriptor.h"

#include <cstdint>

namespace korva {

/// An added word. It lives as long as the process.
struct OpenWord {
    const EnumDescriptor* enumeration;
    std::uint32_t crc;
    const char* text;
    const OpenWord* next;
};

/// The word with this CRC that was added to the enumeration, or null. Any thread may call this.
const OpenWord* findOpenWord(const EnumDescriptor& enumeration, std::uint32_t crc);

}  // namespace korva
