/// The types of the schema, as the generated code defines them. The tables hold numbers instead of
/// pointers, so that loading the library costs nothing for them.
#pragma once

#include "types/Kinds.h"
#include "types/Lookup.h"
#include "words/TableVersion.h"

#include <tarn/TARNSchemaTypeI.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarn {

using ObjectType = TARNSchemaTypeI::ObjectType;

using types::FieldKind;
using types::TypeKind;

constexpr bool isArrayPointer(FieldKind kind) {
    return kind >= FieldKind::OptionalArray;
}

struct FieldRow {
    std::uint32_t crc;    ///< of the name
    std::int32_t type;    ///< declared type
    std::uint16_t place;  ///< among the slots of an object, or among its arrays
    FieldKind kind;
};

inline constexpr std::uint16_t noBase = 0xFFFF;

struct TypeRow {
    std::int32_t identity;         ///< CRC-32 of the name
    std::int32_t elementType;      ///< of an array's elements, otherwise 0
    std::uint32_t name;            ///< of the XSI text in `typeNames`
    std::uint16_t firstField;      ///< of the own fields in `fields`
    std::uint16_t firstHash;       ///< of their hash table in `hashes`
    std::uint16_t hashMask;        ///< its entries but one: the bits of a CRC that it looks at
    std::uint16_t fieldCount;      ///< own fields, in declared order
    std::uint16_t inheritedCount;  ///< fields of all bases
    std::uint16_t slotCount;       ///< of an object, with those for the fields of its bases
    std::uint16_t arrayCount;      ///< likewise
    std::uint16_t base;            ///< position in `types`, or noBase
    TypeKind kind;
    bool isAbstract;
};

/// How many of an identity's top bits `typeIndex` is indexed by.
using types::typeIndexBits;

extern const TypeRow types[];  ///< ascending by identity as unsigned number
/// The first position for each value of the top bits, and the end.
extern const std::uint16_t typeIndex[types::indexSize(typeIndexBits)];
extern const FieldRow fields[];
/// Of each type: positions of own fields plus one; 0 is free.
extern const std::uint16_t hashes[];
extern const char typeNames[];  ///< "bus:schedule", NUL; repeated

/// The row of a type, generated or written by hand, or null.
const TypeRow* findType(ObjectType type);

/// The row of the type that `type` extends, or null.
const TypeRow* baseOf(const TypeRow& type);

/// "bus:schedule".
const char* xsiName(const TypeRow& type);

/// The own fields of a type, `fieldCount` of them.
const FieldRow* fieldsOf(const TypeRow& type);

/// The field of this name, own or inherited, or null.
const FieldRow* findField(const TypeRow& type, const char* name);

/// The name of a field, which lives as long as the process.
const char* nameOf(const FieldRow& field);

/// Whether `type` is the type with this identity or extends it.
bool isa(const TypeRow& type, ObjectType identity);

}  // namespace tarn
