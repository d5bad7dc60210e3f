/// What the writers of the bridges ask of the value that they are called with.
#pragma once

#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELAssert.h>

namespace korva {

/// Of nulls only an array has a form of its own.
inline void assertWritable(const void* obj, KORVASchemaTypeI::ObjectType type) {
    if (!KORVASchemaTypesFactory::isArrayType(type)) ZEL_ASSERT(obj);
}

}  // namespace korva
