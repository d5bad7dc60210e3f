#include "tarn/Slot.h"

#include "types/Numbers.h"
#include "types/PlainTypes.h"

#include <zel/ZELByteBuffer.h>

#include <cstring>

namespace tarn {

bool readValue(const void* from, TARNSchemaTypeI::ObjectType type, Slot& to,
               TARNSchemaTypeI::ObjectType declared) {
    bool fits = false;
    types::visitValue(types::kindOf(declared), [&](auto value) {
        fits = types::readAs(from, types::kindOf(type), value);
        if (!fits) return;
        Slot::Value result{};
        result.isPresent = true;
        std::memcpy(result.place(), &value, sizeof value);
        to.value = result;
    });
    return fits;
}

void* textOf(void* value, TARNSchemaTypeI::ObjectType type) {
    if (type == TARNSchemaTypeI::eCharStreamable) return value;
    return const_cast<char*>(static_cast<const ZELByteBuffer*>(value)->str());
}

}  // namespace tarn
