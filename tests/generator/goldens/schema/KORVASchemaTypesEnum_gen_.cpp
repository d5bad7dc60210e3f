// Made by korva-schemac from sample/sample.xsd; do not edit.
#include "core/EnumWords.h"
#include "core/ObjectName.h"
#include "schema/KORVADescriptors_gen_.h"

#include <korva/KORVAAccessEnum.h>
#include <korva/KORVAUnknownEnum.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

namespace {
constexpr korva::EnumEntry accessEnumEntries[] = {
    {0xC905664CU, KORVAAccessEnum::eKORVAGrant},
    {0x09BB3932U, KORVAAccessEnum::eKORVADeny},
    {0xB83021D2U, KORVAAccessEnum::eKORVADeny_all},
    {0x1239E959U, KORVAAccessEnum::eKORVADeny_all_2},
    {0xF83617B0U, KORVAAccessEnum::eKORVAGr__er},
};
} // namespace
constinit const korva::EnumDescriptor korva::descriptors::KORVAAccessEnum = {
    "KORVAAccessEnum",
    "accessEnum",
    accessEnumEntries,
    5,
    2,
};

KORVAAccessEnum::KORVAAccessEnum() = default;
KORVAAccessEnum::KORVAAccessEnum(const KORVAAccessEnum& other, KORVAObjectRegistryI& registry) : KORVA_EnumObject() {
    copy(other, registry);
}
KORVAAccessEnum::~KORVAAccessEnum() = default;
KORVAAccessEnum::Enum KORVAAccessEnum::stringToEnum(const char* text) {
    return static_cast<Enum>(korva::stringToEnum(text, korva::descriptors::KORVAAccessEnum));
}
const char* KORVAAccessEnum::enumToString(Enum value) {
    return korva::enumToString(value, korva::descriptors::KORVAAccessEnum);
}
void KORVAAccessEnum::setValue(const char* text) { assign(stringToEnum(text)); }
void KORVAAccessEnum::setValue(Enum value) { assign(value); }
KORVAAccessEnum::Enum KORVAAccessEnum::getValue() const { return static_cast<Enum>(value()); }
const char* KORVAAccessEnum::toString() { return word(); }
const korva::EnumDescriptor& KORVAAccessEnum::descriptor() const {
    return korva::descriptors::KORVAAccessEnum;
}
KORVAAccessEnum::ObjectType KORVAAccessEnum::getObjectType() const { return eKORVAAccessEnum; }
const char* KORVAAccessEnum::generatedObjectName() const { return "KORVAAccessEnum"; }
const std::string& KORVAAccessEnum::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("KORVAAccessEnum");
    return name;
}

constinit const korva::EnumDescriptor korva::descriptors::KORVAUnknownEnum = {
    "KORVAUnknownEnum",
    "unknownEnum",
    nullptr,
    0,
    -1,
};

KORVAUnknownEnum::KORVAUnknownEnum() = default;
KORVAUnknownEnum::KORVAUnknownEnum(const KORVAUnknownEnum& other, KORVAObjectRegistryI& registry) : KORVA_EnumObject() {
    copy(other, registry);
}
KORVAUnknownEnum::~KORVAUnknownEnum() = default;
KORVAUnknownEnum::Enum KORVAUnknownEnum::stringToEnum(const char* text) {
    return static_cast<Enum>(korva::stringToEnum(text, korva::descriptors::KORVAUnknownEnum));
}
const char* KORVAUnknownEnum::enumToString(Enum value) {
    return korva::enumToString(value, korva::descriptors::KORVAUnknownEnum);
}
void KORVAUnknownEnum::setValue(const char* text) { assign(stringToEnum(text)); }
void KORVAUnknownEnum::setValue(Enum value) { assign(value); }
KORVAUnknownEnum::Enum KORVAUnknownEnum::getValue() const { return static_cast<Enum>(value()); }
const char* KORVAUnknownEnum::toString() { return word(); }
const korva::EnumDescriptor& KORVAUnknownEnum::descriptor() const {
    return korva::descriptors::KORVAUnknownEnum;
}
KORVAUnknownEnum::ObjectType KORVAUnknownEnum::getObjectType() const { return eKORVAUnknownEnum; }
const char* KORVAUnknownEnum::generatedObjectName() const { return "KORVAUnknownEnum"; }
const std::string& KORVAUnknownEnum::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("KORVAUnknownEnum");
    return name;
}
