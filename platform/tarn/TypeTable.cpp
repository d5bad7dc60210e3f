#include "tarn/TypeTable.h"

#include "tarn/HandWrittenTypes.h"

#include <tarn/tarnsymbols1.h>
#include <zel/ZELUtCrc32.h>

namespace tarn {

namespace {

/// The own field of a type with this CRC, or null.
const FieldRow* findOwnField(const TypeRow& type, std::uint32_t crc) {
    const FieldRow* const own = fieldsOf(type);
    if (isHandWritten(type)) {
        for (std::size_t i = 0; i < type.fieldCount; ++i)
            if (own[i].crc == crc) return own + i;
        return nullptr;
    }
    return types::findHashed(own, hashes + type.firstHash, type.hashMask, crc);
}

}  // namespace

const TypeRow* findType(ObjectType type) {
    const std::size_t position = types::findIndexed<typeIndexBits>(
        typeIndex, static_cast<std::uint32_t>(type),
        [](std::size_t i) { return static_cast<std::uint32_t>(types[i].identity); });
    return position != types::notFound ? types + position : findHandWrittenType(type);
}

const TypeRow* baseOf(const TypeRow& type) {
    return type.base != noBase ? types + type.base : nullptr;
}

const char* xsiName(const TypeRow& type) {
    return isHandWritten(type) ? handWrittenName(type) : typeNames + type.name;
}

const FieldRow* fieldsOf(const TypeRow& type) {
    return isHandWritten(type) ? handWrittenFields(type) : fields + type.firstField;
}

const FieldRow* findField(const TypeRow& type, const char* name) {
    std::uint32_t crc = 0;
    if (!tarnsymbols1::findCrc(name, crc)) crc = ZELUtCrc32::crc32(name, 0);
    for (const TypeRow* level = &type; level != nullptr; level = baseOf(*level))
        if (const FieldRow* const field = findOwnField(*level, crc)) return field;
    return nullptr;
}

const char* nameOf(const FieldRow& field) {
    const char* const word = tarnsymbols1::getChar(field.crc);
    return word != nullptr ? word : handWrittenFieldName(field.crc);
}

bool isa(const TypeRow& type, ObjectType identity) {
    for (const TypeRow* level = &type; level != nullptr; level = baseOf(*level))
        if (level->identity == identity) return true;
    return false;
}

}  // namespace tarn
