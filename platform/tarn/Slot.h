/// Where objects and arrays keep their values.
#pragma once

#include "types/Kinds.h"

#include <tarn/TARNSchemaTypeI.h>

namespace tarn {

/// A pointer, or a value that may be missing. All bytes zero is null and no value, whichever it is.
union Slot {
    struct Value {
        /// The address of the value, whichever it is.
        void* place() { return this; }

        union {
#define KORVA_MEMBER(name, Type, text) Type as##name;
            KORVA_VALUE_KINDS(KORVA_MEMBER)
#undef KORVA_MEMBER
        };
        bool isPresent;
    };

    void* pointer;
    Value value;
};

/// Reads the value of the plain type `type` at `from` into `to`, as a value that fits the plain
/// type `declared`. Numbers are converted; out of range they saturate.
/// @return false when one of the types is no number and no boolean; `to` is then left alone
bool readValue(const void* from, TARNSchemaTypeI::ObjectType type, Slot& to,
               TARNSchemaTypeI::ObjectType declared);

/// What getChildObject gives for a text that is set by setChildObject.
void* textOf(void* value, TARNSchemaTypeI::ObjectType type);

}  // namespace tarn
