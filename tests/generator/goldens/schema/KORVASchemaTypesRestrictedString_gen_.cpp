// Made by korva-schemac from sample/sample.xsd; do not edit.
#include "core/ObjectName.h"

#include <korva/KORVAGuid.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

KORVAGuid::KORVAGuid() = default;
KORVAGuid::KORVAGuid(const KORVAGuid& other, KORVAObjectRegistryI& registry)
    : KORVA_RestrictedString(other, registry) {}
KORVAGuid::~KORVAGuid() = default;
KORVAGuid::ObjectType KORVAGuid::getObjectType() const { return eKORVAGuid; }
const char* KORVAGuid::generatedObjectName() const { return "KORVAGuid"; }
const std::string& KORVAGuid::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("KORVAGuid");
    return name;
}
