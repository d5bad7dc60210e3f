/// How it is told that something does not fit the schema.
#pragma once

#include "tarn/TypeTable.h"

namespace tarn {

/// @throws TARNTypeError always: the child `name` of `type` is declared otherwise
[[noreturn]] void childDoesNotFit(const TypeRow& type, const char* name, ObjectType declared,
                                  ObjectType given);

/// @throws TARNTypeError always: the child `name` of `type` is an array inside the object
[[noreturn]] void arrayCannotBeSet(const TypeRow& type, const char* name);

/// @throws TARNTypeError always: there are no objects of the type
[[noreturn]] void cannotCreate(ObjectType type);

}  // namespace tarn
