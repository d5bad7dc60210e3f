#include "korva/KORVA_EnumObject.h"

#include "core/EnumWords.h"
#include "core/Names.h"
#include "core/NumberedError.h"
#include "core/OpenWordTable.h"
#include "core/TextValue.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAException.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>
#include <zel/ZELThrow.h>

#include <algorithm>
#include <cstring>
#include <memory>
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
        const std::string text = std::string(descriptor.xmlName) + ':' + name;
        addMessage(exception, {eKORVA_UnknownEnumValue, {text.c_str()}});
        if (descriptor.openCount != 0)
            addMessage(
                exception,
                {eKORVA_OpenEnum, {descriptor.xmlName, openValues(descriptor).c_str(), enumsFile}});
    }
    ZEL_CATCH("_stringToEnum()");
    exception.hurl(ZEL_LOCATION, "_stringToEnum()", "ZEL_THROW");
}

/// The value of a word, or that of all words that nobody knows.
int findWord(const char* name, const EnumDescriptor& descriptor) {
    const std::uint32_t crc = nameCrc(name);
    for (std::size_t i = 0; i < descriptor.entryCount; ++i)
        if (descriptor.entries[i].crc == crc) return descriptor.entries[i].value;
    // Another word may have the same value.
    const OpenWord* const added = findOpenWord(descriptor, crc);
    return added != nullptr && std::strcmp(added->text, name) == 0 ? static_cast<int>(crc)
                                                                   : KORVA_EnumObject::otherWord;
}

}  // namespace

int stringToEnum(const char* name, const EnumDescriptor& descriptor) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    const int value = findWord(name, descriptor);
    if (value == KORVA_EnumObject::otherWord) refuseWord(name, descriptor);
    return value;
}

const char* enumToString(int value, const EnumDescriptor& descriptor) {
    if (value == 0) return "";
    const auto crc = static_cast<std::uint32_t>(value);
    for (std::size_t i = 0; i < descriptor.entryCount; ++i)
        if (descriptor.entries[i].value == value) return word(crc);
    if (const OpenWord* const added = findOpenWord(descriptor, crc)) return added->text;
    ZEL_ASSERT_NAMED(false, "invalid enum");
    return "";
}

}  // namespace korva

KORVA_EnumObject::~KORVA_EnumObject() = default;

const char* KORVA_EnumObject::toString() const {
    return word();
}

bool KORVA_EnumObject::setWord(const char* word, KORVAObjectRegistryI& registry) {
    ZEL_ASSERT(word);
    if (*word != '\0' && isOpen() && korva::findWord(word, descriptor()) == otherWord) {
        hold(word, registry);
        return false;
    }
    assign(korva::stringToEnum(word, descriptor()));
    return true;
}

void KORVA_EnumObject::hold(const char* word, KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        // Large enough to have an even address.
        const std::size_t size = std::max<std::size_t>(std::strlen(word) + 1, 2);
        std::unique_ptr<char[]> copy(new char[size]);
        std::strcpy(copy.get(), word);
        registry.registerPointer(copy.get(), KORVAObjectRegistryI::eKORVADeleteArray);
        m_data = reinterpret_cast<std::uintptr_t>(copy.release()) | 1U;
    }
    ZEL_CATCH("KORVA_EnumObject::setWord()");
}

bool KORVA_EnumObject::isOpen() const {
    return descriptor().openCount != 0;
}

void KORVA_EnumObject::copy(const KORVA_EnumObject& other, KORVAObjectRegistryI& registry) {
    if (const char* const word = other.getOtherWord())
        hold(word, registry);
    else
        m_data = other.m_data;
}

const char* KORVA_EnumObject::word() const {
    const char* const other = getOtherWord();
    return other != nullptr ? other : korva::enumToString(value(), descriptor());
}

void* KORVA_EnumObject::getChildObject(const char*, bool) {
    if (value() == 0) {
        std::string text;
        ZEL_TRY {
            text = "ZEL_ASSERT_NAMED(m_value != ";
            text += descriptor().className;
            text += "::eKOVRAUninitialized, \"Enum not initialized.\");";
        }
        ZEL_CATCH(nullptr);
        zel::assertionFailed(text.c_str(), ZEL_LOCATION);
    }
    return const_cast<char*>(word());
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
    assign(korva::stringToEnum(static_cast<ZELByteBuffer*>(obj)->str(), descriptor()));
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
    if (!other.isa(getObjectType())) return false;
    const auto& right = static_cast<const KORVA_EnumObject&>(other);
    return value() == right.value() && korva::equalTexts(getOtherWord(), right.getOtherWord());
}

bool KORVA_EnumObject::operator!=(const KORVASchemaTypeI& other) const {
    return !operator==(other);
}
