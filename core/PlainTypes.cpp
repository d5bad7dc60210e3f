#include "core/PlainTypes.h"

#include <zel/ZELUtCrc32.h>

#include <cstdint>
#include <cstring>

namespace korva {

namespace {

constexpr std::size_t prefixLength = sizeof "xs:" - 1;

/// In the order of ObjectType.
constexpr const char* texts[] = {"_unknown",        "xs:string", "xs:int",      "xs:integer",
                                 "xs:decimal",      "xs:time",   "xs:dateTime", "xs:boolean",
                                 "xs:base64Binary", "xs:float",  "xs:QName"};
constexpr int textCount = sizeof texts / sizeof *texts;

}  // namespace

const char* plainTypeText(KORVASchemaTypeI::ObjectType type) {
    return type >= KORVASchemaTypeI::e_Unknown && type < textCount ? texts[type] : nullptr;
}

KORVASchemaTypeI::ObjectType plainTypeOf(const char* localName) {
    const std::uint32_t crc = ZELUtCrc32::crc32(localName, 0);
    for (int type = KORVASchemaTypeI::eString; type <= KORVASchemaTypeI::eQName; ++type)
        if (ZELUtCrc32::crc32(texts[type] + prefixLength, 0) == crc)
            return static_cast<KORVASchemaTypeI::ObjectType>(type);
    return KORVASchemaTypeI::e_Unknown;
}

}  // namespace korva
