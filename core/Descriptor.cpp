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
    for (std::uint32_t i = crc;; ++i) {
        const std::uint16_t entry = hashes[i & hashMask];
        if (entry == 0) return nullptr;
        const FieldDescriptor& field = fields[entry - 1];
        if (field.crc == crc) return &field;
    }
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
