/// The storage of an array, seen without its type.
#pragma once

#include <korva/KORVA_ArrayObject.h>

#include <cstddef>

namespace korva {

class ArrayAccess {
public:
    static void* slot(const KORVA_ArrayObject& array, std::size_t position) {
        return array.slot(position);
    }
    static void setSlot(KORVA_ArrayObject& array, std::size_t position, void* element) {
        array.setSlot(position, element);
    }
    static void resize(KORVA_ArrayObject& array, std::size_t count) { array.resizeSlots(count); }
    static KORVASchemaTypeI::ObjectType elementType(const KORVA_ArrayObject& array) {
        return array.elementType();
    }
};

}  // namespace korva
