#include "core/Fields.h"

#include <limits>

namespace korva {

namespace {

void convert(float from, int& to) {
    // 2^31 and above, and what lies below -2^31, have no int.
    constexpr float limit = 2147483648.0F;
    if (from >= limit)
        to = std::numeric_limits<int>::max();
    else if (from < -limit)
        to = std::numeric_limits<int>::min();
    else
        to = from == from ? static_cast<int>(from) : 0;
}

template <class From>
void convert(From from, int& to) {
    to = static_cast<int>(from);
}

template <class From>
void convert(From from, bool& to) {
    to = from != From{};
}

template <class From>
void convert(From from, float& to) {
    to = static_cast<float>(from);
}

template <class Value>
bool readAs(const void* obj, ObjectType type, Value& value) {
    switch (type) {
        case KORVASchemaTypeI::eInt:
        case KORVASchemaTypeI::eInteger: convert(*static_cast<const int*>(obj), value); return true;
        case KORVASchemaTypeI::eFloat:
        case KORVASchemaTypeI::eDecimal:
            convert(*static_cast<const float*>(obj), value);
            return true;
        case KORVASchemaTypeI::eBoolean:
            convert(*static_cast<const bool*>(obj), value);
            return true;
        default: return false;
    }
}

template <class Value>
bool storeAs(const Record& record, const FieldDescriptor& field, const void* obj, ObjectType type) {
    Value value{};
    if (!readValue(obj, type, value)) return false;
    store(record, field.offset, value);
    store(record, field.flagOffset, false);
    return true;
}

}  // namespace

bool readValue(const void* obj, ObjectType type, bool& value) {
    return readAs(obj, type, value);
}
bool readValue(const void* obj, ObjectType type, int& value) {
    return readAs(obj, type, value);
}
bool readValue(const void* obj, ObjectType type, float& value) {
    return readAs(obj, type, value);
}

bool storeValue(const Record& record, const FieldDescriptor& field, const void* obj,
                ObjectType type) {
    switch (field.kind) {
        case FieldKind::Boolean: return storeAs<bool>(record, field, obj, type);
        case FieldKind::Int: return storeAs<int>(record, field, obj, type);
        default: return storeAs<float>(record, field, obj, type);
    }
}

}  // namespace korva
