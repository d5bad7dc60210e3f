/// The rows of the fault classes, which stand in no schema.
#pragma once

#include "tarn/TypeTable.h"

namespace tarn {

/// The row of a type that is written by hand, or null.
const TypeRow* findHandWrittenType(ObjectType type);

/// Whether `type` is one of those rows.
inline bool isHandWritten(const TypeRow& type) {
    return type.identity >= TARNSchemaTypeI::eTARNUndocumentedFaultDetail &&
           type.identity <= TARNSchemaTypeI::eTARNSOAPFault;
}

/// What `typeNames` and `fields` are for other rows.
const char* handWrittenName(const TypeRow& type);
const FieldRow* handWrittenFields(const TypeRow& type);

/// The name of a field that is no word of the schema, or null.
const char* handWrittenFieldName(std::uint32_t crc);

}  // namespace tarn
