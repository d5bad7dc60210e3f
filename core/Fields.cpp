#include "core/Fields.h"

namespace korva {

bool storeValue(const Record& record, const FieldDescriptor& field, const void* obj,
                ObjectType type) {
    bool isValue = false;
    types::visitValue(field.kind, [&](auto value) {
        isValue = readValue(obj, type, value);
        if (!isValue) return;
        store(record, field.offset, value);
        store(record, field.flagOffset, false);
    });
    return isValue;
}

void clearValue(const Record& record, const FieldDescriptor& field) {
    types::visitValue(field.kind, [&](auto zero) { store(record, field.offset, zero); });
    store(record, field.flagOffset, true);
}

}  // namespace korva
