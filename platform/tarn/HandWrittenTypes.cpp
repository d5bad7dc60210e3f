#include "tarn/HandWrittenTypes.h"

#include <tarn/TARNSOAPFault.h>
#include <zel/ZELUtCrc32.h>

#include <iterator>

namespace tarn {

namespace {

constexpr std::uint32_t crc(const char* name) {
    return ZELUtCrc32::crc32(name, 0);
}

constexpr std::int32_t identity(const char* name) {
    return static_cast<std::int32_t>(crc(name));
}

constexpr const char* names[] = {"TARNUndocumentedFaultDetail", "TARNUndocumentedFaultDetailArray",
                                 "TARNSOAPFault"};

constexpr const char* fieldNames[] = {TARNSOAPFault::faultCodeName,
                                      TARNSOAPFault::faultStringName,
                                      TARNSOAPFault::faultActorName,
                                      TARNSOAPFault::detailName,
                                      TARNSOAPFault::undocumentedDetailName,
                                      "severity",
                                      "errorCode",
                                      "message"};

constexpr std::int32_t text = TARNSchemaTypeI::eString;
constexpr std::int32_t detail = TARNSchemaTypeI::eTARNUndocumentedFaultDetail;
constexpr std::int32_t details = TARNSchemaTypeI::eTARNUndocumentedFaultDetailArray;
constexpr std::int32_t fault = TARNSchemaTypeI::eTARNSOAPFault;

constexpr FieldRow handFields[] = {
    {crc("severity"), text, 0, FieldKind::Text},
    {crc("errorCode"), text, 1, FieldKind::Text},
    {crc("message"), identity("messageArray"), 0, FieldKind::EmbeddedArray},
    {crc(TARNSOAPFault::faultCodeName), text, 0, FieldKind::Text},
    {crc(TARNSOAPFault::faultStringName), text, 1, FieldKind::Text},
    {crc(TARNSOAPFault::faultActorName), text, 2, FieldKind::Text},
    {crc(TARNSOAPFault::detailName), identity("faultDetailArray"), 3, FieldKind::OptionalArray},
    {crc(TARNSOAPFault::undocumentedDetailName), details, 5, FieldKind::UnlistedArray},
};

// In the order of the names.
constexpr TypeRow rows[] = {
    {detail, 0, 0, 0, 0, 0, 3, 0, 2, 1, noBase, TypeKind::Class, false},
    {details, detail, 1, 0, 0, 0, 0, 0, 0, 0, noBase, TypeKind::Array, false},
    {fault, 0, 2, 3, 0, 0, 5, 0, 7, 0, noBase, TypeKind::Class, false},
};

}  // namespace

const TypeRow* findHandWrittenType(ObjectType type) {
    const auto position = static_cast<std::uint32_t>(type) - static_cast<std::uint32_t>(detail);
    return position < std::size(rows) ? rows + position : nullptr;
}

const char* handWrittenName(const TypeRow& type) {
    return names[type.name];
}

const FieldRow* handWrittenFields(const TypeRow& type) {
    return handFields + type.firstField;
}

const char* handWrittenFieldName(std::uint32_t fieldCrc) {
    for (const char* const name : fieldNames)
        if (crc(name) == fieldCrc) return name;
    return nullptr;
}

}  // namespace tarn
