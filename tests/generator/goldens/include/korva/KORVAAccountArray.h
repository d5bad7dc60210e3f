// Made by korva-schemac from sample/values.xsd; do not edit.
#pragma once

#include <korva/KORVA_TypedArray.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

class KORVAAccount;

/// Accounts, in the order of their names.
class KORVA_EXPORT KORVAAccountArray : public KORVA_ObjectArray<KORVAAccount> {
public:
    using Self = KORVAAccountArray;
    using Identity = korva::TypeIdentity<eKORVAAccountArray>;

    KORVAAccountArray();
    /// A deep copy; what it consists of is registered in `registry`, the array itself is not.
    KORVAAccountArray(const KORVAAccountArray& other, KORVAObjectRegistryI& registry);
    ~KORVAAccountArray() override;

    /// Replaces the elements by deep copies of those of `other`, registered in `registry`.
    void copy(const KORVAAccountArray& other, KORVAObjectRegistryI& registry);

    ObjectType getObjectType() const override;
    const char* generatedObjectName() const override;
    const std::string& getGeneratedObjectName() const override;

private:
    ObjectType elementType() const override;
};
