// Made by korva-schemac from sample/sample.xsd; do not edit.
#include "tarn/TypeTable.h"

#if TARN_TABLE_VERSION != 1
#error "This file was made for other tables: run korva-schemac again."
#endif

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Woverlength-strings"
#endif

namespace tarn {

static_assert(typeIndexBits == 10, "run korva-schemac again");

constinit const TypeRow types[] = {
    {459092172, 0, 0, 0, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Class, false}, // schemaInfo
    {594803126, 2100713124, 15, 0, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Array, false}, // accountSet
    {676400484, 0, 30, 0, 1, 3, 1, 0, 1, 0, noBase, TypeKind::Class, true}, // baseProp
    {685906223, 0, 43, 1, 5, 3, 1, 1, 1, 1, 2, TypeKind::Property, false}, // stringArrayProp
    {728747954, 0, 63, 2, 0, 0, 0, 0, 0, 0, noBase, TypeKind::RestrictedString, false}, // guid
    {2100713124, 0, 72, 2, 9, 31, 14, 2, 14, 2, 13, TypeKind::Class, false}, // account
    {-2086189760, 0, 84, 16, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Enum, false}, // accessEnum
    {-1971073333, 1, 99, 16, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Array, false}, // stringArray
    {-1810617520, 0, 115, 16, 41, 3, 1, 1, 2, 0, 2, TypeKind::Property, false}, // stringProp
    {-1317325310, 2100713124, 130, 17, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Array, false}, // accountArray
    {-964715451, 3, 147, 17, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Array, false}, // integerArray
    {-940520895, 7, 164, 17, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Array, false}, // booleanArray
    {-406026128, 0, 181, 17, 45, 7, 2, 0, 2, 0, noBase, TypeKind::Class, true}, // baseClass
    {-324924979, 0, 195, 19, 0, 0, 0, 2, 2, 0, 12, TypeKind::Class, false}, // folder
    {-224870332, 0, 206, 19, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Enum, false}, // unknownEnum
};

constinit const std::uint16_t typeIndex[] = {
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2,
    2, 2, 3, 3, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6,
    6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7,
    7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8,
    8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
    9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
    9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
    9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
    9, 9, 9, 9, 9, 9, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10,
    10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10,
    10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10,
    10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 11, 11, 11, 11, 11, 11, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13,
    13, 13, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14,
    14, 14, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15,
    15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15,
    15, 15, 15, 15, 15, 15, 15, 15,
};

constinit const FieldRow fields[] = {
    {0x1B5D30CCU, 459092172, 0, FieldKind::Object}, // baseProp.schemaInfo
    {0x1D775834U, -1971073333, 0, FieldKind::EmbeddedArray}, // stringArrayProp.value
    {0x06692B54U, -2086189760, 2, FieldKind::Object}, // account.access
    {0x4B1EFC02U, 7, 3, FieldKind::Boolean}, // account.active
    {0x44E33BA2U, 6, 4, FieldKind::Text}, // account.born
    {0xED4B199FU, 10, 5, FieldKind::Text}, // account.class
    {0xE35E00DFU, 2, 6, FieldKind::Int}, // account.default
    {0x21EE7069U, -1317325310, 0, FieldKind::EmbeddedArray}, // account.friends
    {0xBF396750U, 728747954, 7, FieldKind::Object}, // account.id
    {0x16DB4F89U, 8, 8, FieldKind::Binary}, // account.picture
    {0x6C1C0FEDU, 3, 9, FieldKind::Int}, // account.quota
    {0xDFEC3F39U, 9, 10, FieldKind::Float}, // account.rate
    {0xEF069D5AU, 4, 11, FieldKind::Float}, // account.share
    {0x6FBC9426U, -1971073333, 1, FieldKind::EmbeddedArray}, // account.tags
    {0x3B8BA7C7U, 1, 12, FieldKind::Text}, // account.text
    {0x2568C195U, 5, 13, FieldKind::Text}, // account.wake
    {0x1D775834U, 1, 1, FieldKind::Text}, // stringProp.value
    {0x5E237E06U, -1810617520, 0, FieldKind::Object}, // baseClass.name
    {0xCF60E67CU, -406026128, 1, FieldKind::Object}, // baseClass.owner
    {0, 0, 0, FieldKind::Object}, // not counted
};

constinit const std::uint16_t hashes[] = {
    0, 1, 0, 0, 0, 1, 0, 0, 0, 5, 0, 2, 3, 0, 0, 12, 13, 0, 6, 8, 0, 0, 9, 0, 0, 7, 0, 0, 0, 1, 14,
    0, 0, 0, 10, 11, 0, 0, 0, 0, 4, 1, 0, 0, 0, 0, 0, 0, 0, 2, 0, 1, 0,
};

constinit const char typeNames[] =
    "bus:schemaInfo\0"
    "bus:accountSet\0"
    "bus:baseProp\0"
    "bus:stringArrayProp\0"
    "bus:guid\0"
    "bus:account\0"
    "bus:accessEnum\0"
    "bus:stringArray\0"
    "bus:stringProp\0"
    "bus:accountArray\0"
    "bus:integerArray\0"
    "bus:booleanArray\0"
    "bus:baseClass\0"
    "bus:folder\0"
    "bus:unknownEnum\0"
    ;

} // namespace tarn
