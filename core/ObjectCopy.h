/// Deep copies, of any depth, without recursion.
#pragma once

#include "core/Descriptor.h"

class KORVAObjectRegistryI;
class KORVA_ArrayObject;

namespace korva {

/// Copies the fields of `descriptor` and all its bases from `source` to `target`, two objects of
/// that class. What is made on the way is registered in `registry`; a failure leaves it there.
void copyFields(const ClassDescriptor& descriptor, const KORVASchemaTypeI& source,
                const KORVASchemaTypeI& target, KORVAObjectRegistryI& registry);

/// Makes `target` hold copies of the elements of `source`, an array of the same class. A failure
/// leaves `target` empty.
void copyArray(const KORVA_ArrayObject& source, KORVA_ArrayObject& target,
               KORVAObjectRegistryI& registry);

}  // namespace korva
