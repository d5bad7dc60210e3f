/// Reading and writing the fields of a record by their descriptors.
#pragma once

#include "core/Descriptor.h"
#include "types/Numbers.h"
#include "types/PlainTypes.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace korva {

/// A field, and the level of the hierarchy that declares it.
struct FieldOfLevel {
    const ClassDescriptor* level;
    const FieldDescriptor* field;  ///< null when no level knows the name
};

/// Looks the name up from the most derived class to the root.
inline FieldOfLevel findField(const ClassDescriptor& descriptor, std::uint32_t crc) {
    for (const ClassDescriptor* level = &descriptor; level != nullptr; level = level->base)
        if (const FieldDescriptor* const field = level->find(crc)) return {level, field};
    return {nullptr, nullptr};
}

inline void* at(const Record& record, std::uint16_t offset) {
    // The record belongs to an object that is not const, whatever the reference says.
    return const_cast<char*>(reinterpret_cast<const char*>(&record)) + offset;
}

// Fields of many pointer types are moved as bytes, so that no type is read as another.

template <class Value>
Value load(const Record& record, std::uint16_t offset) {
    Value value;
    std::memcpy(&value, at(record, offset), sizeof value);
    return value;
}

template <class Value>
void store(const Record& record, std::uint16_t offset, Value value) {
    std::memcpy(at(record, offset), &value, sizeof value);
}

/// What getChildObject gives for a field.
inline void* readField(const Record& record, const FieldDescriptor& field, bool forWrite) {
    if (types::isPointer(field.kind)) return load<void*>(record, field.offset);
    if (types::isValue(field.kind)) {
        if (forWrite)
            store(record, field.flagOffset, false);
        else if (load<bool>(record, field.flagOffset))
            return nullptr;
    }
    return at(record, field.offset);
}

/// Reads the value of the plain type `type` that `obj` points at. Numbers are converted; out of
/// range they saturate.
/// @return false when `type` is no number and no boolean; `value` is then left alone
template <class Value>
bool readValue(const void* obj, ObjectType type, Value& value) {
    return types::readAs(obj, types::kindOf(type), value);
}

/// Stores such a value in a boolean, int or float field and marks it as present.
/// @return as above
bool storeValue(const Record& record, const FieldDescriptor& field, const void* obj,
                ObjectType type);

/// Takes such a field its value.
void clearValue(const Record& record, const FieldDescriptor& field);

}  // namespace korva
