#include "core/Descriptor.h"

#include <korva/KORVA_ClassObject.h>
#include <zel/ZELFrame.h>

#include <new>

namespace korva {

void* Record::operator new(std::size_t size) {
    ZEL_TRY {
        return ::operator new(size);
    }
    ZEL_CATCH(nullptr);
}

void Record::operator delete(void* p) noexcept {
    ::operator delete(p);
}

const FieldDescriptor* ClassDescriptor::find(std::uint32_t crc) const {
    std::size_t first = 0;
    std::size_t count = fieldCount;
    while (count != 0) {
        const std::size_t half = count / 2;
        const FieldDescriptor& field = fields[fieldsByCrc[first + half]];
        if (field.crc == crc) return &field;
        if (field.crc < crc) {
            first += half + 1;
            count -= half + 1;
        } else {
            count = half;
        }
    }
    return nullptr;
}

Record* ClassDescriptor::recordOf(const KORVASchemaTypeI& object) {
    return static_cast<const KORVA_ClassObject&>(object).m_pPrivateData;
}

const TypeDescriptor* findType(ObjectType type) {
    if (const HandWrittenType* const row = findHandWrittenType(type)) return &row->type;
    const auto crc = static_cast<std::uint32_t>(type);
    const std::uint32_t bucket = crc >> (32U - typeIndexBits);
    const TypeDescriptor* row = typeTables.types + typeTables.typeIndex[bucket];
    const TypeDescriptor* const end = typeTables.types + typeTables.typeIndex[bucket + 1];
    for (; row != end; ++row)
        if (row->identity == type) return row;
    return nullptr;
}

}  // namespace korva
