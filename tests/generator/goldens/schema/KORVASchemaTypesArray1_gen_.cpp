// Made by korva-schemac from sample/sample.xsd; do not edit.
#include "core/ObjectName.h"

#include <korva/KORVAAccountArray.h>
#include <korva/KORVABooleanArray.h>
#include <korva/KORVAStringArray.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

KORVAAccountArray::KORVAAccountArray() = default;
KORVAAccountArray::KORVAAccountArray(const KORVAAccountArray& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}
KORVAAccountArray::~KORVAAccountArray() = default;
void KORVAAccountArray::copy(const KORVAAccountArray& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}
KORVAAccountArray::ObjectType KORVAAccountArray::elementType() const { return KORVASchemaTypeI::eKORVAAccount; }
KORVAAccountArray::ObjectType KORVAAccountArray::getObjectType() const { return eKORVAAccountArray; }
const char* KORVAAccountArray::generatedObjectName() const { return "KORVAAccountArray"; }
const std::string& KORVAAccountArray::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("KORVAAccountArray");
    return name;
}

KORVABooleanArray::KORVABooleanArray() = default;
KORVABooleanArray::KORVABooleanArray(const KORVABooleanArray& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}
KORVABooleanArray::~KORVABooleanArray() = default;
void KORVABooleanArray::copy(const KORVABooleanArray& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}
KORVABooleanArray::ObjectType KORVABooleanArray::elementType() const { return KORVASchemaTypeI::eBoolean; }
KORVABooleanArray::ObjectType KORVABooleanArray::getObjectType() const { return eKORVABooleanArray; }
const char* KORVABooleanArray::generatedObjectName() const { return "KORVABooleanArray"; }
const std::string& KORVABooleanArray::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("KORVABooleanArray");
    return name;
}

KORVAStringArray::KORVAStringArray() = default;
KORVAStringArray::KORVAStringArray(const KORVAStringArray& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}
KORVAStringArray::~KORVAStringArray() = default;
void KORVAStringArray::copy(const KORVAStringArray& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}
KORVAStringArray::ObjectType KORVAStringArray::elementType() const { return KORVASchemaTypeI::eString; }
KORVAStringArray::ObjectType KORVAStringArray::getObjectType() const { return eKORVAStringArray; }
const char* KORVAStringArray::generatedObjectName() const { return "KORVAStringArray"; }
const std::string& KORVAStringArray::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("KORVAStringArray");
    return name;
}
