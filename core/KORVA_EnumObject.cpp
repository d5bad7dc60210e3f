#include "korva/KORVA_EnumObject.h"

#include "core/EnumWords.h"
#include "core/Names.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAException.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAZELMessage.h>
#include <zel/I18NString.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>
#include <zel/ZELMessageParm.h>
#include <zel/ZELPrintable.h>
#include <zel/ZELThrow.h>

#include <string>

namespace korva {

namespace {

// Where a deployment adds the words that it knows.
constexpr const char* enumsFile = "schema/enums.xsd";

std::string openValues(const EnumDescriptor& descriptor) {
    return descriptor.openCount < 0 ? "some" : std::to_string(descriptor.openCount);
}

// An open enumeration gets a second message: the word may well be right, and only missing here.
[[noreturn]] void refuseWord(const char* name, const EnumDescriptor& descriptor) {
    KORVAException exception(0);
    ZEL_TRY {
        KORVAZELMessage unknown(eKORVA_UnknownEnumValue);
        const std::string text = std::string(descriptor.xmlName) + ':' + name;
        unknown << ZELMessageParm(zel::printable(text));
        exception << unknown;
        if (descriptor.openCount != 0) {
            KORVAZELMessage open(eKORVA_OpenEnum);
            open << ZELMessageParm(I18NString(descriptor.xmlName))
                 << ZELMessageParm(I18NString(openValues(descriptor).c_str()))
                 << ZELMessageParm(I18NString(enumsFile));
            exception << open;
        }
    }
    ZEL_CATCH("_stringToEnum()");
    exception.hurl(ZEL_LOCATION, "_stringToEnum()", "ZEL_THROW");
}

}  // namespace

int stringToEnum(const char* name, const EnumDescriptor& descriptor) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    const std::uint32_t crc = nameCrc(name);
    for (std::size_t i = 0; i < descriptor.entryCount; ++i)
        if (descriptor.entries[i].crc == crc) return descriptor.entries[i].value;
    refuseWord(name, descriptor);
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

const char* KORVA_EnumObject::toString() const {
    return korva::enumToString(m_value, descriptor());
}

void* KORVA_EnumObject::getChildObject(const char*, bool) {
    if (m_value == 0) {
        std::string text;
        ZEL_TRY {
            text = "ZEL_ASSERT_NAMED(m_value != ";
            text += descriptor().className;
            text += "::eKOVRAUninitialized, \"Enum not initialized.\");";
        }
        ZEL_CATCH(nullptr);
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
    ZEL_CATCH(nullptr);
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
