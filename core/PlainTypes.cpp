#include "core/PlainTypes.h"

#include <zel/ZELUtCrc32.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace korva {

namespace {

constexpr std::size_t prefixLength = sizeof "xs:" - 1;

/// In the order of ObjectType.
constexpr const char* texts[] = {"_unknown",        "xs:string", "xs:int",      "xs:integer",
                                 "xs:decimal",      "xs:time",   "xs:dateTime", "xs:boolean",
                                 "xs:base64Binary", "xs:float",  "xs:QName"};
constexpr int textCount = sizeof texts / sizeof *texts;

/// The CRC-32 of each without its prefix.
constexpr auto crcs = [] {
    std::array<std::uint32_t, textCount> result{};
    for (int type = KORVASchemaTypeI::eString; type != textCount; ++type)
        result[static_cast<std::size_t>(type)] =
            ZELUtCrc32::crc32(std::string_view(texts[type]).substr(prefixLength));
    return result;
}();

}  // namespace

const char* plainTypeText(KORVASchemaTypeI::ObjectType type) {
    return type >= KORVASchemaTypeI::e_Unknown && type < textCount ? texts[type] : nullptr;
}

KORVASchemaTypeI::ObjectType plainTypeOf(const char* localName) {
    const std::uint32_t crc = ZELUtCrc32::crc32(localName, 0);
    for (int type = KORVASchemaTypeI::eString; type != textCount; ++type)
        if (crcs[static_cast<std::size_t>(type)] == crc)
            return static_cast<KORVASchemaTypeI::ObjectType>(type);
    return KORVASchemaTypeI::e_Unknown;
}

}  // namespace korva
