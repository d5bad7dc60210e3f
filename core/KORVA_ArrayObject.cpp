#include "korva/KORVA_ArrayObject.h"

#include "core/Fields.h"
#include "core/Names.h"
#include "core/ObjectComparison.h"
#include "core/ObjectCopy.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_TypedArray.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <stdexcept>

using Factory = KORVASchemaTypesFactory;

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
    void* element = obj;
    // Elements of value arrays are read from here, whatever the type that was passed.
    int number = 0;
    bool flag = false;
    if (Factory::isString(declared)) {
        fits = Factory::isString(type) && type != eCharStreamable;
        if (fits) element = const_cast<char*>(static_cast<ZELByteBuffer*>(obj)->str());
    } else if (Factory::isGeneratedType(declared)) {
        fits = Factory::isGeneratedType(type) && static_cast<KORVASchemaTypeI*>(obj)->isa(declared);
    } else if (declared == eBoolean) {
        fits = korva::readValue(obj, type, flag);
        element = &flag;
    } else {
        fits = korva::readValue(obj, type, number);
        element = &number;
    }
    if (!fits) Factory::typeError(korva::xmlName(getObjectType()), "<index>", declared, type);

    ZEL_TRY {
        if (idx == nullptr) {
            const std::size_t count = size();
            resizeSlots(count + 1);
            setSlot(count, element);
            return count + 1;
        }
        if (*idx == 0 || size() < *idx)
            zel::literalAssertionFailed("ZEL_ASSERT(*idx > 0 && m_vector.size() >= *idx);",
                                        ZEL_LOCATION);
        setSlot(*idx - 1, element);
        return *idx;
    }
    ZEL_CATCH(nullptr);
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

void KORVA_ArrayObject::copyElements(const KORVA_ArrayObject& other,
                                     KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        korva::copyArray(other, *this, registry);
    }
    ZEL_CATCH(nullptr);
}

KORVA_TextArray::~KORVA_TextArray() = default;

void* KORVA_TextArray::slot(std::size_t position) const {
    return const_cast<char*>(m_vector[position]);
}

void KORVA_TextArray::setSlot(std::size_t position, void* element) {
    m_vector[position] = static_cast<const char*>(element);
}
