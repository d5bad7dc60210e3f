// Made by korva-schemac from sample/values.xsd; do not edit.
#pragma once

#include <korva/KORVA_RestrictedString.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

/// An identifier.
class KORVA_EXPORT KORVAGuid : public KORVA_RestrictedString {
public:
    using Self = KORVAGuid;
    using Identity = korva::TypeIdentity<eKORVAGuid>;

    KORVAGuid();
    /// A copy, whose text is registered in `registry`.
    KORVAGuid(const KORVAGuid& other, KORVAObjectRegistryI& registry);
    ~KORVAGuid() override;

    ObjectType getObjectType() const override;
    const char* generatedObjectName() const override;
    const std::string& getGeneratedObjectName() const override;
};
