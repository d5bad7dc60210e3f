#include "core/Names.h"

#include "core/Descriptor.h"

#include <i18n/KORVAI18NRes.h>
#include <tarn/tarnsymbols1.h>
#include <zel/ZELUtCrc32.h>

#include <cstring>

namespace korva {

std::uint32_t nameCrc(const char* name) {
    std::uint32_t crc = 0;
    if (tarnsymbols1::findCrc(name, crc)) return crc;
    return ZELUtCrc32::crc32(name, std::strlen(name), 0);
}

const char* word(std::uint32_t crc) {
    const char* const text = tarnsymbols1::getChar(crc);
    return text != nullptr ? text : "";
}

const char* xmlName(ObjectType type) {
    if (const HandWrittenType* const row = findHandWrittenType(type)) return row->xmlName;
    const TypeDescriptor* const row = findType(type);
    return row != nullptr ? row->xsiName + KORVAI18NRes::busPrefix().size() : "";
}

std::string className(ObjectType type) {
    std::string name = "KORVA";
    name += xmlName(type);
    constexpr std::size_t first = sizeof "KORVA" - 1;
    if (name.size() > first && name[first] >= 'a' && name[first] <= 'z')
        name[first] = static_cast<char>(name[first] - 'a' + 'A');
    return name;
}

}  // namespace korva
