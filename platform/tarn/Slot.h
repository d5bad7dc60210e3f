/// Where objects and arrays keep their values.
#pragma once

#include <tarn/TARNSchemaTypeI.h>

namespace tarn {

/// A pointer, or a value that may be missing. All bytes zero is null and no value, whichever it is.
union Slot {
    struct Value {
        union {
            int integer;
            float real;
            bool flag;
        };
        bool isPresent;

        /// The address of the value, whichever it is.
        void* place() { return &integer; }
    };

    void* pointer;
    Value value;
};

/// Reads the value of the plain type `type` at `from` into the member of `to` that fits the plain
/// type `declared`. Numbers are converted; out of range they saturate.
/// @return false when one of the types is no number and no boolean; `to` is then left alone
bool readValue(const void* from, TARNSchemaTypeI::ObjectType type, Slot& to,
               TARNSchemaTypeI::ObjectType declared);

/// What getChildObject gives for a text that is set by setChildObject.
void* textOf(void* value, TARNSchemaTypeI::ObjectType type);

}  // namespace tarn
