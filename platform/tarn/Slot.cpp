#include "tarn/Slot.h"

#include "types/Numbers.h"
#include "types/PlainTypes.h"

#include <zel/ZELByteBuffer.h>

namespace tarn {

namespace {

void put(int value, Slot::Value& to) {
    to.integer = value;
}
void put(float value, Slot::Value& to) {
    to.real = value;
}
void put(bool value, Slot::Value& to) {
    to.flag = value;
}

}  // namespace

bool readValue(const void* from, TARNSchemaTypeI::ObjectType type, Slot& to,
               TARNSchemaTypeI::ObjectType declared) {
    bool fits = false;
    types::visitValue(types::kindOf(declared), [&](auto value) {
        fits = types::readAs(from, types::kindOf(type), value);
        if (!fits) return;
        Slot::Value result{};
        result.isPresent = true;
        put(value, result);
        to.value = result;
    });
    return fits;
}

void* textOf(void* value, TARNSchemaTypeI::ObjectType type) {
    if (type == TARNSchemaTypeI::eCharStreamable) return value;
    return const_cast<char*>(static_cast<const ZELByteBuffer*>(value)->str());
}

}  // namespace tarn
