/// Deep comparison, of any depth, without recursion.
#pragma once

#include "core/Descriptor.h"

class KORVA_ArrayObject;

namespace korva {

/// Whether two objects of one class are equal by the comparison of that class.
bool equalObjects(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right);

/// Whether two objects of the class `descriptor` agree in the fields of that class and its bases.
bool equalFields(const ClassDescriptor& descriptor, const KORVASchemaTypeI& left,
                 const KORVASchemaTypeI& right);

/// Whether two arrays of one class have equal elements in the same order.
bool equalElements(const KORVA_ArrayObject& left, const KORVA_ArrayObject& right);

}  // namespace korva
