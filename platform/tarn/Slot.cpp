#include "tarn/Slot.h"

#include <zel/ZELByteBuffer.h>

#include <limits>

namespace tarn {

namespace {

using Type = TARNSchemaTypeI;

bool isInteger(Type::ObjectType type) {
    return type == Type::eInt || type == Type::eInteger;
}

bool isReal(Type::ObjectType type) {
    return type == Type::eFloat || type == Type::eDecimal;
}

int saturated(double value) {
    constexpr double greatest = std::numeric_limits<int>::max();
    constexpr double least = std::numeric_limits<int>::min();
    if (value != value) return 0;
    return static_cast<int>(value < least ? least : value > greatest ? greatest : value);
}

}  // namespace

bool readValue(const void* from, Type::ObjectType type, Slot& to, Type::ObjectType declared) {
    // A double holds each value of the three types.
    double value = 0;
    if (isInteger(type))
        value = *static_cast<const int*>(from);
    else if (isReal(type))
        value = *static_cast<const float*>(from);
    else if (type == Type::eBoolean)
        value = *static_cast<const bool*>(from) ? 1 : 0;
    else
        return false;

    Slot::Value result{};
    result.isPresent = true;
    if (isInteger(declared))
        result.integer = saturated(value);
    else if (isReal(declared))
        result.real = static_cast<float>(value);
    else if (declared == Type::eBoolean)
        result.flag = value != 0;
    else
        return false;
    to.value = result;
    return true;
}

void* textOf(void* value, Type::ObjectType type) {
    if (type == Type::eCharStreamable) return value;
    return const_cast<char*>(static_cast<const ZELByteBuffer*>(value)->str());
}

}  // namespace tarn
