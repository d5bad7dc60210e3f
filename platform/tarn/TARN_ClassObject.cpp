#include "tarn/TARN_ClassObject.h"

#include "tarn/HandWrittenTypes.h"
#include "tarn/Slot.h"
#include "tarn/TypeErrors.h"
#include "tarn/TypeTable.h"

#include <tarn/TARNSOAPFault.h>
#include <tarn/TARNSchemaTypesFactory.h>
#include <tarn/TARNUndocumentedFaultDetail.h>
#include <tarn/TARN_ArrayObject.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstring>
#include <memory>
#include <new>

using tarn::FieldKind;
using tarn::FieldRow;
using tarn::Slot;
using tarn::TypeRow;
using Factory = TARNSchemaTypesFactory;

// An object, its slots and its arrays stand in this order in one block.
static_assert(sizeof(TARN_ClassObject) % alignof(Slot) == 0);
static_assert(sizeof(Slot) % alignof(TARN_ArrayObject) == 0);
static_assert(sizeof(TARNSOAPFault) == sizeof(TARN_ClassObject));
static_assert(sizeof(TARNUndocumentedFaultDetail) == sizeof(TARN_ClassObject));

namespace {

struct Deallocate {
    void operator()(void* p) const noexcept { ::operator delete(p); }
};

}  // namespace

TARNSchemaTypeI* TARN_ClassObject::create(const TypeRow& type) {
    const std::size_t size = sizeof(TARN_ClassObject) + type.slotCount * sizeof(Slot) +
                             type.arrayCount * sizeof(TARN_ArrayObject);
    std::unique_ptr<void, Deallocate> block(::operator new(size));
    TARN_ClassObject* object = nullptr;
    if (type.identity == eTARNSOAPFault)
        object = ::new (block.get()) TARNSOAPFault(type);
    else if (type.identity == eTARNUndocumentedFaultDetail)
        object = ::new (block.get()) TARNUndocumentedFaultDetail(type);
    else
        object = ::new (block.get()) TARN_ClassObject(type);
    static_cast<void>(block.release());
    return object;
}

TARN_ClassObject::TARN_ClassObject(const TypeRow& type) : m_type(type) {
    std::memset(static_cast<void*>(this + 1), 0, type.slotCount * sizeof(Slot));
    if (type.arrayCount == 0) return;
    for (const TypeRow* level = &type; level != nullptr; level = tarn::baseOf(*level)) {
        const FieldRow* const fields = tarn::fieldsOf(*level);
        for (std::size_t i = 0; i < level->fieldCount; ++i) {
            if (fields[i].kind != FieldKind::EmbeddedArray) continue;
            const TypeRow* const array = tarn::findType(static_cast<ObjectType>(fields[i].type));
            ::new (static_cast<void*>(arrays() + fields[i].place)) TARN_ArrayObject(*array);
        }
    }
}

TARN_ClassObject::~TARN_ClassObject() {
    std::destroy_n(arrays(), m_type.arrayCount);
    if (!tarn::isHandWritten(m_type)) return;
    const FieldRow* const fields = tarn::fieldsOf(m_type);
    for (std::size_t i = 0; i < m_type.fieldCount; ++i)
        if (tarn::isArrayPointer(fields[i].kind))
            delete static_cast<TARNSchemaTypeI*>((&slot(fields[i]))[1].pointer);
}

void TARN_ClassObject::operator delete(void* p) noexcept {
    ::operator delete(p);
}

Slot& TARN_ClassObject::slot(const FieldRow& field) const {
    // The block belongs to an object that is not const, whatever the reference says.
    auto* const slots = reinterpret_cast<Slot*>(const_cast<TARN_ClassObject*>(this) + 1);
    return slots[field.place];
}

TARN_ArrayObject* TARN_ClassObject::arrays() const {
    auto* const slots = reinterpret_cast<Slot*>(const_cast<TARN_ClassObject*>(this) + 1);
    return reinterpret_cast<TARN_ArrayObject*>(slots + m_type.slotCount);
}

void* TARN_ClassObject::read(const FieldRow& field) const {
    if (field.kind == FieldKind::EmbeddedArray) return arrays() + field.place;
    Slot& own = slot(field);
    if (!types::isValue(field.kind)) return own.pointer;
    return own.value.isPresent ? own.value.place() : nullptr;
}

void* TARN_ClassObject::write(const FieldRow& field) {
    Slot& own = slot(field);
    if (types::isValue(field.kind)) {
        own.value.isPresent = true;
    } else if (tarn::isArrayPointer(field.kind) && own.pointer == nullptr) {
        // What the object made itself stands in the slot behind; it may have been set aside.
        Slot& made = (&own)[1];
        if (made.pointer == nullptr)
            made.pointer = Factory::getInstance().create(static_cast<ObjectType>(field.type));
        own.pointer = made.pointer;
    }
    return read(field);
}

TARNSchemaTypeI::ObjectType TARN_ClassObject::getObjectType() const {
    return static_cast<ObjectType>(m_type.identity);
}

std::size_t TARN_ClassObject::setChildObject(const char* name, void* value, const ObjectType& type,
                                             std::size_t*) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    ZEL_ASSERT(value != NULL);
    const FieldRow* const field = tarn::findField(m_type, name);
    if (field == nullptr) return 0;

    const auto declared = static_cast<ObjectType>(field->type);
    bool fits = false;
    switch (field->kind) {
        case FieldKind::Object:
        case FieldKind::OptionalArray:
        case FieldKind::UnlistedArray:
            fits = Factory::isGeneratedType(type) &&
                   static_cast<TARNSchemaTypeI*>(value)->isa(declared);
            if (fits) slot(*field).pointer = value;
            break;
        case FieldKind::Text:
            fits = Factory::isString(type);
            if (fits) slot(*field).pointer = tarn::textOf(value, type);
            break;
        case FieldKind::Binary:
            fits = type == eBase64Binary;
            if (fits) slot(*field).pointer = value;
            break;
        case FieldKind::EmbeddedArray: tarn::arrayCannotBeSet(m_type, name);
        default: fits = tarn::readValue(value, type, slot(*field), declared);
    }
    if (!fits) tarn::childDoesNotFit(m_type, name, declared, type);
    return 0;
}

void* TARN_ClassObject::getChildObject(const char* name, bool forWrite) {
    ZEL_ASSERT(name);
    const FieldRow* const field = tarn::findField(m_type, name);
    if (field == nullptr) return nullptr;
    return forWrite ? write(*field) : read(*field);
}

void* TARN_ClassObject::child(const char* name) const {
    const FieldRow* const field = tarn::findField(m_type, name);
    return field != nullptr ? read(*field) : nullptr;
}

TARNSchemaTypeI::ObjectType TARN_ClassObject::getChildType(const char* name) const {
    ZEL_ASSERT(name);
    const FieldRow* const field = tarn::findField(m_type, name);
    return field != nullptr ? static_cast<ObjectType>(field->type) : e_Unknown;
}

void TARN_ClassObject::appendNames(const TypeRow& level, std::vector<const char*>& names,
                                   bool includeNull) const {
    if (const TypeRow* const base = tarn::baseOf(level)) appendNames(*base, names, includeNull);
    const FieldRow* const fields = tarn::fieldsOf(level);
    for (std::size_t i = 0; i < level.fieldCount; ++i) {
        if (fields[i].kind == FieldKind::UnlistedArray) continue;
        if (includeNull || read(fields[i]) != nullptr) names.push_back(tarn::nameOf(fields[i]));
    }
}

void TARN_ClassObject::getChildObjectNames(std::vector<const char*>& names,
                                           bool includeNull) const {
    ZEL_TRY {
        if (includeNull) names.reserve(names.size() + getChildObjectCount());
        appendNames(m_type, names, includeNull);
    }
    ZEL_CATCH(nullptr);
}

bool TARN_ClassObject::isa(ObjectType type) const {
    return tarn::isa(m_type, type);
}

std::size_t TARN_ClassObject::getChildObjectCount() const {
    std::size_t count = std::size_t{m_type.inheritedCount} + m_type.fieldCount;
    if (tarn::isHandWritten(m_type)) {
        const FieldRow* const fields = tarn::fieldsOf(m_type);
        for (std::size_t i = 0; i < m_type.fieldCount; ++i)
            if (fields[i].kind == FieldKind::UnlistedArray) --count;
    }
    return count;
}
