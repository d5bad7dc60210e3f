#include "korva/KORVA_ArrayObject.h"

#include "core/ArrayAccess.h"
#include "core/Fields.h"
#include "core/Names.h"
#include "core/ObjectComparison.h"
#include "core/ObjectCopy.h"
#include "core/ObjectCreation.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_TypedArray.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <stdexcept>

using Factory = KORVASchemaTypesFactory;
using korva::ArrayAccess;

namespace {

/// Appends an element or replaces the one at `*idx`.
/// @return its one-based position
std::size_t put(KORVA_ArrayObject& array, void* element, const std::size_t* idx) {
    ZEL_TRY {
        if (idx == nullptr) {
            const std::size_t count = array.size();
            ArrayAccess::resize(array, count + 1);
            ArrayAccess::setSlot(array, count, element);
            return count + 1;
        }
        if (*idx == 0 || array.size() < *idx)
            zel::literalAssertionFailed("ZEL_ASSERT(*idx > 0 && m_vector.size() >= *idx);",
                                        ZEL_LOCATION);
        ArrayAccess::setSlot(array, *idx - 1, element);
        return *idx;
    }
    ZEL_CATCH(nullptr);
}

}  // namespace

void KORVA_ArrayObject::throwInvalidSubscript() {
    throw std::out_of_range("invalid vector<T> subscript");
}

KORVA_ArrayObject::~KORVA_ArrayObject() = default;

void* KORVA_ArrayObject::getChildObject(const char* name, bool) {
    ZEL_ASSERT(name);
    const std::size_t index = KORVAChildIndex::toIndex(name);
    if (index > size()) throwInvalidSubscript();
    return slot(index - 1);
}

KORVASchemaTypeI::ObjectType KORVA_ArrayObject::getChildType(const char*) const {
    return elementType();
}

std::size_t KORVA_ArrayObject::setChildObject(const char* name, void* obj, const ObjectType& type,
                                              std::size_t* idx) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    ZEL_ASSERT(obj != NULL);

    const ObjectType declared = elementType();
    bool fits = false;
    std::size_t position = 0;
    if (Factory::isString(declared)) {
        fits = Factory::isString(type) && type != eCharStreamable;
        if (fits)
            position = put(*this, const_cast<char*>(static_cast<ZELByteBuffer*>(obj)->str()), idx);
    } else if (Factory::isGeneratedType(declared)) {
        fits = Factory::isGeneratedType(type) && static_cast<KORVASchemaTypeI*>(obj)->isa(declared);
        if (fits) position = put(*this, obj, idx);
    } else {
        types::visitValue(types::kindOf(declared), [&](auto value) {
            fits = korva::readValue(obj, type, value);
            if (fits) position = put(*this, &value, idx);
        });
    }
    if (!fits) Factory::typeError(korva::xmlName(getObjectType()), "<index>", declared, type);
    return position;
}

void KORVA_ArrayObject::getChildObjectNames(std::vector<const char*>& names, bool) const {
    ZEL_TRY {
        const std::size_t count = size();
        names.reserve(count);
        for (std::size_t n = 1; n <= count; ++n)
            names.push_back(KORVAChildIndex::toName(n));
    }
    ZEL_CATCH(nullptr);
}

bool KORVA_ArrayObject::isa(ObjectType type) const {
    return type == getObjectType();
}

std::size_t KORVA_ArrayObject::getChildObjectCount() const {
    return size();
}

bool KORVA_ArrayObject::operator==(const KORVASchemaTypeI& other) const {
    if (this == &other) return true;
    if (!other.isa(getObjectType())) return false;
    ZEL_TRY {
        return korva::equalElements(*this, static_cast<const KORVA_ArrayObject&>(other));
    }
    ZEL_CATCH(nullptr);
}

bool KORVA_ArrayObject::operator!=(const KORVASchemaTypeI& other) const {
    return !operator==(other);
}

KORVASchemaTypeI* KORVA_ArrayObject::appendNew(KORVASchemaTypeI* (*create)(),
                                               KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        const std::size_t count = size();
        KORVASchemaTypeI* const object = korva::createRegistered(create, registry);
        resizeSlots(count + 1);
        setSlot(count, object);
        return object;
    }
    ZEL_CATCH(nullptr);
}

void KORVA_ArrayObject::copyElements(const KORVA_ArrayObject& other,
                                     KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        korva::copyArray(other, *this, registry);
    }
    ZEL_CATCH(nullptr);
}

KORVA_TextArray::~KORVA_TextArray() = default;

const char* KORVA_TextArray::emplace_back(std::string_view text, KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        return m_vector.emplace_back(registry.keep(text));
    }
    ZEL_CATCH(nullptr);
}

void* KORVA_TextArray::slot(std::size_t position) const {
    return const_cast<char*>(m_vector[position]);
}

void KORVA_TextArray::setSlot(std::size_t position, void* element) {
    m_vector[position] = static_cast<const char*>(element);
}
