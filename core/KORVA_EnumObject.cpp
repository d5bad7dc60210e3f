#include "core/EnumWords.h"
#include "core/Names.h"
#include "core/NumberedError.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_EnumObject.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <string>

namespace korva {

int stringToEnum(const char* name, const EnumDescriptor& descriptor) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    const std::uint32_t crc = nameCrc(name);
    for (std::size_t i = 0; i < descriptor.entryCount; ++i)
        if (descriptor.entries[i].crc == crc) return descriptor.entries[i].value;
    std::string text;
    ZEL_TRY {
        text = descriptor.xmlName;
        text += ':';
        text += name;
    }
    ZEL_CATCH(nullptr)
    KORVA_RAISE(0xEA45DC29U, "_stringToEnum()", text.c_str());
}

const char* enumToString(int value, const EnumDescriptor& descriptor) {
    if (value == 0) return "";
    for (std::size_t i = 0; i < descriptor.entryCount; ++i)
        if (descriptor.entries[i].value == value) return word(static_cast<std::uint32_t>(value));
    ZEL_ASSERT_NAMED(false, "invalid enum");
    return "";
}

}  // namespace korva

KORVA_EnumObject::~KORVA_EnumObject() = default;

void* KORVA_EnumObject::getChildObject(const char*, bool) {
    if (m_value == 0) {
        std::string text;
        ZEL_TRY {
            text = "ZEL_ASSERT_NAMED(m_value != ";
            text += descriptor().className;
            text += "::eKOVRAUninitialized, \"Enum not initialized.\");";
        }
        ZEL_CATCH(nullptr)
        zel::assertionFailed(text.c_str(), ZEL_LOCATION);
    }
    return const_cast<char*>(korva::enumToString(m_value, descriptor()));
}

KORVASchemaTypeI::ObjectType KORVA_EnumObject::getChildType(const char*) const {
    return eString;
}

std::size_t KORVA_EnumObject::setChildObject(const char* name, void* obj, const ObjectType& type,
                                             std::size_t*) {
    ZEL_ASSERT(name);
    ZEL_ASSERT(obj);
    if (!KORVASchemaTypesFactory::isString(type) || type == eCharStreamable)
        KORVASchemaTypesFactory::typeError(descriptor().xmlName, name, getChildType(name), type);
    m_value = korva::stringToEnum(static_cast<ZELByteBuffer*>(obj)->str(), descriptor());
    return 0;
}

void KORVA_EnumObject::getChildObjectNames(std::vector<const char*>& names, bool) const {
    ZEL_TRY {
        names.push_back("");
    }
    ZEL_CATCH(nullptr)
}

bool KORVA_EnumObject::isa(ObjectType type) const {
    return type == getObjectType();
}

std::size_t KORVA_EnumObject::getChildObjectCount() const {
    return 1;
}

bool KORVA_EnumObject::operator==(const KORVASchemaTypeI& other) const {
    return other.isa(getObjectType()) &&
           m_value == static_cast<const KORVA_EnumObject&>(other).m_value;
}

bool KORVA_EnumObject::operator!=(const KORVASchemaTypeI& other) const {
    return !operator==(other);
}
