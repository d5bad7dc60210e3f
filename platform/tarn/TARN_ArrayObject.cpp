#include "tarn/TARN_ArrayObject.h"

#include "tarn/Slot.h"
#include "tarn/TypeErrors.h"
#include "tarn/TypeTable.h"
#include "types/PlainTypes.h"

#include <tarn/TARNSchemaTypesFactory.h>
#include <tarn/TARNUndocumentedFaultDetailArray.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstdint>
#include <stdexcept>

using tarn::Slot;
using tarn::TypeRow;
using Factory = TARNSchemaTypesFactory;

TARNSchemaTypeI* TARN_ArrayObject::create(const TypeRow& type) {
    if (type.identity == eTARNUndocumentedFaultDetailArray)
        return new TARNUndocumentedFaultDetailArray(type);
    return new TARN_ArrayObject(type);
}

TARN_ArrayObject::TARN_ArrayObject(const TypeRow& type) : m_type(type) {}

TARN_ArrayObject::~TARN_ArrayObject() = default;

TARNSchemaTypeI::ObjectType TARN_ArrayObject::getObjectType() const {
    return static_cast<ObjectType>(m_type.identity);
}

std::size_t TARN_ArrayObject::setChildObject(const char* name, void* value, const ObjectType& type,
                                             std::size_t* index) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    ZEL_ASSERT(value != NULL);
    const auto declared = static_cast<ObjectType>(m_type.elementType);
    Slot element{};
    bool fits = false;
    if (Factory::isGeneratedType(declared)) {
        fits =
            Factory::isGeneratedType(type) && static_cast<TARNSchemaTypeI*>(value)->isa(declared);
        element.pointer = value;
    } else if (Factory::isString(declared)) {
        fits = Factory::isString(type);
        if (fits) element.pointer = tarn::textOf(value, type);
    } else {
        fits = tarn::readValue(value, type, element, declared);
    }
    if (!fits) tarn::childDoesNotFit(m_type, "<index>", declared, type);

    ZEL_TRY {
        if (index == nullptr) {
            m_elements.push_back(element);
            return m_elements.size();
        }
        ZEL_ASSERT(*index > 0 && *index <= m_elements.size());
        m_elements[*index - 1] = element;
        return *index;
    }
    ZEL_CATCH(nullptr);
}

void* TARN_ArrayObject::element(std::size_t position) const {
    auto& slot = const_cast<Slot&>(m_elements[position]);
    return types::isValue(types::kindOf(m_type.elementType)) ? slot.value.place() : slot.pointer;
}

void* TARN_ArrayObject::getChildObject(const char* name, bool) {
    ZEL_ASSERT(name);
    const auto index = static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(name));
    ZEL_TRY {
        if (index > m_elements.size()) throw std::out_of_range("no such element in the array");
        return element(index - 1);
    }
    ZEL_CATCH("TARN_ArrayObject::getChildObject");
}

TARNSchemaTypeI::ObjectType TARN_ArrayObject::getChildType(const char*) const {
    return static_cast<ObjectType>(m_type.elementType);
}

void TARN_ArrayObject::getChildObjectNames(std::vector<const char*>& names, bool) const {
    ZEL_TRY {
        const std::size_t count = m_elements.size();
        names.reserve(names.size() + count);
        // No element is null: there is no way to store one.
        for (std::size_t n = 1; n <= count; ++n)
            names.push_back(reinterpret_cast<const char*>(static_cast<std::uintptr_t>(n)));
    }
    ZEL_CATCH(nullptr);
}

bool TARN_ArrayObject::isa(ObjectType type) const {
    return type == getObjectType();
}

std::size_t TARN_ArrayObject::getChildObjectCount() const {
    return m_elements.size();
}

std::size_t TARN_ArrayObject::size() const {
    return m_elements.size();
}
