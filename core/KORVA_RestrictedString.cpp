#include "korva/KORVA_RestrictedString.h"

#include "core/Names.h"
#include "core/TextValue.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

KORVA_RestrictedString::KORVA_RestrictedString(const KORVA_RestrictedString& other,
                                               KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        m_value = korva::copyText(other.m_value, korva::TextCopy::Array, registry);
    }
    ZEL_CATCH(nullptr);
}

KORVA_RestrictedString::~KORVA_RestrictedString() = default;

void* KORVA_RestrictedString::getChildObject(const char*, bool) {
    return const_cast<char*>(m_value);
}

KORVASchemaTypeI::ObjectType KORVA_RestrictedString::getChildType(const char*) const {
    return eString;
}

std::size_t KORVA_RestrictedString::setChildObject(const char* name, void* obj,
                                                   const ObjectType& type, std::size_t*) {
    if (!KORVASchemaTypesFactory::isString(type))
        KORVASchemaTypesFactory::typeError(korva::xmlName(getObjectType()), name,
                                           getChildType(name), type);
    if (type == eCharStreamable) {
        m_value = static_cast<const char*>(obj);
        return 0;
    }
    ZEL_ASSERT(obj);
    m_value = static_cast<ZELByteBuffer*>(obj)->str();
    return 0;
}

void KORVA_RestrictedString::getChildObjectNames(std::vector<const char*>& names, bool) const {
    ZEL_TRY {
        names.push_back("");
    }
    ZEL_CATCH(nullptr);
}

bool KORVA_RestrictedString::isa(ObjectType type) const {
    return type == getObjectType();
}

std::size_t KORVA_RestrictedString::getChildObjectCount() const {
    return 1;
}

bool KORVA_RestrictedString::operator==(const KORVASchemaTypeI& other) const {
    if (this == &other) return true;
    return other.isa(getObjectType()) &&
           korva::equalTexts(m_value, static_cast<const KORVA_RestrictedString&>(other).m_value);
}

bool KORVA_RestrictedString::operator!=(const KORVASchemaTypeI& other) const {
    return !operator==(other);
}
