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

Record* ClassDescriptor::recordOf(const KORVASchemaTypeI& object) {
    return static_cast<const KORVA_ClassObject&>(object).m_pPrivateData;
}

const TypeDescriptor* findType(ObjectType type) {
    if (const HandWrittenType* const row = findHandWrittenType(type)) return &row->type;
    const TypeDescriptor* const rows = typeTables.types;
    const std::size_t position = types::findIndexed<typeIndexBits>(
        typeTables.typeIndex, static_cast<std::uint32_t>(type),
        [rows](std::size_t i) { return static_cast<std::uint32_t>(rows[i].identity); });
    return position != types::notFound ? rows + position : nullptr;
}

}  // namespace korva
