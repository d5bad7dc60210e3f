/// The tables that korva-schemac writes, and that the reflective implementation reads.
#pragma once

#include "types/Kinds.h"
#include "types/Lookup.h"

#include <korva/KORVAExport.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVASchemaTypesFactory.h>

#include <cstddef>
#include <cstdint>
#include <typeinfo>

class KORVAObjectRegistryI;
class KORVA_ClassObject;

namespace korva {

using ObjectType = KORVASchemaTypeI::ObjectType;

/// The root of all records of fields.
struct Record {
    Record() = default;
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    virtual ~Record() = default;

    /// @throws ZELOutOfMemoryError no memory is left, so that constructors need no frame
    static void* operator new(std::size_t size);
    static void operator delete(void* p) noexcept;
};

using types::FieldKind;

struct FieldDescriptor {
    std::uint32_t crc;         ///< of the wire name
    ObjectType type;           ///< declared type
    std::uint16_t offset;      ///< of the value in the record of the class
    std::uint16_t flagOffset;  ///< of the no-value flag; 0 where there is none
    FieldKind kind;
};

/// The hash table of a class without own fields.
inline constexpr std::uint16_t noHashes[] = {0};

/// One level of a class hierarchy. The fields of the bases stand in the base's descriptor, at the
/// same offsets of the same record.
struct ClassDescriptor {
    const char* className;              ///< "KORVASchedule"
    ObjectType identity;                ///< CRC-32 of the XML name
    const ClassDescriptor* base;        ///< null at the root
    const FieldDescriptor* fields;      ///< own fields in declared order
    const std::uint16_t* hashes;        ///< hash table: positions in `fields` plus one; 0 is free
    std::uint16_t hashMask;             ///< its entries but one: the bits of a CRC that it looks at
    std::uint16_t fieldCount;           ///< own fields
    std::uint16_t inheritedFieldCount;  ///< fields of all bases

    const FieldDescriptor* begin() const { return fields; }
    const FieldDescriptor* end() const { return fields + fieldCount; }

    /// The own field with this CRC, or null.
    const FieldDescriptor* find(std::uint32_t crc) const {
        return types::findHashed(fields, hashes, hashMask, crc);
    }

    /// The record of an object of this class or of one derived from it.
    static Record* recordOf(const KORVASchemaTypeI& object);
};

/// One word of an enumeration; both numbers are the CRC-32 of the word.
struct EnumEntry {
    std::uint32_t crc;
    int value;
};

struct EnumDescriptor {
    const char* className;     ///< "KORVASeverityEnum"
    const char* xmlName;       ///< "severityEnum"
    const EnumEntry* entries;  ///< in declared order
    std::uint16_t entryCount;
    std::int16_t openCount;  ///< further values whose words are not in the schema; -1 not known
};

/// What the factory knows of one generated type.
struct TypeDescriptor {
    using Create = KORVASchemaTypeI* (*)();
    using Copy = KORVASchemaTypeI* (*)(const KORVASchemaTypeI&, KORVAObjectRegistryI&);

    ObjectType identity;
    ObjectType elementType;          ///< of an array's elements, otherwise e_Unknown
    const char* xsiName;             ///< "bus:schedule"
    const ClassDescriptor* fields;   ///< classes and properties, otherwise null
    const std::type_info* typeInfo;  ///< of the class; null for abstract and hand-written types
    Create create;                   ///< null for abstract types
    Copy copy;                       ///< null for abstract types
};

/// The tables of the schema, as the generated code defines them.
struct TypeTables {
    const TypeDescriptor* types;     ///< ascending by identity as unsigned number
    const std::uint16_t* typeIndex;  ///< first position in `types` for each value of the top bits
    std::size_t typeCount;
    const KORVASchemaTypesFactory::KORVATypeNameToType* names;  ///< ascending by bytes
    std::size_t nameCount;
    const KORVASchemaTypesFactory::KORVATypeNameToType* arrayNames;  ///< "schedule[]", ascending
    std::size_t arrayNameCount;
};

/// How many of an identity's top bits `TypeTables::typeIndex` is indexed by.
using types::typeIndexBits;

// What the core is given from above: the room of the schema defines both tables.

extern const TypeTables typeTables;

/// A class that stands in no schema file. Its objects are asked by name, never read by tables, and
/// `type.elementType` is e_Unknown also for an array.
struct HandWrittenType {
    TypeDescriptor type;
    const char* xmlName;  ///< as messages of failures have it: "undocumentedFaultDetail"
    /// Compares two objects of the type.
    bool (*equal)(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right);
};

inline constexpr ObjectType firstHandWrittenType = KORVASchemaTypeI::eKORVAUndocumentedFaultDetail;
inline constexpr std::size_t handWrittenTypeCount =
    KORVASchemaTypeI::eKORVASOAPFault - firstHandWrittenType + 1;

/// In the order of their identities.
extern const HandWrittenType handWrittenTypes[handWrittenTypeCount];

/// The row of a hand-written type, or null.
inline const HandWrittenType* findHandWrittenType(ObjectType type) {
    const auto position = static_cast<std::uint32_t>(type) - firstHandWrittenType;
    return position < handWrittenTypeCount ? handWrittenTypes + position : nullptr;
}

/// The row of a generated or hand-written type, or null.
const TypeDescriptor* findType(ObjectType type);

}  // namespace korva
