// Made by korva-schemac from sample/sample.xsd; do not edit.
#include "core/ObjectCreation.h"
#include "core/ObjectName.h"
#include "schema/KORVADescriptors_gen_.h"
#include "schema/KORVARecords_gen_.h"

#include <korva/KORVAStringArrayProp.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

#if defined(__GNUC__)
// The records derive from one another, and have no other base.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif

// stringArrayProp ---------------------------------------------------------------------------------
namespace {
constexpr korva::FieldDescriptor stringArrayPropFields[] = {
    // value
    {0x1D775834U, KORVASchemaTypeI::eKORVAStringArray,
     offsetof(KORVAStringArrayProp_PrivateData, value),
     0, korva::FieldKind::EmbeddedArray},
};
constexpr std::uint16_t stringArrayPropHashes[] = {
    1, 0, 0, 0,
};
} // namespace
constinit const korva::ClassDescriptor korva::descriptors::KORVAStringArrayProp = {
    "KORVAStringArrayProp",
    KORVASchemaTypeI::eKORVAStringArrayProp,
    &korva::descriptors::KORVABaseProp,
    stringArrayPropFields,
    stringArrayPropHashes,
    3,
    1,
    1,
};

inline KORVAStringArrayProp_PrivateData* KORVAStringArrayProp::data() const {
    return static_cast<KORVAStringArrayProp_PrivateData*>(m_pPrivateData);
}

KORVAStringArrayProp::KORVAStringArrayProp() : KORVABaseProp(new KORVAStringArrayProp_PrivateData) {}
KORVAStringArrayProp::KORVAStringArrayProp(korva::Record* record) noexcept : KORVABaseProp(record) {}
KORVAStringArrayProp::KORVAStringArrayProp(const KORVAStringArrayProp& other, KORVAObjectRegistryI& registry)
    : KORVABaseProp(new KORVAStringArrayProp_PrivateData) {
    korva::copyFields(korva::descriptors::KORVAStringArrayProp, other, *this, registry);
}
KORVAStringArrayProp::~KORVAStringArrayProp() = default;
const korva::ClassDescriptor& KORVAStringArrayProp::descriptor() const {
    return korva::descriptors::KORVAStringArrayProp;
}
KORVAStringArrayProp::ObjectType KORVAStringArrayProp::getObjectType() const { return eKORVAStringArrayProp; }
const char* KORVAStringArrayProp::generatedObjectName() const { return "KORVAStringArrayProp"; }
const std::string& KORVAStringArrayProp::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName("KORVAStringArrayProp");
    return name;
}

KORVAStringArray& KORVAStringArrayProp::getValue() const { return data()->value; }
